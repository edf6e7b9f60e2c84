// An object list with an owner that answers from a formula, and a person before it.
#pragma once

#include <gtest/gtest.h>

#include <QSet>
#include <QTest>
#include <QWheelEvent>

#include "siblings/controls/object_list_box.h"

namespace vyn {

using namespace Qt::StringLiterals;

inline constexpr int kControl = 1805;
inline constexpr quint32 kName = 10, kShown = 11, kMark = 12, kShape = 13;

/// Answers like a dialog whose objects are all off at first.
class Owner final : public QWidget {
 public:
  Owner() : list(this) {
    list.Attach(kControl, this);
    list.UseVScrollBar(1);
    list.HeaderVisible(1);
    list.SelectableDataItem(1);
    list.AutoAdjustDataItemHeight(1);
    list.SetHeaderCount(4);
    Declare(0, kName, ObjectColumnKind::Text, u"名称"_s, 0);
    Declare(1, kShown, ObjectColumnKind::Check, u"表示"_s, 'V');
    Declare(2, kMark, ObjectColumnKind::Indicator, u"等級限定"_s, 0);
    Declare(3, kShape, ObjectColumnKind::Choice, u"形状"_s, '3');
    list.GetHeaderDataItemPtr(kShape)->options = {u"輪郭"_s, u"濃淡"_s};
    list.GetHeaderDataItemPtr(kShape)->optionCount = 2;
    list.LoadItemBitmap(kMark, 13200, 2);
    list.GetHeaderDataItemPtr(kName)->width = 120;
    list.CalcLayout();
    list.resize(320, 240);
  }

  /// Shows the window, so that rows are drawn.
  void Open(qint64 count) {
    list.SetValueCountTotal(count, 0);
    resize(list.size());
    show();
    QApplication::setActiveWindow(this);
    list.setFocus();
    QCoreApplication::processEvents();
    asked.clear();
  }

  void customEvent(QEvent* event) override {
    ASSERT_EQ(event->type(), ObjectListMessage());
    const auto* message = static_cast<CVynMessage*>(event);
    auto& record = *static_cast<tagUpdateInfo*>(message->lParam);
    EXPECT_EQ(record.controlId, static_cast<quint32>(kControl));
    const auto reason = static_cast<ObjectListReason>(message->wParam);
    if (reason == ObjectListReason::Fill) return Fill(record);
    reasons.append(static_cast<int>(message->wParam));
    if (reason == ObjectListReason::CellChanged) TakeCell(record);
    if (reason == ObjectListReason::AllButton) pressed.append(static_cast<int>(record.columnIndex));
  }

  CVynListBoxAObj list;
  QList<std::pair<qint64, qint64>> asked;  ///< first row and count of every filling
  QList<int> reasons;
  QList<int> pressed;
  QStringList changes;
  QHash<qint64, int> shown, shape;
  QSet<qint64> disabled;

 private:
  void Declare(int index, quint32 id, ObjectColumnKind kind, const QString& title, int key) {
    tagHeaderDataItem& column = *list.GetHeaderDataItemPtr(index);
    column.id = id;
    column.kind = kind;
    column.text = title;
    column.key = key;
    column.padding = 10;
    column.rowHeading = kind == ObjectColumnKind::Text ? 1 : -1;
    column.hasAllButton =
        kind == ObjectColumnKind::Check || kind == ObjectColumnKind::Choice ? 1 : 0;
  }

  void Fill(tagUpdateInfo& record) {
    asked.append({record.firstRow, record.rowCount});
    for (qint64 row = 0; row < record.rowCount; ++row) {
      const qint64 object = record.firstRow + row;
      record.Column(0).Cell(row).text = u"No"_s + QString::number(object + 1);
      record.Column(0).Cell(row).textFlag = 1;
      record.Column(1).Cell(row).value = shown.value(object);
      record.Column(1).Cell(row).status = disabled.contains(object) ? kCellDisabled : kCellNormal;
      record.Column(3).Cell(row).value = shape.value(object);
    }
  }

  void TakeCell(tagUpdateInfo& record) {
    const qint64 object = record.firstRow + record.rowIndex;
    const int value = record.Column(record.columnIndex).Cell(record.rowIndex).value;
    (record.columnIndex == 1 ? shown : shape)[object] = value;
    changes.append(u"%1:%2=%3"_s.arg(object).arg(record.columnIndex).arg(value));
  }
};

class ObjectList : public testing::Test {
 protected:
  void ClickCell(qint64 row, int column) {
    owner.list.ScrollTo(row);
    QCoreApplication::processEvents();
    QTest::mouseClick(&owner.list, Qt::LeftButton, {}, owner.list.CellRect(row, column).center());
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(&owner.list, key, modifiers);
  }
  qint64 FirstRow() {
    owner.asked.clear();
    owner.list.Update();
    QCoreApplication::processEvents();
    return owner.asked.value(0).first;
  }

  /// Turns the wheel over the rows, away from the person for a positive angle.
  void Turn(int eighthsOfDegree) {
    QWheelEvent event({50, 100}, owner.list.mapToGlobal(QPointF(50, 100)), {}, {0, eighthsOfDegree},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&owner.list, &event);
  }
  QPoint Title(int column) { return owner.list.TitleRect(column).center(); }

  Owner owner;
};

}  // namespace vyn
