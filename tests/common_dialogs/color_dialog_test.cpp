// The colour-and-font dialog: what it asks, sends to both engines and puts back.
#include "siblings/common_dialogs/color_dialog.h"

#include <gtest/gtest.h>

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include "tests/core_link/person.h"
#include "tests/small_bodies/answering_engine.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

class ColorDialog : public testing::Test {
 protected:
  ColorDialog() {
    first.values = {{u"Solar.Comet.ID.Color"_s, u"#80ffc0"_s}, {u"Solar.Comet.ID.Font"_s, Font(9)}};
  }

  static QString Font(int points) {
    return u"%1,%2"_s.arg(QFontComboBox().currentFont().family()).arg(points);
  }
  static QString Changed(const QString& property, const QString& value) {
    return u"Solar.Comet.ID.%1 = %2; Show Sky"_s.arg(property, value);
  }
  /// Opens it, has `act` done in it and presses a button.
  int Run(QDialogButtonBox::StandardButton button, std::function<void(QDialog&)> act = {}) {
    CSetColorDialog dialog(&first, &second, u"彗星"_s, u"1P"_s, u"Solar.Comet.ID.Color"_s, nullptr);
    Person person({[&](QWidget* window) {
      if (act) act(*static_cast<QDialog*>(window));
      window->findChild<QDialogButtonBox*>()->button(button)->click();
    }});
    return dialog.DoModal();
  }

  AnsweringEngine first, second;
};

TEST_F(ColorDialog, AsksTheFirstEngineAndSendsNothingByItself) {
  const int ok = Run(QDialogButtonBox::Ok, [](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<QSpinBox*>()->value(), 9);
    QStringList labels;
    for (const auto* label : dialog.findChildren<QLabel*>()) labels.append(label->text());
    EXPECT_TRUE(labels.contains(u"彗星"_s) && labels.contains(u"1P"_s));
  });
  EXPECT_EQ(ok, 1);
  EXPECT_EQ(Run(QDialogButtonBox::Cancel), 2);
  EXPECT_EQ(first.queries.first(2),
            (QStringList{u"? Solar.Comet.ID.Color"_s, u"? Solar.Comet.ID.Font"_s}));
  EXPECT_TRUE(first.changes.isEmpty() && second.changes.isEmpty() && second.queries.isEmpty());
}

TEST_F(ColorDialog, CancelPutsBackOnlyWhatWasChanged) {
  Run(QDialogButtonBox::Cancel,
      [](QDialog& dialog) { dialog.findChild<QSpinBox*>()->setValue(12); });
  const QStringList sent = {Changed(u"Font"_s, Font(12)), Changed(u"Font"_s, Font(9))};
  EXPECT_EQ(first.changes, sent);
  EXPECT_EQ(second.changes, sent);
}

TEST_F(ColorDialog, OkKeepsTheFontAndAnUnsetOneGoesBackToUnset) {
  Run(QDialogButtonBox::Ok, [](QDialog& dialog) { dialog.findChild<QSpinBox*>()->setValue(500); });
  EXPECT_EQ(first.TakeChanges(), QStringList{Changed(u"Font"_s, Font(72))});
  first.values.clear();
  Run(QDialogButtonBox::Cancel,
      [](QDialog& dialog) { dialog.findChild<QSpinBox*>()->setValue(20); });
  EXPECT_EQ(first.changes.last(), Changed(u"Font"_s, u"\"\""_s));
}

TEST_F(ColorDialog, ShowsAColourWhileItIsChosenAndTheOldOneAfterwards) {
  CSetColorDialog dialog(&first, &second, {}, {}, u"Solar.Comet.ID.Color"_s, nullptr);
  Person person({[](QWidget* window) { window->findChild<QPushButton*>()->click(); },
                 [](QWidget* window) {
                   auto* chooser = qobject_cast<QColorDialog*>(window);
                   ASSERT_NE(chooser, nullptr);
                   EXPECT_EQ(chooser->currentColor(), QColor(0x80, 0xff, 0xc0));
                   chooser->setCurrentColor(QColor(1, 2, 3));
                   chooser->reject();
                 },
                 [](QWidget* window) { static_cast<QDialog*>(window)->accept(); }});
  EXPECT_EQ(dialog.DoModal(), 1);
  const QStringList sent = {Changed(u"Color"_s, u"#010203"_s), Changed(u"Color"_s, u"#80ffc0"_s)};
  EXPECT_EQ(first.changes, sent);
  EXPECT_EQ(second.changes, sent);
}

TEST(ColorDialogAlone, WorksWithoutEngines) {
  CSetColorDialog dialog(nullptr, nullptr, {}, {}, u"Solar.Sun.Name.Color"_s, nullptr);
  Person person({[](QWidget* window) {
    window->findChild<QSpinBox*>()->setValue(30);
    static_cast<QDialog*>(window)->reject();
  }});
  EXPECT_EQ(dialog.DoModal(), 2);
}

}  // namespace
}  // namespace vyn
