#include "siblings/controls/object_list_box.h"

#include <algorithm>

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>

#include "siblings/controls/object_list_accessible.h"
#include "siblings/controls/object_list_painter.h"

namespace vyn {
namespace {

constexpr int kFewestRows = 4;
constexpr qint64 kMostRows = std::numeric_limits<int>::max();

}  // namespace

CVynListBoxAObj::CVynListBoxAObj(QWidget* parent)
    : QFrame(parent), bar_(new QScrollBar(Qt::Vertical, this)) {
  InstallObjectListAccessibility();
  setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setMouseTracking(true);
  cellFont_ = font();
  regFont_ = GetRegFontDefault(0);
  bar_->setFocusPolicy(Qt::NoFocus);
  bar_->hide();
  connect(bar_, &QScrollBar::valueChanged, this, &CVynListBoxAObj::FirstRowChanged);
}

void CVynListBoxAObj::Attach(int id, QWidget* owner) {
  controlId_ = static_cast<quint32>(id);
  owner_ = owner;
}

void CVynListBoxAObj::UseVScrollBar(int flag) {
  bar_->setVisible(flag != 0);
  ArrangeScrollBar();
}

tagRegFont CVynListBoxAObj::GetRegFontDefault(int inUse) const {
  return inUse != 0 ? regFont_ : tagRegFont{font().family(), font().pointSizeF()};
}

void CVynListBoxAObj::SetRegFont(const tagRegFont& font) {
  regFont_ = font;
  regFont_.faceName.truncate(tagRegFont::kMaxFaceName);
  cellFont_ = this->font();
  cellFont_.setFamilies({regFont_.faceName, this->font().family()});
  if (font.pointSize > 0.0) cellFont_.setPointSizeF(font.pointSize);
}

void CVynListBoxAObj::SetHeaderCount(int count) {
  layout_.columns.assign(static_cast<std::size_t>(std::max(count, 0)), {});
  isBatchCurrent_ = false;
}

tagHeaderDataItem* CVynListBoxAObj::GetHeaderDataItemPtr(int index) {
  return index >= 0 && index < layout_.Count() ? &layout_.columns[index] : nullptr;
}

tagHeaderDataItem* CVynListBoxAObj::GetHeaderDataItemPtr(quint32 id) {
  const auto found = std::ranges::find(layout_.columns, id, &tagHeaderDataItem::id);
  return found != layout_.columns.end() ? &*found : nullptr;
}

void CVynListBoxAObj::LoadItemBitmap(quint32 id, int bitmap, int imageCount) {
  if (tagHeaderDataItem* column = GetHeaderDataItemPtr(id)) {
    column->bitmap = bitmap;
    column->imageCount = imageCount;
  }
}

void CVynListBoxAObj::CalcLayout() {
  const QSize checkMark(style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this),
                        style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this));
  layout_.Calculate({QFontMetrics(font()), QFontMetrics(cellFont_), checkMark, logicalDpiX() / 96.0,
                     hasHeader_, heightFollowsFont_});
  isBatchCurrent_ = false;
  if (!IsChangeable(currentColumn_)) currentColumn_ = -1;
  if (currentColumn_ < 0) MoveColumn(1);
  UpdateScrollRange();
  updateGeometry();
  update();
}

int CVynListBoxAObj::GetHeaderAreaWidth() const { return HeaderRect().width(); }

QRect CVynListBoxAObj::HeaderRect() const {
  QRect area = contentsRect();
  if (!bar_->isHidden()) area.setWidth(area.width() - bar_->sizeHint().width());
  area.setHeight(layout_.HeaderHeight());
  return area;
}

QRect CVynListBoxAObj::RowsRect() const {
  const QRect header = HeaderRect();
  const int bottom = contentsRect().bottom();
  return {header.left(), header.top() + header.height(), header.width(),
          bottom + 1 - header.top() - header.height()};
}

int CVynListBoxAObj::WholeRows() const {
  return std::max(1, RowsRect().height() / layout_.RowHeight());
}

qint64 CVynListBoxAObj::RowsInView() const {
  const int height = std::max(0, RowsRect().height());
  const qint64 fitting = (height + layout_.RowHeight() - 1) / layout_.RowHeight();
  return std::clamp<qint64>(total_ - bar_->value(), 0, fitting);
}

qint64 CVynListBoxAObj::RowAt(int y) const {
  const int inRows = y - RowsRect().top();
  if (inRows < 0) return -1;
  const qint64 row = bar_->value() + inRows / layout_.RowHeight();
  return row < total_ ? row : -1;
}

QRect CVynListBoxAObj::CellRect(qint64 row, int column) const {
  const QRect rows = RowsRect();
  const int top = static_cast<int>(row - bar_->value()) * layout_.RowHeight();
  return {rows.left() + layout_.Left(column), rows.top() + top, layout_.columns[column].width,
          layout_.RowHeight()};
}

QRect CVynListBoxAObj::TitleRect(int column) const {
  const QRect header = HeaderRect();
  return {header.left() + layout_.Left(column), header.top(), layout_.columns[column].width,
          header.height()};
}

void CVynListBoxAObj::SetValueCountTotal(qint64 count, int keep) {
  total_ = std::clamp<qint64>(count, 0, kMostRows);
  if (keep == 0 || selected_ >= total_) selected_ = -1;
  UpdateScrollRange();
  if (keep == 0) bar_->setValue(0);
  TellObjectListReset(this);
  Update();
}

void CVynListBoxAObj::SetValueSelect(qint64 row, int select, int scroll) {
  if (row < 0 || row >= total_) return;
  if (select != 0) SelectRow(row);
  if (scroll != 0) ScrollTo(row);
}

void CVynListBoxAObj::Update() {
  isBatchCurrent_ = false;
  update(RowsRect());
}

void CVynListBoxAObj::ScrollTo(qint64 row) {
  const int target = static_cast<int>(std::clamp<qint64>(row, 0, std::max<qint64>(total_ - 1, 0)));
  const int lastWhole = bar_->value() + WholeRows() - 1;
  if (target < bar_->value()) bar_->setValue(target);
  if (target > lastWhole) bar_->setValue(target - WholeRows() + 1);
}

void CVynListBoxAObj::FirstRowChanged() { Update(); }

void CVynListBoxAObj::UpdateScrollRange() {
  const qint64 last = std::max<qint64>(0, total_ - WholeRows());
  bar_->setRange(0, static_cast<int>(last));
  bar_->setPageStep(WholeRows());
}

void CVynListBoxAObj::ArrangeScrollBar() {
  const QRect area = contentsRect();
  const int width = bar_->sizeHint().width();
  bar_->setGeometry(area.right() + 1 - width, area.top(), width, area.height());
  UpdateScrollRange();
  isBatchCurrent_ = false;
  if (std::exchange(areaWidth_, GetHeaderAreaWidth()) != areaWidth_) {
    Q_EMIT headerAreaWidthChanged();
  }
}

void CVynListBoxAObj::resizeEvent(QResizeEvent*) { ArrangeScrollBar(); }

void CVynListBoxAObj::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::EnabledChange) update();
}

QSize CVynListBoxAObj::minimumSizeHint() const {
  const int bar = bar_->isHidden() ? 0 : bar_->sizeHint().width();
  return {layout_.NeededWidth() + bar + 2 * frameWidth(),
          layout_.HeaderHeight() + kFewestRows * layout_.RowHeight() + 2 * frameWidth()};
}

QSize CVynListBoxAObj::sizeHint() const { return preferredSize_.expandedTo(minimumSizeHint()); }

tagUpdateInfo CVynListBoxAObj::NewBatch(qint64 firstRow, qint64 count) const {
  tagUpdateInfo batch;
  batch.controlId = controlId_;
  batch.firstRow = firstRow;
  batch.rowCount = count;
  for (const tagHeaderDataItem& column : layout_.columns) batch.AddColumn(column);
  return batch;
}

void CVynListBoxAObj::Send(ObjectListReason reason, tagUpdateInfo& batch) const {
  if (owner_ == nullptr) return;
  CVynMessage message(ObjectListMessage(), static_cast<quintptr>(reason), &batch);
  QApplication::sendEvent(owner_, &message);
}

tagUpdateInfo CVynListBoxAObj::AskRows(qint64 firstRow, qint64 count) const {
  const qint64 first = std::clamp<qint64>(firstRow, 0, total_);
  tagUpdateInfo batch = NewBatch(first, std::clamp<qint64>(count, 0, total_ - first));
  Send(ObjectListReason::Fill, batch);
  return batch;
}

void CVynListBoxAObj::FillBatch() {
  batch_ = AskRows(bar_->value(), RowsInView());
  isBatchCurrent_ = true;
}

tagUpdateInfo& CVynListBoxAObj::CurrentBatch() {
  if (!isBatchCurrent_) FillBatch();
  return batch_;
}

bool CVynListBoxAObj::IsChangeable(int column) const {
  if (column < 0 || column >= layout_.Count()) return false;
  const ObjectColumnKind kind = layout_.columns[column].kind;
  return kind == ObjectColumnKind::Check || kind == ObjectColumnKind::Choice;
}

bool CVynListBoxAObj::ChangeCell(qint64 row, int column) {
  tagUpdateInfo& batch = CurrentBatch();
  const qint64 index = row - batch.firstRow;
  if (!IsChangeable(column) || index < 0 || index >= batch.rowCount) return false;
  tagDataColumn& cells = batch.Column(column);
  tagDataItem& cell = cells.Cell(index);
  if (cell.status == kCellDisabled) return false;
  const bool isChoice = cells.kind == ObjectColumnKind::Choice;
  cell.value = isChoice ? (cell.value + 1) % std::max(1, cells.optionCount) : cell.value == 0;
  batch.columnIndex = column;
  batch.rowIndex = index;
  Send(ObjectListReason::CellChanged, batch);
  TellObjectListCellChanged(this, row, column);
  Update();
  return true;
}

bool CVynListBoxAObj::PressAllButton(int column) {
  if (column < 0 || column >= layout_.Count()) return false;
  if (layout_.columns[column].hasAllButton == 0) return false;
  tagUpdateInfo& batch = CurrentBatch();
  batch.columnIndex = column;
  batch.rowIndex = -1;
  Send(ObjectListReason::AllButton, batch);
  Update();
  return true;
}

void CVynListBoxAObj::SelectRow(qint64 row) {
  if (!isSelectable_ || row == selected_) return;
  selected_ = row;
  Send(ObjectListReason::SelectionChanged, CurrentBatch());
  update(RowsRect());
  TellFocus();
}

void CVynListBoxAObj::TellFocus() {
  if (hasFocus()) TellObjectListFocus(this);
}

void CVynListBoxAObj::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  ObjectListPainter parts(painter, *this, cellFont_);
  if (event->region().intersects(HeaderRect())) PaintHeader(parts);
  if (!event->region().intersects(RowsRect())) return;
  FillBatch();
  painter.setClipRect(RowsRect());
  PaintRows(parts);
}

void CVynListBoxAObj::PaintHeader(ObjectListPainter& painter) {
  if (!hasHeader_) return;
  for (int column = 0; column < layout_.Count(); ++column) {
    const bool isCurrent = hasFocus() && column == currentColumn_;
    painter.DrawTitle(layout_.columns[column], TitleRect(column),
                      {column == hoveredColumn_, column == pressedColumn_, isCurrent});
  }
  QRect rest = HeaderRect();
  rest.setLeft(rest.left() + (layout_.Count() > 0 ? layout_.Right(layout_.Count() - 1) : 0));
  rest.setRight(contentsRect().right());
  painter.DrawEmptyTitle(rest);
}

void CVynListBoxAObj::PaintRows(ObjectListPainter& painter) {
  const QRect area = RowsRect();
  painter.DrawRow(area, false, false);
  for (qint64 index = 0; index < batch_.rowCount; ++index) {
    const qint64 row = batch_.firstRow + index;
    const bool isSelected = row == selected_;
    const int top = area.top() + static_cast<int>(index) * layout_.RowHeight();
    painter.DrawRow({area.left(), top, area.width(), layout_.RowHeight()}, row % 2 != 0,
                    isSelected);
    for (int column = 0; column < layout_.Count(); ++column) {
      const bool isCurrent = isSelected && hasFocus() && column == currentColumn_;
      painter.DrawCell(layout_.columns[column], batch_.Column(column).Cell(index),
                       CellRect(row, column), {isSelected, isCurrent});
    }
  }
}

}  // namespace vyn
