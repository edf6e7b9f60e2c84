#include "host/solar_canvas.h"

#include <cmath>

#include "host/vector_registers.h"

namespace vyn {

SolarCanvas::SolarCanvas(QPainter& painter, const Frame& frame)
    : painter(painter),
      frame(frame),
      camera(frame.scene.Of(frame.view.center).heliocentric, frame.view.outside,
             frame.view.distanceAu, frame.size),
      labels(frame.size) {
  labels.Reserve(StatusArea(frame.size));
}

bool SolarCanvas::IsInPicture(const QPointF& point, double margin) const {
  return QRectF(QPointF(), frame.size).adjusted(-margin, -margin, margin, margin).contains(point);
}

void SolarCanvas::Stroke(const QPainterPath& path, const QPen& pen) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(pen);
  painter.drawPath(path);
  ClearVectorRegisters();
}

double SolarCanvas::PixelsAtTarget(double lengthAu) const {
  return lengthAu * camera.PixelsPerAu(camera.Target());
}

double DistanceUnitAu(double distanceAu) {
  constexpr double kLightYearAu = 63241.077;
  if (distanceAu < 0.05) return 1.0 / kKmPerAu;
  return distanceAu < 4.0 * kLightYearAu ? 1.0 : kLightYearAu;
}

QString DistanceText(double distanceAu) {
  using namespace Qt::StringLiterals;
  const double unit = DistanceUnitAu(distanceAu);
  const double number = distanceAu / unit;
  if (unit > 1.0) return u"%1光年"_s.arg(number, 0, 'g', 3);
  if (number >= 1e4)
    return u"%1万 %2"_s.arg(number / 1e4, 0, 'g', 3).arg(unit < 1.0 ? u"km"_s : u"au"_s);
  return u"%1 %2"_s.arg(number, 0, 'g', 4).arg(unit < 1.0 ? u"km"_s : u"au"_s);
}

}  // namespace vyn
