#include "host/marks.h"

#include <cmath>

#include <QPainter>

namespace vyn {
namespace {

const QColor kColor(255, 150, 220);

}  // namespace

void LagrangianMarks::Next(const std::optional<QPointF>& at) {
  ++number_;
  if (!at) return;
  painter_.setPen(QPen(kColor, 1.4));
  painter_.drawLine(*at - QPointF(4.0, 4.0), *at + QPointF(4.0, 4.0));
  painter_.drawLine(*at - QPointF(4.0, -4.0), *at + QPointF(4.0, -4.0));
  labels_.Add(
      {*at, 7.0, QStringLiteral("L%1").arg(number_), {kColor, LabelFont(9)}, LabelRank::Place});
}

QPainterPath WithArrowHead(QPainterPath line) {
  constexpr double kHeadPixels = 8.0;
  constexpr double kOpeningDeg = 155.0;
  if (line.length() < 1.5 * kHeadPixels) return line;
  const QPointF tip = line.currentPosition();
  const QPointF before = line.pointAtPercent(line.percentAtLength(line.length() - kHeadPixels));
  const QLineF shaft(tip, 2.0 * tip - before);
  for (const double side : {-kOpeningDeg, kOpeningDeg}) {
    QLineF barb = shaft;
    barb.setAngle(shaft.angle() + side);
    barb.setLength(kHeadPixels);
    line.moveTo(tip);
    line.lineTo(barb.p2());
  }
  return line;
}

}  // namespace vyn
