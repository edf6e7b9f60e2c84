#include "host/outside_camera.h"

#include <algorithm>
#include <cmath>

#include "siblings/astro/angles.h"

namespace vyn {
namespace {

constexpr double kHalfFieldDeg = 22.5;
/// Nothing nearer than this part of the distance to the target is drawn.
constexpr double kNearestPart = 1e-3;

}  // namespace

OutsideCamera::OutsideCamera(const Vector3& target, const Spherical& from, double distanceAu,
                             const QSizeF& size)
    : target_(target),
      forward_(-AdToDc(from.longitudeDeg, from.latitudeDeg)),
      right_(AdToDc(from.longitudeDeg + 90.0, 0.0)),
      up_(Cross(right_, forward_)),
      eye_(target - distanceAu * forward_),
      distanceAu_(distanceAu),
      size_(size),
      focalPixels_(std::min(size.width(), size.height()) / 2.0 /
                   std::tan(kHalfFieldDeg * kRadPerDeg)) {}

std::optional<QPointF> OutsideCamera::ToPicture(const Vector3& place) const {
  const Vector3 relative = place - eye_;
  const double depth = Dot(relative, forward_);
  if (depth < kNearestPart * distanceAu_) return std::nullopt;
  const double factor = focalPixels_ / depth;
  return QPointF(size_.width() / 2.0 + Dot(relative, right_) * factor,
                 size_.height() / 2.0 - Dot(relative, up_) * factor);
}

double OutsideCamera::PixelsPerAu(const Vector3& place) const {
  return focalPixels_ / std::max(DepthAu(place), kNearestPart * distanceAu_);
}

PictureAxes OutsideCamera::AxesAt(const Vector3& place) const {
  const Vector3 sight = Normalized(place - eye_);
  const Vector3 right = Normalized(Cross(sight, up_));
  return {right, Cross(right, sight)};
}

bool OutsideCamera::ClipToFront(Vector3* from, Vector3* to) const {
  // A little in front of where places end, so that the cut end itself is still a place.
  const double nearest = 1.01 * kNearestPart * distanceAu_;
  const double a = DepthAu(*from);
  const double b = DepthAu(*to);
  if (a < nearest && b < nearest) return false;
  if (a >= nearest && b >= nearest) return true;
  const Vector3 cut = *from + (*to - *from) * ((nearest - a) / (b - a));
  (a < nearest ? *from : *to) = cut;
  return true;
}

}  // namespace vyn
