// The camera that looks at the solar system from outside.
#pragma once

#include <optional>

#include <QPointF>
#include <QSizeF>

#include "host/sky_projection.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {

/// Looks at a target from a distance, with the ecliptic's north upwards. Places are in au.
class OutsideCamera {
 public:
  /// `from` is the direction from the target to the camera, `distanceAu` greater than 0.
  OutsideCamera(const Vector3& target, const Spherical& from, double distanceAu,
                const QSizeF& size);

  /// Nothing for a place beside or behind the camera.
  std::optional<QPointF> ToPicture(const Vector3& place) const;

  /// How far in front of the camera a place is; negative behind it.
  double DepthAu(const Vector3& place) const { return Dot(place - eye_, forward_); }

  double PixelsPerAu(const Vector3& place) const;

  /// Of a line, the part in front of the camera; false when there is none.
  bool ClipToFront(Vector3* from, Vector3* to) const;

  /// The axes of the picture where a place is shown.
  PictureAxes AxesAt(const Vector3& place) const;
  const Vector3& Eye() const { return eye_; }
  const Vector3& Target() const { return target_; }
  double DistanceAu() const { return distanceAu_; }
  const QSizeF& Size() const { return size_; }

 private:
  Vector3 target_;
  Vector3 forward_;
  Vector3 right_;
  Vector3 up_;
  Vector3 eye_;
  double distanceAu_;
  QSizeF size_;
  double focalPixels_;
};

}  // namespace vyn
