// The drawing of the Sun's disk on which sunspots are placed: from its points to heliographic
// places and back.
#pragma once

#include <optional>

#include <QPoint>
#include <QSize>

#include "siblings/astro/direction_cosines.h"

namespace vyn {

/// A disk in the middle of a preview, as the Sun stands at a moment: the axis upright, its central
/// meridian's longitude ("CM") and the latitude of the disk's middle ("De") in degrees.
class SunDisk {
 public:
  SunDisk(QSize preview, double centralLongitudeDeg, double centralLatitudeDeg);

  QPoint Centre() const { return centre_; }
  int Radius() const { return radius_; }

  /// The heliographic place under a point of the preview, its longitude within -180 to 180; nothing
  /// off the disk.
  std::optional<Spherical> GetSunLocation(QPoint point) const;

  /// Where a heliographic place is seen; nothing on the far side.
  std::optional<QPointF> Project(double longitudeDeg, double latitudeDeg) const;
  /// The same rounded to whole pixels.
  std::optional<QPoint> GetSunPoint(double longitudeDeg, double latitudeDeg) const;

 private:
  QPoint centre_;
  int radius_;
  Matrix3 sunFromDisk_;
};

}  // namespace vyn
