// The object list where it is easily wrong: at its first and last row, without rows, where cells
// cannot be changed, between press and release, at every size, and what a repaint costs.
#include <cmath>
#include <functional>

#include <QAccessible>
#include <QImage>

#include "tests/controls/object_list_case.h"

namespace vyn {
namespace {

constexpr qint64 kMillions = 1'400'000;

class ObjectListEdges : public ObjectList {
 protected:
  QScrollBar& Bar() { return *owner.list.findChild<QScrollBar*>(); }

  /// The last row asked for at a repaint of everything.
  qint64 LastRowInView() {
    FirstRow();
    return owner.asked.value(0).first + owner.asked.value(0).second - 1;
  }
  bool IsWhole(qint64 row) {
    const QRect cell = owner.list.CellRect(row, 1);
    return owner.list.contentsRect().contains(cell) && cell.top() >= Title(1).y();
  }
  QImage Picture() { return owner.list.grab().toImage(); }
  QImage Header() {
    const QRect titles = owner.list.TitleRect(0).united(owner.list.TitleRect(3));
    return owner.list.grab(titles).toImage();
  }
  void Disable(std::initializer_list<qint64> rows) {
    owner.disabled = rows;
    owner.list.Update();
  }
};

TEST_F(ObjectListEdges, EveryWayToTheLastOfAMillionEndsThereAndLeadsBack) {
  owner.Open(kMillions);
  const struct {
    const char* way;
    std::function<void()> there, back;
  } ways[] = {
      {"keys", [&] { Press(Qt::Key_End); }, [&] { Press(Qt::Key_Home); }},
      {"bar", [&] { Bar().setValue(Bar().maximum()); }, [&] { Bar().setValue(0); }},
      {"pages of the bar",
       [&] {
         Bar().setValue(Bar().maximum() - 1);
         Bar().triggerAction(QAbstractSlider::SliderPageStepAdd);
       },
       [&] { Bar().triggerAction(QAbstractSlider::SliderToMinimum); }},
      {"wheel",
       [&] {
         for (int i = 0; i < 100; ++i) Turn(-12'000'000);
       },
       [&] {
         for (int i = 0; i < 100; ++i) Turn(12'000'000);
       }},
      {"program", [&] { owner.list.SetValueSelect(kMillions - 1, 1, 1); },
       [&] { owner.list.ScrollTo(0); }},
  };
  for (const auto& [way, there, back] : ways) {
    there();
    EXPECT_EQ(LastRowInView(), kMillions - 1) << way;
    EXPECT_TRUE(IsWhole(kMillions - 1)) << way;
    back();
    EXPECT_EQ(FirstRow(), 0) << way;
    EXPECT_TRUE(IsWhole(0)) << way;
  }
}

TEST_F(ObjectListEdges, PagesMeetWithoutGapAndStopAtTheEnds) {
  owner.Open(1000);
  Press(Qt::Key_Home);
  qint64 row = 0, steps = 0;
  while (row < 999 && ++steps < 1000) {
    const qint64 before = row;
    Press(Qt::Key_PageDown);
    row = owner.list.GetValueSelect();
    EXPECT_TRUE(IsWhole(row));
    EXPECT_TRUE(row == 999 || IsWhole(before + 1)) << "skipped the row behind " << before;
  }
  Press(Qt::Key_PageDown);
  Press(Qt::Key_Down);
  EXPECT_EQ(owner.list.GetValueSelect(), 999);
  Press(Qt::Key_PageUp);
  Press(Qt::Key_Down);
  Press(Qt::Key_Home);
  Press(Qt::Key_PageUp);
  Press(Qt::Key_Up);
  EXPECT_EQ(owner.list.GetValueSelect(), 0);
}

TEST_F(ObjectListEdges, AnEmptyListTakesEveryKeyAndAsksForNoRow) {
  owner.Open(0);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp,
                            Qt::Key_Home, Qt::Key_End, Qt::Key_Space, Qt::Key_V, Qt::Key_3}) {
    Press(key);
  }
  ClickCell(0, 1);
  Turn(-1200);
  EXPECT_EQ(owner.list.GetValueSelect(), -1);
  EXPECT_TRUE(owner.changes.isEmpty() && owner.reasons.isEmpty());
  EXPECT_EQ(LastRowInView(), -1);
  EXPECT_EQ(owner.list.AskRows(5, 3).rowCount, 0);
}

TEST_F(ObjectListEdges, ARowOutsideTheListIsNotSelectedAndNotAsked) {
  owner.Open(10);
  owner.list.SetValueSelect(9, 1, 1);
  owner.list.SetValueSelect(10, 1, 1);
  owner.list.SetValueSelect(-1, 1, 1);
  EXPECT_EQ(owner.list.GetValueSelect(), 9);
  EXPECT_EQ(owner.list.AskRows(8, 50).rowCount, 2);
  EXPECT_EQ(owner.list.AskRows(-4, 1).firstRow, 0);
  EXPECT_FALSE(owner.list.ChangeCell(10, 1));
  EXPECT_FALSE(owner.list.ChangeCell(0, -1));
  EXPECT_FALSE(owner.list.ChangeCell(0, 4));
  EXPECT_FALSE(owner.list.PressAllButton(4));
}

TEST_F(ObjectListEdges, ShowsWithoutSelectingAndSelectsWithoutShowing) {
  owner.Open(1000);
  owner.list.SetValueSelect(400, 0, 1);
  EXPECT_EQ(owner.list.GetValueSelect(), -1);
  EXPECT_TRUE(IsWhole(400));
  owner.list.SetValueSelect(5, 1, 0);
  EXPECT_EQ(owner.list.GetValueSelect(), 5);
  EXPECT_FALSE(IsWhole(5));
  Press(Qt::Key_V);
  EXPECT_TRUE(IsWhole(5)) << "what a key changes is to be seen";
  EXPECT_EQ(owner.changes, QStringList{u"5:1=1"_s});
}

TEST_F(ObjectListEdges, DisabledCellsIgnoreMouseKeysAndScreenReaders) {
  owner.Open(20);
  Disable({1});
  ClickCell(1, 1);
  QTest::mouseDClick(&owner.list, Qt::LeftButton, {}, owner.list.CellRect(1, 1).center());
  Press(Qt::Key_V);
  Press(Qt::Key_Space);
  auto* cell = QAccessible::queryAccessibleInterface(&owner.list)->tableInterface()->cellAt(1, 1);
  EXPECT_TRUE(cell->state().disabled);
  cell->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_TRUE(owner.changes.isEmpty());
  EXPECT_EQ(owner.list.GetValueSelect(), 1) << "its row can still be selected";
  Disable({});
  Press(Qt::Key_Space);
  EXPECT_EQ(owner.changes, QStringList{u"1:1=1"_s});
}

TEST_F(ObjectListEdges, ADisabledListTakesNothing) {
  owner.Open(20);
  owner.list.SetValueSelect(2, 1, 1);
  owner.reasons.clear();
  const QImage before = Picture();
  owner.list.setEnabled(false);
  EXPECT_NE(Picture(), before);
  ClickCell(1, 1);
  QTest::mouseClick(&owner.list, Qt::LeftButton, {}, Title(1));
  EXPECT_TRUE(owner.changes.isEmpty() && owner.pressed.isEmpty() && owner.reasons.isEmpty());
}

TEST_F(ObjectListEdges, ChoicesWrapAndForeignValuesComeBackIntoRange) {
  owner.list.GetHeaderDataItemPtr(kShape)->options.append(u"点"_s);
  owner.list.GetHeaderDataItemPtr(kShape)->optionCount = 3;
  owner.Open(5);
  owner.shape[1] = 7;
  owner.shown[2] = 2;
  for (int i = 0; i < 4; ++i) ClickCell(0, 3);
  ClickCell(1, 3);
  ClickCell(2, 1);
  EXPECT_EQ(owner.changes,
            (QStringList{u"0:3=1"_s, u"0:3=2"_s, u"0:3=0"_s, u"0:3=1"_s, u"1:3=2"_s, u"2:1=0"_s}));
  EXPECT_FALSE(Picture().isNull());
}

TEST_F(ObjectListEdges, OnlyTheLeftButtonWorksAndASecondClickChangesAgain) {
  owner.Open(20);
  const QPoint cell = owner.list.CellRect(3, 1).center();
  for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
    QTest::mouseClick(&owner.list, button, {}, cell);
    QTest::mouseClick(&owner.list, button, {}, Title(1));
  }
  EXPECT_TRUE(owner.reasons.isEmpty());
  QTest::mouseClick(&owner.list, Qt::LeftButton, {}, cell);
  QTest::mouseDClick(&owner.list, Qt::LeftButton, {}, cell);
  EXPECT_EQ(owner.changes.back(), owner.changes.size() % 2 != 0 ? u"3:1=1"_s : u"3:1=0"_s);
  EXPECT_GE(owner.changes.size(), 2);
}

TEST_F(ObjectListEdges, TitlesShowHoverPressAndTheKeyboardsColumn) {
  owner.Open(20);
  owner.list.clearFocus();
  const QImage idle = Header();
  owner.list.setFocus();
  const QImage focused = Header();
  EXPECT_NE(focused, idle);
  Press(Qt::Key_Right);
  EXPECT_NE(Header(), focused);
  Press(Qt::Key_Left);
  EXPECT_EQ(Header(), focused);

  QTest::mouseMove(&owner.list, Title(1));
  QTest::mousePress(&owner.list, Qt::LeftButton, {}, Title(1));
  const QImage pressed = Header();
  EXPECT_NE(pressed, focused);
  QTest::mouseRelease(&owner.list, Qt::LeftButton, {}, Title(0));
  EXPECT_TRUE(owner.pressed.isEmpty());
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&owner.list, &leave);
  EXPECT_EQ(Header(), focused);
}

TEST_F(ObjectListEdges, HoveringAndPressingATitleAskForNoRow) {
  owner.Open(kMillions);
  for (const int column : {1, 3, 0}) {
    QTest::mouseMove(&owner.list, Title(column));
    QTest::mousePress(&owner.list, Qt::LeftButton, {}, Title(column));
    QTest::mouseRelease(&owner.list, Qt::LeftButton, {}, {2, owner.list.height() - 2});
    QCoreApplication::processEvents();
  }
  EXPECT_TRUE(owner.asked.isEmpty());
}

TEST_F(ObjectListEdges, ScrollingAsksForTheRowsInViewAndForNoMore) {
  owner.Open(kMillions);
  const qint64 inView = LastRowInView() + 1;
  for (const int value : {1, 2, 700'000, Bar().maximum()}) {
    owner.asked.clear();
    Bar().setValue(value);
    QCoreApplication::processEvents();
    ASSERT_EQ(owner.asked.size(), 1) << value;
    EXPECT_EQ(owner.asked[0].first, value);
    EXPECT_LE(owner.asked[0].second, inView);
  }
}

TEST_F(ObjectListEdges, GrowingShowsMoreRowsAndNeverLeavesTheEndBehind) {
  owner.Open(100);
  Press(Qt::Key_End);
  const qint64 first = FirstRow();
  owner.resize(320, 400);
  owner.list.resize(320, 400);
  QCoreApplication::processEvents();
  EXPECT_LT(FirstRow(), first);
  EXPECT_EQ(LastRowInView(), 99);
  owner.list.SetValueCountTotal(3, 1);
  EXPECT_EQ(FirstRow(), 0);
  EXPECT_EQ(LastRowInView(), 2);
  EXPECT_EQ(Bar().maximum(), 0);
}

TEST_F(ObjectListEdges, WithoutSwitchesThereIsNoHeaderBarOrSelection) {
  owner.list.HeaderVisible(0);
  owner.list.UseVScrollBar(0);
  owner.list.SelectableDataItem(0);
  owner.list.CalcLayout();
  owner.Open(30);
  EXPECT_EQ(owner.list.TitleRect(1).height(), 0);
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_EQ(owner.list.GetHeaderAreaWidth(), owner.list.contentsRect().width());
  ClickCell(2, 1);
  EXPECT_EQ(owner.changes, QStringList{u"2:1=1"_s});
  EXPECT_EQ(owner.list.GetValueSelect(), -1);
  EXPECT_EQ(owner.reasons, QList<int>{4});
}

TEST_F(ObjectListEdges, TakesFaceNamesUpToTheirLengthAndFallsBack) {
  tagRegFont font = owner.list.GetRegFontDefault(1);
  EXPECT_FALSE(font.faceName.isEmpty());
  font.faceName = QString(40, u'Ｍ');
  font.pointSize = 30.0;
  owner.list.SetRegFont(font);
  EXPECT_EQ(owner.list.GetRegFontDefault(1).faceName, QString(32, u'Ｍ'));
  EXPECT_NE(owner.list.GetRegFontDefault(0).faceName, QString(32, u'Ｍ'));
  const int before = owner.list.CellRect(0, 1).height();
  owner.list.CalcLayout();
  EXPECT_GT(owner.list.CellRect(0, 1).height(), before) << "rows follow their font";
}

TEST_F(ObjectListEdges, ColumnsAreFoundByPositionAndById) {
  EXPECT_EQ(owner.list.GetHeaderDataItemPtr(2), owner.list.GetHeaderDataItemPtr(kMark));
  EXPECT_EQ(owner.list.GetHeaderDataItemPtr(4), nullptr);
  EXPECT_EQ(owner.list.GetHeaderDataItemPtr(-1), nullptr);
  EXPECT_EQ(owner.list.GetHeaderDataItemPtr(quint32{99}), nullptr);
  EXPECT_EQ(owner.list.GetHeaderDataItemPtr(kMark)->imageCount, 2);
}

TEST_F(ObjectListEdges, ColumnsAreAsWideAsTheirTitleCheckMarkOrWidestOption) {
  const QFontMetrics font = owner.list.fontMetrics();
  EXPECT_GE(owner.list.TitleRect(1).width(), font.horizontalAdvance(u"表示"_s));
  EXPECT_GE(owner.list.TitleRect(3).width(), font.horizontalAdvance(u"濃淡"_s));
  owner.list.GetHeaderDataItemPtr(kShape)->options = {u"とても長い選択肢の文字列"_s};
  owner.list.GetHeaderDataItemPtr(kShape)->width = 0;
  owner.list.CalcLayout();
  EXPECT_GE(owner.list.TitleRect(3).width(), font.horizontalAdvance(u"とても長い選択肢の文字列"_s));
  EXPECT_EQ(owner.list.TitleRect(0).width(), 120) << "a width that was written stays";
}

/// Marks, disabled marks, options and the selection must all be told apart, at every scale.
TEST_F(ObjectListEdges, CellsLookLikeWhatTheyHold) {
  owner.Open(5);
  const auto cell = [&](qint64 row, int column) {
    return owner.list.grab(owner.list.CellRect(row, column)).toImage();
  };
  const QImage off = cell(0, 1), outline = cell(0, 3), plain = cell(0, 0);
  EXPECT_EQ(off.width(),
            std::lround(owner.list.CellRect(0, 1).width() * owner.list.devicePixelRatioF()));
  owner.shown[0] = owner.shape[0] = 1;
  owner.list.Update();
  const QImage on = cell(0, 1);
  EXPECT_NE(on, off);
  EXPECT_NE(cell(0, 3), outline);
  Disable({0});
  EXPECT_NE(cell(0, 1), on);
  owner.list.SetValueSelect(0, 1, 1);
  EXPECT_NE(cell(0, 0), plain);
}

TEST_F(ObjectListEdges, ScreenReadersLearnOfTitlesChoicesPlacesAndKeys) {
  owner.Open(kMillions);
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&owner.list);
  QAccessibleTableInterface* table = list->tableInterface();
  EXPECT_EQ(list->child(0)->role(), QAccessible::ColumnHeader);
  EXPECT_EQ(list->child(0)->actionInterface(), nullptr) << "no button for a text column";
  EXPECT_EQ(list->child(2)->actionInterface(), nullptr) << "nor for an indicator";
  EXPECT_EQ(list->child(3)->text(QAccessible::Name), u"形状");
  EXPECT_EQ(list->child(-1), nullptr);
  EXPECT_EQ(table->cellAt(0, 4), nullptr);

  QAccessibleInterface* shape = table->cellAt(2, 3);
  EXPECT_EQ(shape->actionInterface()->keyBindingsForAction({}), QStringList{u"3"_s});
  shape->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(shape->text(QAccessible::Value), u"濃淡");
  EXPECT_EQ(owner.changes, QStringList{u"2:3=1"_s});
  EXPECT_EQ(shape->rect().topLeft(), owner.list.mapToGlobal(owner.list.CellRect(2, 3).topLeft()));

  QAccessibleInterface* last = table->cellAt(kMillions - 1, 1);
  EXPECT_TRUE(last->state().offscreen);
  EXPECT_TRUE(table->selectRow(kMillions - 1));
  EXPECT_FALSE(last->state().offscreen);
  EXPECT_TRUE(last->state().selected);
  EXPECT_EQ(table->selectedRows(), QList<int>{kMillions - 1});
  EXPECT_EQ(table->selectedCells().size(), 4);
  EXPECT_FALSE(table->selectRow(-1));
}

TEST_F(ObjectListEdges, AReaderThatWalksThroughAMillionRowsKeepsFewOfThem) {
  owner.Open(kMillions);
  auto* table = QAccessible::queryAccessibleInterface(&owner.list)->tableInterface();
  const QAccessible::Id first = QAccessible::uniqueId(table->cellAt(0, 1));
  EXPECT_NE(QAccessible::accessibleInterface(first), nullptr);
  for (int row = 0; row < 60'000; ++row) ASSERT_NE(table->cellAt(row, 1), nullptr);
  EXPECT_EQ(QAccessible::accessibleInterface(first), nullptr);
  EXPECT_EQ(table->cellAt(59'999, 0)->text(QAccessible::Name), u"No60000");
}

}  // namespace
}  // namespace vyn
