#include "siblings/controls/preview.h"

#include <QMouseEvent>
#include <QPainter>

namespace vyn {

CVynPreview::CVynPreview(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
}

void CVynPreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(Qt::black);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.setClipRect(rect().adjusted(1, 1, -1, -1));
  if (painter_) painter_(painter);
}

void CVynPreview::mousePressEvent(QMouseEvent* event) {
  Q_EMIT pressed(event->position().toPoint(), event->button());
}

void CVynPreview::mouseMoveEvent(QMouseEvent* event) { Q_EMIT moved(event->position().toPoint()); }

void CVynPreview::mouseReleaseEvent(QMouseEvent* event) {
  Q_EMIT released(event->position().toPoint(), event->button());
}

}  // namespace vyn
