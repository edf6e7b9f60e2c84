// The stereographic projection by which the sky is shown.
#pragma once

#include <optional>

#include <QPointF>
#include <QSizeF>

#include "siblings/astro/direction_cosines.h"

namespace vyn {

/// Two directions at right angles to a line of sight: which way is right and which is up in the
/// picture there.
struct PictureAxes {
  Vector3 right;
  Vector3 up;
};

/// Maps directions, told in the frame of the view with z upwards, to points of the picture and
/// back. Longitude grows to the left, as it does in the sky. The projection keeps angles: a small
/// circle of the sky is a circle in the picture.
class SkyProjection {
 public:
  /// `center` is shown in the middle. `angleDeg` (0 to 330) is how much of the sky the picture's
  /// shorter side shows.
  SkyProjection(const Spherical& center, double angleDeg, const QSizeF& size);

  /// Nothing for a direction so far behind that it lies far outside every picture.
  std::optional<QPointF> ToPicture(const Vector3& direction) const;

  /// The direction, of length 1, shown at this point.
  Vector3 ToDirection(const QPointF& point) const;

  /// The scale where this direction is shown: it grows from the middle outwards.
  double PixelsPerRadian(const Vector3& direction) const;

  PictureAxes AxesAt(const Vector3& direction) const;

  const QSizeF& Size() const { return size_; }
  /// How far from the middle the farthest corner lies, in radians.
  double FarthestRad() const;

 private:
  Vector3 forward_;
  Vector3 right_;
  Vector3 up_;
  QSizeF size_;
  double scale_;  ///< pixels of the plane's unit
};

}  // namespace vyn
