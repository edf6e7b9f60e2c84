#include "host/sky_projection.h"

#include <algorithm>
#include <cmath>

#include "siblings/astro/angles.h"

namespace vyn {
namespace {

/// Cosine of the largest angle from the middle that is still shown: 160 degrees.
constexpr double kFarthestCosine = -0.94;

}  // namespace

SkyProjection::SkyProjection(const Spherical& center, double angleDeg, const QSizeF& size)
    : forward_(AdToDc(center.longitudeDeg, center.latitudeDeg)),
      right_(-AdToDc(center.longitudeDeg + 90.0, 0.0)),
      up_(Cross(right_, forward_)),
      size_(size),
      scale_(std::min(size.width(), size.height()) / 2.0 / std::tan(angleDeg / 4.0 * kRadPerDeg)) {}

std::optional<QPointF> SkyProjection::ToPicture(const Vector3& direction) const {
  const double length = Length(direction);
  const double depth = Dot(direction, forward_);
  if (length == 0.0 || depth < kFarthestCosine * length) return std::nullopt;
  const double factor = scale_ / (length + depth);
  return QPointF(size_.width() / 2.0 + Dot(direction, right_) * factor,
                 size_.height() / 2.0 - Dot(direction, up_) * factor);
}

Vector3 SkyProjection::ToDirection(const QPointF& point) const {
  const double x = (point.x() - size_.width() / 2.0) / scale_;
  const double y = (size_.height() / 2.0 - point.y()) / scale_;
  const double squared = x * x + y * y;
  return ((2.0 * x) * right_ + (2.0 * y) * up_ + (1.0 - squared) * forward_) / (1.0 + squared);
}

double SkyProjection::PixelsPerRadian(const Vector3& direction) const {
  const double cosine = Dot(Normalized(direction), forward_);
  return scale_ / (1.0 + std::max(cosine, kFarthestCosine));
}

/// The image of "north" at the direction, by a small step, tells how the picture is turned there.
PictureAxes SkyProjection::AxesAt(const Vector3& direction) const {
  constexpr double kStep = 1e-6;
  const Vector3 d = Normalized(direction);
  const Spherical place = DcToAd(d);
  const Vector3 rightOfNorth = -AdToDc(place.longitudeDeg + 90.0, 0.0);
  const Vector3 north = Cross(rightOfNorth, d);
  const std::optional<QPointF> from = ToPicture(d);
  const std::optional<QPointF> to = ToPicture(d + kStep * north);
  if (!from || !to) return {rightOfNorth, north};
  const double length = std::hypot(to->x() - from->x(), to->y() - from->y());
  const double x = (to->x() - from->x()) / length;
  const double y = (from->y() - to->y()) / length;
  return {y * rightOfNorth + x * north, -x * rightOfNorth + y * north};
}

double SkyProjection::FarthestRad() const {
  return AngleBetween(forward_, ToDirection({0.0, 0.0}));
}

}  // namespace vyn
