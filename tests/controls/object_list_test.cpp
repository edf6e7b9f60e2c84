// The object list with an owner that answers from a formula: what it asks for, what mouse, wheel
// and keyboard do, and what screen readers learn.
#include <QAccessible>

#include "tests/controls/object_list_case.h"

namespace vyn {
namespace {

TEST(UpdateInfo, RefusesWhatIsOutsideItsCounts) {
  tagUpdateInfo record;
  record.rowCount = 2;
  record.AddColumn({.id = 4, .kind = ObjectColumnKind::Check});
  EXPECT_NO_THROW(record.Column(0).Cell(1));
  EXPECT_THROW(record.Column(1), std::invalid_argument);
  EXPECT_THROW(record.Column(-1), std::invalid_argument);
  EXPECT_THROW(record.Column(0).Cell(2), std::invalid_argument);
  EXPECT_THROW(record.Column(0).Cell(-1), std::invalid_argument);
}

TEST_F(ObjectList, AsksForTheRowsInViewOnceARepaint) {
  owner.Open(1'400'000);
  owner.list.Update();
  owner.list.CalcLayout();
  owner.list.Update();
  QCoreApplication::processEvents();
  ASSERT_EQ(owner.asked.size(), 1);
  EXPECT_EQ(owner.asked[0].first, 0);
  EXPECT_GE(owner.asked[0].second, 8);
  EXPECT_LE(owner.asked[0].second, 20);
}

TEST_F(ObjectList, ReachesEveryRowOfAMillionExactly) {
  owner.Open(1'400'000);
  owner.list.SetValueSelect(1'399'999, 1, 1);
  QCoreApplication::processEvents();
  const auto [first, count] = owner.asked.back();
  EXPECT_EQ(owner.list.GetValueSelect(), 1'399'999);
  EXPECT_GE(first + count, 1'400'000);
  for (const qint64 row : {0, 1, 699'999, 1'234'567}) {
    owner.list.ScrollTo(row);
    EXPECT_TRUE(owner.list.rect().contains(owner.list.CellRect(row, 0))) << row;
    EXPECT_LE(FirstRow(), row);
  }
  auto* bar = owner.list.findChild<QScrollBar*>();
  bar->setValue(777'777);
  EXPECT_EQ(FirstRow(), 777'777);
}

TEST_F(ObjectList, KeepsPositionAndSelectionOnlyWhenAsked) {
  owner.Open(1000);
  owner.list.SetValueSelect(500, 1, 1);
  const qint64 first = FirstRow();
  owner.list.SetValueCountTotal(999, 1);
  EXPECT_EQ(FirstRow(), first);
  EXPECT_EQ(owner.list.GetValueSelect(), 500);
  owner.list.SetValueCountTotal(400, 1);
  EXPECT_EQ(owner.list.GetValueSelect(), -1);
  owner.list.SetValueCountTotal(400, 0);
  EXPECT_EQ(FirstRow(), 0);
}

TEST_F(ObjectList, ClicksChangeChecksAndChoicesAndSelectTheirRow) {
  owner.Open(50);
  owner.disabled = {2};
  ClickCell(1, 1);
  ClickCell(1, 1);
  ClickCell(40, 3);
  ClickCell(40, 3);
  ClickCell(2, 1);
  ClickCell(3, 0);
  ClickCell(4, 2);
  EXPECT_EQ(owner.changes, (QStringList{u"1:1=1"_s, u"1:1=0"_s, u"40:3=1"_s, u"40:3=0"_s}));
  EXPECT_EQ(owner.list.GetValueSelect(), 4);
}

TEST_F(ObjectList, KeysMoveTheSelectionAndChangeItsRow) {
  owner.Open(1000);
  Press(Qt::Key_Down);
  EXPECT_EQ(owner.list.GetValueSelect(), 0);
  Press(Qt::Key_Up);
  Press(Qt::Key_Down);
  Press(Qt::Key_V);
  Press(Qt::Key_3);
  Press(Qt::Key_Space);
  Press(Qt::Key_Right);
  Press(Qt::Key_Space);
  EXPECT_EQ(owner.changes, (QStringList{u"1:1=1"_s, u"1:3=1"_s, u"1:1=0"_s, u"1:3=0"_s}));
  Press(Qt::Key_End);
  EXPECT_EQ(owner.list.GetValueSelect(), 999);
  Press(Qt::Key_PageUp);
  const qint64 page = 999 - owner.list.GetValueSelect();
  EXPECT_GE(page, 5);
  Press(Qt::Key_PageUp);
  EXPECT_EQ(owner.list.GetValueSelect(), 999 - 2 * page);
  owner.list.ScrollTo(0);
  Press(Qt::Key_V);
  EXPECT_EQ(owner.changes.back(), u"%1:1=1"_s.arg(999 - 2 * page));
  Press(Qt::Key_Home);
  EXPECT_EQ(FirstRow(), 0);
  const qsizetype changes = owner.changes.size();
  Press(Qt::Key_V, Qt::ControlModifier);
  Press(Qt::Key_X);
  EXPECT_EQ(owner.changes.size(), changes);
}

TEST_F(ObjectList, TellsOfASelectionOnlyWhenItIsAnother) {
  owner.Open(30);
  owner.list.SetValueSelect(3, 1, 1);
  owner.list.SetValueSelect(3, 1, 1);
  ClickCell(3, 0);
  owner.list.SetValueSelect(30, 1, 1);
  EXPECT_EQ(owner.reasons, QList<int>{5});
}

TEST_F(ObjectList, AllButtonsAreButtons) {
  owner.Open(30);
  QTest::mouseClick(&owner.list, Qt::LeftButton, {}, Title(1));
  QTest::mouseClick(&owner.list, Qt::LeftButton, {}, Title(0));
  QTest::mouseClick(&owner.list, Qt::LeftButton, {}, Title(2));
  QTest::mousePress(&owner.list, Qt::LeftButton, {}, Title(3));
  QTest::mouseRelease(&owner.list, Qt::LeftButton, {}, Title(1));
  EXPECT_EQ(owner.pressed, QList<int>{1});
  Press(Qt::Key_Right);
  Press(Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_EQ(owner.pressed, (QList<int>{1, 3}));
  EXPECT_TRUE(owner.changes.isEmpty());
}

TEST_F(ObjectList, WheelTurnsRowsAndKeepsWhatIsLessThanALine) {
  owner.Open(1000);
  Turn(-120);
  const qint64 notch = FirstRow();
  EXPECT_EQ(notch, QApplication::wheelScrollLines());
  for (int i = 0; i < 4; ++i) Turn(-30);
  EXPECT_EQ(FirstRow(), 2 * notch);
  Turn(100'000);
  EXPECT_EQ(FirstRow(), 0);
}

TEST_F(ObjectList, GivesTheWidthThatIsLeftAfterTheScrollBar) {
  owner.Open(10);
  int changes = 0;
  QObject::connect(&owner.list, &CVynListBoxAObj::headerAreaWidthChanged, [&] { ++changes; });
  const int before = owner.list.GetHeaderAreaWidth();
  owner.list.resize(420, 240);
  EXPECT_EQ(owner.list.GetHeaderAreaWidth(), before + 100);
  owner.list.resize(420, 300);
  EXPECT_EQ(changes, 1);
  EXPECT_LT(before, 320 - owner.list.findChild<QScrollBar*>()->width());
  EXPECT_GE(owner.list.minimumSizeHint().width(), owner.list.TitleRect(3).right() - 120);
}

TEST_F(ObjectList, ScreenReadersFindRowsColumnsAndActions) {
  owner.Open(1'400'000);
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&owner.list);
  ASSERT_NE(list, nullptr);
  QAccessibleTableInterface* table = list->tableInterface();
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->rowCount(), 1'400'000);
  EXPECT_EQ(table->columnDescription(1), u"表示");
  EXPECT_EQ(table->cellAt(1'000'000, 0)->text(QAccessible::Name), u"No1000001");
  EXPECT_EQ(table->cellAt(0, 3)->text(QAccessible::Value), u"輪郭");

  QAccessibleInterface* cell = table->cellAt(7, 1);
  EXPECT_EQ(cell->role(), QAccessible::CheckBox);
  EXPECT_EQ(cell->text(QAccessible::Name), u"表示");
  EXPECT_EQ(cell->tableCellInterface()->rowHeaderCells().value(0)->text(QAccessible::Name), u"No8");
  EXPECT_FALSE(cell->state().checked);
  cell->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(owner.changes, QStringList{u"7:1=1"_s});
  EXPECT_TRUE(cell->state().checked);
  EXPECT_EQ(cell->text(QAccessible::Value), u"オン");

  list->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(owner.pressed, QList<int>{1});
  EXPECT_EQ(list->indexOfChild(cell), 8 * 4 + 1);
  owner.list.SetValueSelect(7, 1, 1);
  EXPECT_EQ(list->focusChild(), cell);
  owner.list.SetValueCountTotal(3, 0);
  EXPECT_EQ(table->cellAt(7, 1), nullptr);
}

TEST(BrokenTitle, BreaksWhereItReadsWell) {
  EXPECT_EQ(BrokenTitle(u"名称(日本語)"_s, 2), (QStringList{u"名称"_s, u"(日本語)"_s}));
  EXPECT_EQ(BrokenTitle(u"軌道タイプ"_s, 2), (QStringList{u"軌道"_s, u"タイプ"_s}));
  EXPECT_EQ(BrokenTitle(u"移動量"_s, 2), QStringList{u"移動量"_s});
  EXPECT_EQ(BrokenTitle(u"イオンテイル"_s, 1), QStringList{u"イオンテイル"_s});
}

}  // namespace
}  // namespace vyn
