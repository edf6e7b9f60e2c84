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

PointCloud::PointCloud(const QSizeF& pictureSize)
    : image_(pictureSize.toSize(), QImage::Format_ARGB32_Premultiplied) {
  image_.fill(Qt::transparent);
}

void PointCloud::Add(const QPointF& at, QRgb color, int size) {
  if (!(at.x() >= 0.0 && at.y() >= 0.0 && at.x() + size < image_.width() &&
        at.y() + size < image_.height())) {
    return;
  }
  const int left = static_cast<int>(at.x());
  for (int row = 0; row < size; ++row) {
    auto* line = reinterpret_cast<QRgb*>(image_.scanLine(static_cast<int>(at.y()) + row)) + left;
    for (int column = 0; column < size; ++column) line[column] = color;
  }
}

void PointCloud::Paint(QPainter& painter) const { painter.drawImage(QPointF(), image_); }

}  // namespace vyn
