#include "host/solar_canvas.h"

#include <cmath>

namespace vyn {

SolarCanvas::SolarCanvas(QPainter& painter, const Frame& frame)
    : painter(painter),
      frame(frame),
      camera(frame.scene.Of(frame.view.center).heliocentric, frame.view.outside,
             frame.view.distanceAu, frame.size),
      labels(frame.size) {}

bool SolarCanvas::IsInPicture(const QPointF& point, double margin) const {
  return QRectF(QPointF(), frame.size).adjusted(-margin, -margin, margin, margin).contains(point);
}

void SolarCanvas::Stroke(const QPainterPath& path, const QPen& pen) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(pen);
  painter.drawPath(path);
}

double SolarCanvas::PixelsAtTarget(double lengthAu) const {
  return lengthAu * camera.PixelsPerAu(camera.Target());
}

QString DistanceText(double distanceAu) {
  using namespace Qt::StringLiterals;
  constexpr double kManKm = 1e4 / kKmPerAu;
  constexpr double kLightYearAu = 63241.077;
  if (distanceAu < kManKm) return u"%1 km"_s.arg(distanceAu * kKmPerAu, 0, 'f', 0);
  if (distanceAu < 0.05) return u"%1万 km"_s.arg(std::round(distanceAu / kManKm * 10.0) / 10.0);
  if (distanceAu < kLightYearAu)
    return u"%1 au"_s.arg(distanceAu, 0, distanceAu < 100.0 ? 'g' : 'f',
                          distanceAu < 100.0 ? 3 : 0);
  return u"%1光年"_s.arg(distanceAu / kLightYearAu, 0, 'g', 3);
}

}  // namespace vyn
