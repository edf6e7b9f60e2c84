#include "host/point_batches.h"

#include <algorithm>

#include <QPainter>

namespace vyn {

void CometPoints::Add(const QPointF& at, double magnitude) {
  const auto found = std::find_if(kClasses.begin(), kClasses.end() - 1,
                                  [magnitude](const Class& c) { return magnitude <= c.faintest; });
  points_[found - kClasses.begin()] << at;
}

void CometPoints::Paint(QPainter& painter) const {
  for (std::size_t i = points_.size(); i-- > 0;) {
    QColor color = Color();
    color.setAlpha(kClasses[i].alpha);
    painter.setPen(QPen(color, kClasses[i].diameterPixels, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoints(points_[i]);
  }
}

}  // namespace vyn
