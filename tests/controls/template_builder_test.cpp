// What the builder makes of the real templates: numbers, labels, tab order and room for every text.
#include <gtest/gtest.h>

#include <QButtonGroup>
#include <QLabel>
#include <QSet>
#include <QTest>

#include "core_link/dialog.h"
#include "resources/templates/templates.h"
#include "siblings/controls/controls.h"
#include "siblings/controls/object_list_box.h"

namespace vyn {
namespace {

class BuiltTemplate : public testing::TestWithParam<int> {
 protected:
  BuiltTemplate() : dialog(nullptr, nullptr, GetParam(), {}, nullptr) { dialog.Create(); }

  template <class Control = QWidget>
  Control* Item(int id) {
    return qobject_cast<Control*>(dialog.GetDlgItem(id));
  }
  QRect AreaOf(const QWidget* control) const {
    return {control->mapTo(&dialog, QPoint()), control->size()};
  }
  /// Controls that are seen, without the frames that surround others.
  QList<QWidget*> Solid() const {
    QList<QWidget*> solid;
    for (QWidget* control : dialog.Controls()) {
      if (control->isVisible() && qobject_cast<QGroupBox*>(control) == nullptr) solid << control;
    }
    return solid;
  }

  CVynDialog dialog;
};

std::vector<int> AllTemplates() {
  std::vector<int> numbers;
  for (const DialogTemplate& dialog : templates::All()) numbers.push_back(dialog.number);
  return numbers;
}

INSTANTIATE_TEST_SUITE_P(Templates, BuiltTemplate, testing::ValuesIn(AllTemplates()),
                         testing::PrintToStringParamName());

TEST_P(BuiltTemplate, HasEveryControlOnceUnderItsNumber) {
  const auto declared = ControlsOf(FindDialogTemplate(GetParam()));
  QList<QWidget*> found;
  for (const TemplateItem* item : declared) {
    if (item->id == kNoControlId) continue;
    QWidget* control = dialog.GetDlgItem(item->id);
    ASSERT_NE(control, nullptr) << item->id;
    EXPECT_EQ(ControlIdOf(control), item->id);
    EXPECT_EQ(ControlKindOf(control), item->kind) << item->id;
    found.append(control);
  }
  EXPECT_EQ(dialog.Controls(), found);
  EXPECT_EQ(dialog.GetDlgItem(4711), nullptr);
  EXPECT_EQ(dialog.GetDlgItem(0), &dialog);
}

TEST_P(BuiltTemplate, NoControlCoversAnotherOrLeavesTheDialog) {
  const QList<QWidget*> solid = Solid();
  for (qsizetype i = 0; i < solid.size(); ++i) {
    const QRect area = AreaOf(solid[i]);
    EXPECT_TRUE(dialog.rect().contains(area)) << ControlIdOf(solid[i]);
    for (qsizetype j = 0; j < i; ++j) {
      EXPECT_FALSE(area.intersects(AreaOf(solid[j])))
          << ControlIdOf(solid[i]) << " covers " << ControlIdOf(solid[j]);
    }
  }
}

TEST_P(BuiltTemplate, GivesEveryTextTheRoomItNeeds) {
  for (QWidget* control : Solid()) {
    const bool hasText = qobject_cast<QAbstractButton*>(control) != nullptr ||
                         qobject_cast<QLabel*>(control) != nullptr;
    if (!hasText) continue;
    EXPECT_GE(control->height(), control->sizeHint().height()) << ControlIdOf(control);
    // A fixed width is the template's word; it must do for the text that is there.
    const auto* button = qobject_cast<QAbstractButton*>(control);
    const QString text = button != nullptr ? button->text() : static_cast<QLabel*>(control)->text();
    EXPECT_GE(control->width(),
              control->fontMetrics().horizontalAdvance(QString(text).remove(u'&')))
        << ControlIdOf(control);
  }
}

TEST_P(BuiltTemplate, TabVisitsTheControlsInTheirOrder) {
  QList<QWidget*> chain;
  QWidget* widget = &dialog;
  while ((widget = widget->nextInFocusChain()) != &dialog) {
    if (ControlIdOf(widget) >= 0) chain.append(widget);
  }
  EXPECT_EQ(chain, dialog.Controls());
}

TEST_P(BuiltTemplate, EveryControlHasANameForScreenReaders) {
  QSet<const QWidget*> labelled;
  for (QWidget* control : dialog.Controls()) {
    if (auto* label = qobject_cast<QLabel*>(control)) labelled.insert(label->buddy());
  }
  for (QWidget* control : Solid()) {
    if (!(control->focusPolicy() & Qt::TabFocus)) continue;
    const auto* button = qobject_cast<QAbstractButton*>(control);
    const bool hasText = button != nullptr && !button->text().isEmpty();
    EXPECT_TRUE(hasText || labelled.contains(control) || !control->accessibleName().isEmpty())
        << ControlIdOf(control);
  }
}

TEST(TemplateBuilder, AGroupNamesTheControlThatHasNoNameOfItsOwn) {
  CVynDialog planets(nullptr, nullptr, 13002, {}, nullptr);
  planets.Create();
  EXPECT_EQ(planets.GetDlgItem(1130)->accessibleName(), QStringLiteral("表示倍率"));
  EXPECT_EQ(planets.GetDlgItem(1136)->accessibleName(), QString()) << "it has a label";
}

/// Letters that texts of the planets' grids share; the toolkit takes turns between their controls.
QString SharedLetters(int templateNumber) {
  if (templateNumber == 13002) return QStringLiteral("MS");
  return templateNumber == 13005 ? QStringLiteral("M") : QString();
}

TEST_P(BuiltTemplate, MnemonicsLeadToOneControlEach) {
  const QString shared = SharedLetters(GetParam());
  QHash<QString, QList<int>> users;
  for (QWidget* control : dialog.Controls()) {
    const QVariant text = control->property("text");
    const QString title = text.isValid() ? text.toString() : control->property("title").toString();
    const QString key = QKeySequence::mnemonic(title).toString();
    if (!key.isEmpty() && qobject_cast<QLineEdit*>(control) == nullptr) {
      users[key].append(ControlIdOf(control));
    }
  }
  for (auto it = users.cbegin(); it != users.cend(); ++it) {
    EXPECT_EQ(it->size() > 1, shared.contains(it.key().back()))
        << qPrintable(it.key()) << ": " << it->value(0) << ", " << it->value(1);
  }
}

}  // namespace
}  // namespace vyn
