#include "host/line_builder.h"

#include <cmath>
#include <numbers>

namespace vyn {
namespace {

constexpr double kMarginPixels = 40.0;

/// One side of the clipping by Liang and Barsky: narrows the visible part [from, to] of a line.
bool ClipSide(double direction, double distance, double* from, double* to) {
  if (direction == 0.0) return distance >= 0.0;
  const double part = distance / direction;
  if (direction < 0.0) {
    *from = std::max(*from, part);
  } else {
    *to = std::min(*to, part);
  }
  return *from <= *to;
}

bool ClipLine(const QRectF& bounds, QPointF* a, QPointF* b) {
  const QPointF d = *b - *a;
  double from = 0.0;
  double to = 1.0;
  if (!ClipSide(-d.x(), a->x() - bounds.left(), &from, &to) ||
      !ClipSide(d.x(), bounds.right() - a->x(), &from, &to) ||
      !ClipSide(-d.y(), a->y() - bounds.top(), &from, &to) ||
      !ClipSide(d.y(), bounds.bottom() - a->y(), &from, &to)) {
    return false;
  }
  *b = *a + d * to;
  *a = *a + d * from;
  return true;
}

}  // namespace

LineBuilder::LineBuilder(const QSizeF& pictureSize)
    : bounds_(QRectF(QPointF(), pictureSize)
                  .adjusted(-kMarginPixels, -kMarginPixels, kMarginPixels, kMarginPixels)) {}

void LineBuilder::To(const std::optional<QPointF>& point) {
  if (last_ && point) Add(*last_, *point);
  last_ = point;
}

void LineBuilder::Add(QPointF from, QPointF to) {
  if (!ClipLine(bounds_, &from, &to)) return;
  if (path_.isEmpty() || path_.currentPosition() != from) path_.moveTo(from);
  path_.lineTo(to);
}

QPainterPath SkyLine(const SkyProjection& projection, std::span<const Vector3> directions) {
  LineBuilder line(projection.Size());
  for (const Vector3& direction : directions) line.To(projection.ToPicture(direction));
  return line.Path();
}

QPainterPath SpaceLine(const OutsideCamera& camera, std::span<const Vector3> places) {
  LineBuilder line(camera.Size());
  for (std::size_t i = 1; i < places.size(); ++i) {
    Vector3 from = places[i - 1];
    Vector3 to = places[i];
    if (!camera.ClipToFront(&from, &to)) {
      line.Break();
      continue;
    }
    if (i == 1 || !(from == places[i - 1])) {
      line.Break();
      line.To(camera.ToPicture(from));
    }
    line.To(camera.ToPicture(to));
    if (!(to == places[i])) line.Break();
  }
  return line.Path();
}

std::vector<Vector3> CirclePoints(const Vector3& center, const Vector3& axis1, const Vector3& axis2,
                                  int count) {
  std::vector<Vector3> points;
  points.reserve(count + 1);
  for (int i = 0; i <= count; ++i) {
    const double angle = 2.0 * std::numbers::pi * (i % count) / count;
    points.push_back(center + std::cos(angle) * axis1 + std::sin(angle) * axis2);
  }
  return points;
}

}  // namespace vyn
