// The object list: a row for every object of a class, under a header with a button for all.
#pragma once

#include <QFrame>
#include <QScrollBar>

#include "core_link/export.h"
#include "siblings/controls/object_list_layout.h"

namespace vyn {

/// A virtual list. It holds no objects, only the cells of the rows in view, for which it asks its
/// owner at every repaint of the rows. What the user changes it tells the owner, by the message
/// ObjectListMessage(). At most 2147483647 rows.
///
/// Keyboard: arrows, page keys, Home and End move the selection; left and right choose the column
/// that the blank changes in the selected row; a column's key code changes its cell there; Shift
/// with the blank presses that column's "all" button.
class VYN_EXPORT CVynListBoxAObj final : public QFrame {
  Q_OBJECT

 public:
  explicit CVynListBoxAObj(QWidget* parent = nullptr);

  /// From now on `owner` is called for the list with this control number.
  void Attach(int id, QWidget* owner);

  // Switches, 0 or 1, to be set before the header is declared.

  void UseVScrollBar(int flag);
  void HeaderVisible(int flag) { hasHeader_ = flag != 0; }
  void SelectableDataItem(int flag) { isSelectable_ = flag != 0; }
  /// Rows as high as their font needs, not only as high as a check mark.
  void AutoAdjustDataItemHeight(int flag) { heightFollowsFont_ = flag != 0; }

  /// The font of the rows: that in use, or, for 0, that of the dialog.
  tagRegFont GetRegFontDefault(int inUse) const;
  void SetRegFont(const tagRegFont& font);

  // The header.

  void SetHeaderCount(int count);
  /// The column at a position; null when there is none. Stays the list's.
  tagHeaderDataItem* GetHeaderDataItemPtr(int index);
  /// The column with this id; null when there is none.
  tagHeaderDataItem* GetHeaderDataItemPtr(quint32 id);
  /// Gives an indicator column its images.
  void LoadItemBitmap(quint32 id, int bitmap, int imageCount);
  /// Lays the columns out: those whose width is 0 get what they need.
  void CalcLayout();
  /// The width that the columns have together.
  int GetHeaderAreaWidth() const;

  // The rows.

  /// The number of objects. Keeps the position and, while its row is there, the selection when
  /// `keep` is 1; otherwise begins at the top without a selection.
  void SetValueCountTotal(qint64 count, int keep);
  qint64 GetValueCountTotal() const { return total_; }
  /// The selected row, -1 for none.
  qint64 GetValueSelect() const { return selected_; }
  /// Selects a row (`select` 1) and brings it into view (`scroll` 1).
  void SetValueSelect(qint64 row, int select, int scroll);
  /// Has the rows drawn anew, from what the owner then says.
  void Update();

  /// Any rows as the owner fills them, whether in view or not; fewer where the list ends.
  tagUpdateInfo AskRows(qint64 firstRow, qint64 count) const;

  const std::vector<tagHeaderDataItem>& Columns() const { return layout_.columns; }
  /// The position of the column that the keyboard changes; -1 when no column can be changed.
  int CurrentColumn() const { return currentColumn_; }
  void ScrollTo(qint64 row);
  /// Where a cell or title stands, in the list's pixels; rows out of view are above or below it.
  QRect CellRect(qint64 row, int column) const;
  QRect TitleRect(int column) const;

  /// Changes a cell as a click on it does: the other state, the next option. False when it cannot
  /// be changed.
  bool ChangeCell(qint64 row, int column);
  /// Presses a column's "all" button. False when it has none.
  bool PressAllButton(int column);

  void SetPreferredSize(const QSize& size) { preferredSize_ = size; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 Q_SIGNALS:
  /// GetHeaderAreaWidth() has changed.
  void headerAreaWidthChanged();

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QRect HeaderRect() const;
  QRect RowsRect() const;
  int WholeRows() const;
  qint64 RowsInView() const;
  qint64 RowAt(int y) const;

  tagUpdateInfo NewBatch(qint64 firstRow, qint64 count) const;
  void Send(ObjectListReason reason, tagUpdateInfo& batch) const;
  void FillBatch();
  /// The batch when it is that of the rows in view, filled now if need be.
  tagUpdateInfo& CurrentBatch();

  void ArrangeScrollBar();
  void UpdateScrollRange();
  void FirstRowChanged();
  void PaintHeader(class ObjectListPainter& painter);
  void PaintRows(class ObjectListPainter& painter);

  void SelectRow(qint64 row);
  bool MoveSelection(int key);
  void MoveColumn(int step);
  bool ChangeByKey(int key);
  bool IsChangeable(int column) const;
  void HoverTitle(int column);
  int ButtonAt(const QPoint& point) const;
  void PressRow(const QPoint& point);
  void TellFocus();

  QWidget* owner_ = nullptr;
  quint32 controlId_ = 0;
  ObjectListLayout layout_;
  QScrollBar* bar_;
  tagRegFont regFont_;
  QFont cellFont_;
  QSize preferredSize_;
  tagUpdateInfo batch_;
  bool isBatchCurrent_ = false;
  bool hasHeader_ = true;
  bool isSelectable_ = false;
  bool heightFollowsFont_ = false;
  qint64 total_ = 0;
  qint64 selected_ = -1;
  int areaWidth_ = 0;
  int currentColumn_ = -1;
  int hoveredColumn_ = -1;
  int pressedColumn_ = -1;
  int wheelRest_ = 0;
};

}  // namespace vyn
