#include "siblings/controls/focus_controls.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWidget>

namespace vyn {

void CFocusControl::Attach(QWidget* control) { control->installEventFilter(this); }

/// Lets the control paint itself first, then draws on top of it.
bool CFocusControl::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Paint || isPainting_) return false;
  auto* control = static_cast<QWidget*>(watched);
  if (!control->hasFocus()) return false;
  isPainting_ = true;
  QCoreApplication::sendEvent(control, event);
  isPainting_ = false;
  QPainter painter(control);
  QStyleOptionFocusRect option;
  option.initFrom(control);
  option.backgroundColor = control->palette().color(QPalette::Window);
  control->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, control);
  return true;
}

}  // namespace vyn
