// What mouse, wheel and keyboard do in an object list.
#include <algorithm>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "siblings/controls/object_list_box.h"

namespace vyn {
namespace {

constexpr int kWheelNotch = 120;

}  // namespace

int CVynListBoxAObj::ButtonAt(const QPoint& point) const {
  if (!HeaderRect().contains(point)) return -1;
  const int column = layout_.ColumnAt(point.x() - HeaderRect().left());
  return column >= 0 && layout_.columns[column].hasAllButton != 0 ? column : -1;
}

void CVynListBoxAObj::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  const QPoint point = event->position().toPoint();
  pressedColumn_ = ButtonAt(point);
  if (pressedColumn_ >= 0) {
    update(HeaderRect());
  } else if (RowsRect().contains(point)) {
    PressRow(point);
  }
}

void CVynListBoxAObj::PressRow(const QPoint& point) {
  const qint64 row = RowAt(point.y());
  if (row < 0) return;
  SelectRow(row);
  const int column = layout_.ColumnAt(point.x() - RowsRect().left());
  if (!IsChangeable(column)) return;
  currentColumn_ = column;
  update(HeaderRect());
  ChangeCell(row, column);
}

/// The second press of a double click changes again.
void CVynListBoxAObj::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void CVynListBoxAObj::mouseMoveEvent(QMouseEvent* event) {
  HoverTitle(ButtonAt(event->position().toPoint()));
}

void CVynListBoxAObj::leaveEvent(QEvent*) { HoverTitle(-1); }

void CVynListBoxAObj::HoverTitle(int column) {
  if (std::exchange(hoveredColumn_, column) != column) update(HeaderRect());
}

/// As with any button, leaving it before letting go is a way out.
void CVynListBoxAObj::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || pressedColumn_ < 0) return;
  const int pressed = std::exchange(pressedColumn_, -1);
  update(HeaderRect());
  if (ButtonAt(event->position().toPoint()) == pressed) PressAllButton(pressed);
}

void CVynListBoxAObj::wheelEvent(QWheelEvent* event) {
  wheelRest_ += event->angleDelta().y() * QApplication::wheelScrollLines();
  const int lines = wheelRest_ / kWheelNotch;
  wheelRest_ -= lines * kWheelNotch;
  bar_->setValue(bar_->value() - lines);
  event->accept();
}

/// Enter is left to the dialog, Tab to the focus chain.
void CVynListBoxAObj::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) {
    return event->ignore();
  }
  const bool shift = event->modifiers() & Qt::ShiftModifier;
  if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) {
    MoveColumn(event->key() == Qt::Key_Left ? -1 : 1);
  } else if (event->key() == Qt::Key_Space && shift) {
    PressAllButton(currentColumn_);
  } else if (!MoveSelection(event->key()) && !ChangeByKey(event->key())) {
    event->ignore();
  }
}

bool CVynListBoxAObj::MoveSelection(int key) {
  const qint64 last = total_ - 1;
  // Without a selection every way begins at the top row in view.
  const auto moved = [&](qint64 step) { return selected_ < 0 ? bar_->value() : selected_ + step; };
  qint64 row = 0;
  switch (key) {
    case Qt::Key_Up:
      row = moved(-1);
      break;
    case Qt::Key_Down:
      row = moved(1);
      break;
    case Qt::Key_PageUp:
      row = moved(-WholeRows());
      break;
    case Qt::Key_PageDown:
      row = moved(WholeRows());
      break;
    case Qt::Key_Home:
      break;
    case Qt::Key_End:
      row = last;
      break;
    default:
      return false;
  }
  SetValueSelect(std::clamp<qint64>(row, 0, std::max<qint64>(last, 0)), 1, 1);
  return true;
}

/// To the next column that can be changed; stays where there is none.
void CVynListBoxAObj::MoveColumn(int step) {
  int column = currentColumn_ + step;
  while (column >= 0 && column < layout_.Count() && !IsChangeable(column)) column += step;
  if (!IsChangeable(column)) return;
  currentColumn_ = column;
  update();
  TellFocus();
}

bool CVynListBoxAObj::ChangeByKey(int key) {
  int column = key == Qt::Key_Space ? currentColumn_ : -1;
  for (int i = 0; i < layout_.Count() && column < 0; ++i) {
    if (layout_.columns[i].key != 0 && layout_.columns[i].key == key) column = i;
  }
  if (column < 0 || selected_ < 0) return false;
  ScrollTo(selected_);
  ChangeCell(selected_, column);
  return true;
}

bool CVynListBoxAObj::event(QEvent* event) {
  const bool handled = QFrame::event(event);
  if (event->type() == QEvent::FocusIn) TellFocus();
  return handled;
}

}  // namespace vyn
