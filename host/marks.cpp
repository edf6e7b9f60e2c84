#include "host/marks.h"

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

}  // namespace vyn
