// The custom controls under a person's hands.
#include "siblings/controls/controls.h"

#include <gtest/gtest.h>

#include <QButtonGroup>
#include <QClipboard>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// A window in front, so that keys and shortcuts arrive.
class Window final : public QWidget {
 public:
  Window() { setLayout(new QVBoxLayout); }

  template <class Control>
  Control* Add(Control* control) {
    layout()->addWidget(control);
    return control;
  }
  void Open() {
    show();
    QApplication::setActiveWindow(this);
    QCoreApplication::processEvents();
  }
};

void Turn(QWidget* widget, int angle, Qt::KeyboardModifiers modifiers = {}) {
  QWheelEvent event({3, 3}, widget->mapToGlobal(QPointF(3, 3)), {}, {0, angle}, Qt::NoButton,
                    modifiers, Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(widget, &event);
}

class SpinButton : public testing::Test {
 protected:
  SpinButton() {
    spin->SetBuddy(edit);
    QObject::connect(spin, &CVynSpinButton::deltaPressed,
                     [this](int delta, Qt::KeyboardModifiers modifiers) {
                       deltas.append(delta);
                       withShift.append(modifiers.testFlag(Qt::ShiftModifier));
                     });
    window.Open();
  }

  Window window;
  CVynEdit* edit = window.Add(new CVynEdit);
  CVynSpinButton* spin = window.Add(new CVynSpinButton);
  QList<int> deltas;
  QList<bool> withShift;
};

TEST_F(SpinButton, UpIsMinusOneByMouseKeysAndWheel) {
  QTest::mouseClick(spin, Qt::LeftButton, {}, spin->UpRect().center());
  QTest::mouseClick(spin, Qt::LeftButton, Qt::ShiftModifier, spin->DownRect().center());
  QTest::keyClick(edit, Qt::Key_Up, Qt::ShiftModifier);
  QTest::keyClick(edit, Qt::Key_Down);
  Turn(edit, 120);
  Turn(edit, -120, Qt::ShiftModifier);
  EXPECT_EQ(deltas, (QList<int>{-1, 1, -1, 1, -1, 1}));
  EXPECT_EQ(withShift, (QList<bool>{false, true, true, false, false, true}));
}

TEST_F(SpinButton, ItsHalvesMeetAndFillIt) {
  for (const int height : {21, 22, 40}) {
    spin->resize(20, height);
    EXPECT_EQ(spin->UpRect().bottom() + 1, spin->DownRect().top());
    EXPECT_EQ(spin->UpRect().united(spin->DownRect()), spin->rect());
  }
}

TEST_F(SpinButton, OtherButtonsAndKeysAreNotItsOwn) {
  QTest::mouseClick(spin, Qt::RightButton, {}, spin->UpRect().center());
  QTest::keyClicks(edit, u"12"_s);
  QTest::keyClick(edit, Qt::Key_Left);
  Turn(edit, 0);
  EXPECT_TRUE(deltas.isEmpty());
  EXPECT_EQ(edit->text(), u"12");
}

TEST_F(SpinButton, DisabledItLeavesTheKeysToTheEdit) {
  spin->setEnabled(false);
  QTest::mouseClick(spin, Qt::LeftButton, {}, spin->UpRect().center());
  QTest::keyClick(edit, Qt::Key_Up);
  Turn(edit, 120);
  EXPECT_TRUE(deltas.isEmpty());
}

TEST_F(SpinButton, ATouchPadTurnsItOnceANotch) {
  for (int i = 0; i < 11; ++i) Turn(edit, 15);
  EXPECT_EQ(deltas, QList<int>{-1});
  Turn(edit, -360);
  EXPECT_EQ(deltas, (QList<int>{-1, 1, 1}));
}

TEST(GroupBox, MnemonicGoesToTheFirstControlThatTakesIt) {
  Window window;
  auto* group = window.Add(new CVynGroupBox(u"軌道(&O)"_s));
  auto* first = window.Add(new CVynCheckBox(u"一"_s));
  auto* second = window.Add(new CVynCheckBox(u"二"_s));
  auto* other = window.Add(new CVynEdit);
  group->SetFirstControl(first);
  window.Open();
  const auto press = [&] {
    other->setFocus();
    QTest::keyClick(&window, Qt::Key_O, Qt::AltModifier);
    return QApplication::focusWidget();
  };
  EXPECT_EQ(press(), first);
  first->setEnabled(false);
  EXPECT_EQ(press(), second);
  group->setEnabled(false);
  EXPECT_TRUE(second->isEnabled()) << "a frame does not disable what it frames";
}

TEST(RadioButton, ArrowsWalkRoundTheGroupPastDisabledOnes) {
  Window window;
  QButtonGroup group;
  QList<CVynRadioButton*> radios;
  for (int i = 0; i < 3; ++i) {
    radios.append(window.Add(new CVynRadioButton(QString::number(i))));
    radios[i]->setAutoExclusive(false);
    group.addButton(radios[i], i);
  }
  window.Open();
  radios[1]->setEnabled(false);
  radios[0]->setChecked(true);
  radios[0]->setFocus();
  QSignalSpy clicked(&group, &QButtonGroup::idClicked);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Up, Qt::Key_Left}) {
    QTest::keyClick(QApplication::focusWidget(), key);
  }
  EXPECT_EQ(clicked, (QList<QVariantList>{{2}, {0}, {2}, {0}}));
  EXPECT_EQ(group.checkedId(), 0);
  EXPECT_EQ(QApplication::focusWidget(), radios[0]);
}

TEST(Edit, KnowsWhatIsTypedFromWhatIsPasted) {
  Window window;
  auto* edit = window.Add(new CVynEdit);
  window.Open();
  edit->setFocus();
  QList<bool> typed;
  QObject::connect(edit, &QLineEdit::textChanged, [&] { typed.append(edit->IsBeingTyped()); });
  QTest::keyClick(edit, Qt::Key_1);
  QGuiApplication::clipboard()->setText(u"23"_s);
  QTest::keyClick(edit, Qt::Key_V, Qt::ControlModifier);
  edit->setText(u"4"_s);
  QTest::keyClick(edit, Qt::Key_Backspace);
  EXPECT_EQ(typed, (QList<bool>{true, false, false, true}));
}

TEST(ListBox, TheFirstArrowSelectsAndTheNextMoves) {
  Window window;
  auto* list = window.Add(new CVynListBox);
  window.Open();
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(list->currentRow(), -1);
  list->addItems({u"一"_s, u"二"_s});
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(list->currentRow(), 0);
  EXPECT_EQ(list->selectedItems().size(), 1);
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(list->currentRow(), 1);
  list->clearSelection();
  QTest::keyClick(list, Qt::Key_Up);
  EXPECT_EQ(list->currentRow(), 1);
}

TEST(Button, APictureReplacesTheTextButNotTheName) {
  Window window;
  auto* button = window.Add(new CVynButton(u"後方検索"_s));
  window.Open();
  QPixmap picture(14, 18);
  picture.fill(Qt::red);
  button->SetPicture(picture);
  QCoreApplication::processEvents();
  EXPECT_EQ(button->sizeHint(), QSize(24, 28));
  const auto color = [&] {
    const QImage image = button->grab().toImage();
    return image.pixelColor(image.rect().center());
  };
  EXPECT_EQ(color(), QColor(Qt::red));
  button->setEnabled(false);
  EXPECT_NE(color(), QColor(Qt::red));
  EXPECT_EQ(button->text(), u"後方検索");
}

TEST(Button, WearsTheColoursOfItsDialog) {
  Window window;
  auto* button = window.Add(new CVynButton(u"色"_s));
  button->SetColors(0xC4C4C4, 0x6B6B6B, 0xC4C4C4);
  window.Open();
  const QImage image = button->grab().toImage();
  EXPECT_EQ(image.pixelColor(4, image.height() / 2), QColor(0xC4, 0xC4, 0xC4));
}

}  // namespace
}  // namespace vyn
