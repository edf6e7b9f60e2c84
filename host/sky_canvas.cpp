#include "host/sky_canvas.h"

#include "host/vector_registers.h"

namespace vyn {

/// Horizontal longitudes run against the azimuth.
Spherical SkyMiddle(const Frame& frame) {
  const Scene& scene = frame.scene;
  if (frame.view.isTracking) {
    return DcToAd(scene.viewpoint.toView * scene.Of(frame.view.center).seen);
  }
  const Spherical& direction = frame.view.direction;
  const bool isHorizon = frame.view.kind == ViewKind::Horizon;
  return {isHorizon ? -direction.longitudeDeg : direction.longitudeDeg, direction.latitudeDeg};
}

SkyCanvas::SkyCanvas(QPainter& painter, const Frame& frame)
    : painter(painter),
      frame(frame),
      projection(SkyMiddle(frame), frame.view.angleDeg, frame.size),
      labels(frame.size) {
  labels.Reserve(StatusArea(frame.size));
}

PictureAxes SkyCanvas::AxesAt(const Vector3& vector) const {
  const PictureAxes axes = projection.AxesAt(ToView(vector));
  const Matrix3 fromView = Transposed(frame.scene.viewpoint.toView);
  return {fromView * axes.right, fromView * axes.up};
}

bool SkyCanvas::IsInPicture(const QPointF& point, double margin) const {
  return QRectF(QPointF(), frame.size).adjusted(-margin, -margin, margin, margin).contains(point);
}

void SkyCanvas::Stroke(const QPainterPath& path, const QPen& pen) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(pen);
  painter.drawPath(path);
  ClearVectorRegisters();
}

}  // namespace vyn
