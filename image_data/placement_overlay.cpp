#include "image_data/placement_overlay.h"

#include <QPainterPath>
#include <QPolygon>

namespace vyn {
namespace {

constexpr int kCursorSide = 24;

void DrawLines(QPainter& painter, const PlacementLayout& layout, QSize preview) {
  using enum PlacementHandle;
  const QPoint centre = layout.Centre();
  painter.drawLine(centre.x(), 0, centre.x(), preview.height());
  painter.drawLine(0, centre.y(), preview.width(), centre.y());
  for (const PlacementHandle handle : {Vertical, Horizontal, Centre}) {
    painter.fillRect(layout.Square(handle), painter.brush());
  }
}

void DrawOutline(QPainter& painter, const PlacementLayout& layout) {
  const QBrush filled = painter.brush();
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(QPointF(layout.Centre()), layout.OutlineRadius(), layout.OutlineRadius());
  painter.setBrush(filled);
  painter.drawEllipse(layout.Square(PlacementHandle::Radius));
}

/// An arc with an arrowhead, black with a white rim so that it is seen on any image.
QPixmap RotateCursorPixmap() {
  QPixmap pixmap(kCursorSide, kCursorSide);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF circle(5.0, 5.0, 14.0, 14.0);
  const QPolygonF head{QPointF(19.0, 4.0), QPointF(19.5, 12.0), QPointF(12.5, 8.5)};
  for (const auto& [color, width] : {std::pair(Qt::white, 4.5), std::pair(Qt::black, 2.0)}) {
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(circle, 40 * 16, 280 * 16);
    painter.setPen(QPen(color, width - 1.0));
    painter.setBrush(color);
    painter.drawPolygon(head);
  }
  return pixmap;
}

}  // namespace

void DrawPlacementOverlay(QPainter& painter, const PlacementLayout& layout, QSize preview,
                          double rollDeg) {
  painter.setPen(Qt::red);
  painter.setBrush(Qt::red);
  DrawLines(painter, layout, preview);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawOutline(painter, layout);
  painter.setPen(Qt::green);
  painter.drawLine(layout.Centre(), layout.Anchor(PlacementHandle::Roll));
  DrawArrowMark(painter, layout.Square(PlacementHandle::Roll), rollDeg, Qt::green);
}

void DrawArrowMark(QPainter& painter, const QRect& square, double angleDeg, const QBrush& brush) {
  const auto corners = ArrowMark(square, angleDeg);
  QPainterPath triangle;
  triangle.addPolygon(QPolygon(QList<QPoint>(corners.begin(), corners.end())));
  triangle.closeSubpath();
  painter.fillPath(triangle, brush);
}

QCursor LoadPlacementCursor(int number) {
  switch (number) {
    case 404:
      return Qt::SizeAllCursor;
    case 408:
      return Qt::SizeBDiagCursor;
    case 409:
      return QCursor(RotateCursorPixmap());
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace vyn
