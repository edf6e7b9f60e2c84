// What mouse and keyboard do to real widgets, and what is seen of them.
#include <gmock/gmock.h>

#include <QMouseEvent>
#include <QSignalSpy>
#include <future>

#include "siblings/controls/controls.h"
#include "tools/vyn-drive/control_facts.h"
#include "tools/vyn-drive/import_progress.h"
#include "tools/vyn-drive/input.h"
#include "tools/vyn-drive/list_control.h"
#include "tools/vyn-drive/script.h"
#include "tools/vyn-drive/watchdog.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;

/// A window in which a test puts its controls.
class Hands : public testing::Test {
 protected:
  template <class Control>
  Control& Add(ControlKind kind = ControlKind::Edit) {
    auto* control = new Control(&window_);
    control->setProperty("controlId", 7);
    control->setProperty("controlKind", static_cast<int>(kind));
    control->resize(120, 60);
    window_.resize(200, 200);
    window_.show();
    control->show();
    Settle();
    return *control;
  }

  QWidget window_;
};

TEST_F(Hands, TypingReplacesTheTextKeyByKey) {
  auto& edit = Add<CVynEdit>();
  edit.setText(u"before"_s);
  QStringList changes;
  QObject::connect(&edit, &QLineEdit::textChanged, &edit,
                   [&](const QString& text) { changes += text; });
  TypeText(edit, u"月A-𠀋"_s);
  EXPECT_EQ(changes, QStringList({u"月"_s, u"月A"_s, u"月A-"_s, u"月A-𠀋"_s}));
}

TEST_F(Hands, PastingReplacesTheTextAtOnceWithinItsLimit) {
  auto& edit = Add<CVynEdit>();
  edit.setText(u"before"_s);
  edit.setMaxLength(3);
  const QSignalSpy changes(&edit, &QLineEdit::textChanged);
  PasteText(edit, u"2026"_s);
  EXPECT_EQ(edit.text(), u"202");
  PasteText(edit, u""_s);
  EXPECT_EQ(edit.text(), u"");
  EXPECT_EQ(changes.size(), 2);
}

TEST_F(Hands, NothingHappensToWhatCannotBeUsed) {
  auto& edit = Add<CVynEdit>();
  edit.setReadOnly(true);
  TypeText(edit, u"a"_s);
  PasteText(edit, u"b"_s);
  edit.setReadOnly(false);
  edit.setEnabled(false);
  TypeText(edit, u"c"_s);
  PasteText(edit, u"d"_s);
  PressKey(edit, u"E"_s);
  edit.setEnabled(true);
  edit.hide();
  TypeText(edit, u"f"_s);
  EXPECT_EQ(edit.text(), u"");

  auto& check = Add<CVynCheckBox>();
  check.setEnabled(false);
  Click(check);
  PressKey(check, u"Space"_s);
  check.setEnabled(true);
  check.hide();
  Click(check);
  EXPECT_FALSE(check.isChecked());
}

TEST_F(Hands, ASpinButtonSendsItsDeltas) {
  auto& spin = Add<CVynSpinButton>();
  QList<std::pair<int, bool>> deltas;
  QObject::connect(&spin, &CVynSpinButton::deltaPressed, &spin,
                   [&](int delta, Qt::KeyboardModifiers modifiers) {
                     deltas.emplaceBack(delta, modifiers.testFlag(Qt::ShiftModifier));
                   });
  PressSpin(spin, true, 2, {});
  PressSpin(spin, false, 1, Qt::ShiftModifier);
  spin.setEnabled(false);
  PressSpin(spin, true, 1, {});
  EXPECT_THAT(deltas, ElementsAre(std::pair(-1, false), std::pair(-1, false), std::pair(1, true)));
}

TEST_F(Hands, ASliderIsDraggedWithinItsRange) {
  auto& slider = Add<QSlider>(ControlKind::Slider);
  slider.setRange(-50, 300);
  const QSignalSpy moves(&slider, &QSlider::sliderMoved);
  const QSignalSpy releases(&slider, &QSlider::sliderReleased);
  MoveSlider(slider, 120);
  EXPECT_EQ(slider.value(), 120);
  MoveSlider(slider, 999);
  EXPECT_EQ(slider.value(), 300);
  slider.setEnabled(false);
  MoveSlider(slider, 0);
  EXPECT_EQ(slider.value(), 300);
  EXPECT_EQ(moves.size(), 2);
  EXPECT_EQ(releases.size(), 2);
}

TEST_F(Hands, RowsAreChosenWithTheMouse) {
  auto& list = Add<CVynListBox>(ControlKind::List);
  for (int row = 0; row < 40; ++row) list.addItem(QString::number(row));
  EXPECT_EQ(AsList(list)->SelectedRow(), -1);
  AsList(list)->Choose(39);
  EXPECT_EQ(AsList(list)->SelectedRow(), 39);
  list.setEnabled(false);
  AsList(list)->Choose(0);
  EXPECT_EQ(list.currentRow(), 39);
  EXPECT_EQ(AsList(list)->RowText(7), u"7");

  auto& combo = Add<QComboBox>(ControlKind::Combo);
  combo.addItems({u"a"_s, u"b"_s, u"c"_s});
  const QSignalSpy chosen(&combo, &QComboBox::activated);
  AsList(combo)->Choose(2);
  EXPECT_EQ(combo.currentIndex(), 2);
  EXPECT_EQ(chosen.size(), 1);
  combo.setEnabled(false);
  AsList(combo)->Choose(0);
  EXPECT_EQ(combo.currentIndex(), 2);

  EXPECT_EQ(AsList(Add<CVynEdit>()), nullptr);
}

/// Writes down the mouse events it gets.
class Canvas final : public QWidget {
 public:
  using QWidget::QWidget;
  QStringList events;

 protected:
  void mousePressEvent(QMouseEvent* event) override { Note(u"press"_s, *event); }
  void mouseMoveEvent(QMouseEvent* event) override { Note(u"move"_s, *event); }
  void mouseReleaseEvent(QMouseEvent* event) override { Note(u"release"_s, *event); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { Note(u"double"_s, *event); }

 private:
  void Note(const QString& word, const QMouseEvent& event) {
    const QPointF position = event.position();
    events +=
        u"%1 %2 %3 %4"_s.arg(word).arg(position.x()).arg(position.y()).arg(event.buttons().toInt());
  }
};

TEST_F(Hands, ADragGoesInTenEqualStepsAlsoBeyondTheEdge) {
  auto& canvas = Add<Canvas>();
  Drag(canvas, {10, 20}, {215, 0});
  EXPECT_EQ(
      canvas.events,
      QStringList({u"press 10 20 1"_s, u"move 31 18 1"_s, u"move 51 16 1"_s, u"move 72 14 1"_s,
                   u"move 92 12 1"_s, u"move 113 10 1"_s, u"move 133 8 1"_s, u"move 154 6 1"_s,
                   u"move 174 4 1"_s, u"move 195 2 1"_s, u"move 215 0 1"_s, u"release 215 0 0"_s}));
}

TEST_F(Hands, ADoubleClickIsAClickAndASecondPress) {
  auto& canvas = Add<Canvas>();
  DoubleClickAt(canvas, {5, 6});
  EXPECT_EQ(canvas.events, QStringList({u"press 5 6 1"_s, u"release 5 6 0"_s, u"double 5 6 1"_s,
                                        u"release 5 6 0"_s}));
}

TEST_F(Hands, KeysAreNamedAsOnTheKeyboard) {
  auto& edit = Add<CVynEdit>();
  edit.setText(u"ab"_s);
  for (const QString& key : {u"Home"_s, u"Shift+X"_s, u"y"_s, u"PgDown"_s, u"Shift+End"_s, u"Del"_s,
                             u"Ctrl+A"_s, u"Ctrl+C"_s, u"Right"_s, u"Ctrl+V"_s}) {
    PressKey(edit, key);
  }
  EXPECT_EQ(edit.text().toStdString(), "XyXy");
  EXPECT_THROW(PressKey(edit, u"Elbow"_s), ScriptError);
  EXPECT_THROW(PressKey(edit, u"Hyper+A"_s), ScriptError);
}

TEST_F(Hands, ControlsAreDescribed) {
  auto& slider = Add<QSlider>(ControlKind::Slider);
  slider.setRange(-50, 300);
  slider.setValue(12);
  EXPECT_EQ(DescribeControl(slider), u"control 7: slider \"\" 12 enabled");
  EXPECT_EQ(RangeOf(slider), std::pair(-50, 300));
  auto& edit = Add<CVynEdit>(ControlKind::Edit);
  edit.setText(u"5 \"x\""_s);
  edit.setReadOnly(true);
  edit.hide();
  EXPECT_EQ(DescribeControl(edit), uR"(control 7: edit "5 \"x\"" - enabled readonly hidden)");
  EXPECT_FALSE(RangeOf(edit));
  auto& combo = Add<QComboBox>(ControlKind::Combo);
  combo.addItems({u"すべて"_s, u"なし"_s});
  combo.setCurrentIndex(1);
  window_.setEnabled(false);
  EXPECT_EQ(DescribeControl(combo), u"control 7: combo \"なし\" 1 disabled");
  auto& spin = Add<CVynSpinButton>(ControlKind::Spin);
  EXPECT_FALSE(RangeOf(spin));
  spin.SetRange(0, 9);
  EXPECT_EQ(RangeOf(spin), std::pair(0, 9));
}

TEST_F(Hands, AnImportIsStoppedOnceAtItsPercentage) {
  auto& bar = Add<QProgressBar>(ControlKind::Progress);
  auto& stop = Add<CVynButton>(ControlKind::Button);
  const QSignalSpy presses(&stop, &QPushButton::clicked);
  window_.setWindowTitle(u"インポート中"_s);
  ImportProgress progress;
  EXPECT_THROW(progress.Report(), ScriptError);
  progress.Attach(window_, bar, stop, 40);
  bar.setValue(39);
  EXPECT_EQ(presses.size(), 0);
  bar.setValue(45);
  bar.setValue(46);
  EXPECT_EQ(presses.size(), 1);
  EXPECT_EQ(progress.Report(), u"progress: \"インポート中\" 46");
}

TEST(AWatchdog, BarksWhenNothingHappens) {
  std::promise<void> barked;
  const Watchdog watchdog(std::chrono::milliseconds(1), [&] { barked.set_value(); });
  barked.get_future().wait();
}

}  // namespace
}  // namespace vyn::drive
