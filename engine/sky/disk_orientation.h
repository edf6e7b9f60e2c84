// How bodies turn: the frame fixed to a body, and how its disk stands as an observer sees it.
#pragma once

#include "engine/sky/bodies.h"
#include "siblings/astro/direction_cosines.h"
#include "siblings/astro/disk_frame.h"

namespace vyn {

/// The rotation from the ecliptic of J2000 to the frame fixed to the body: z towards its north
/// pole, x towards longitude 0 on its equator, longitudes in the sense of right-handed rotation
/// (on the Earth and on the Sun: eastwards).
/// Source: IAU working group on cartographic coordinates, reports of 2009 and 2015 (Archinal et
/// al.); Mars without its small periodic terms. `jdTt` is when the light left the body.
Matrix3 ToBodyFixed(Body body, double jdTt);

/// How a disk stands.
struct DiskOrientation {
  /// Longitude and latitude of the point in the middle of the disk, in the frame of ToBodyFixed.
  /// For the Sun these are its central meridian L0 and its latitude B0.
  double centralLongitudeDeg = 0.0;  ///< [0, 360)
  double centralLatitudeDeg = 0.0;
  /// From celestial north of the frame given eastwards to the body's north pole, [0, 360).
  double axisAngleDeg = 0.0;
};

/// Of a body in this direction from the observer; `north` is the pole from which the axis angle is
/// told. Both in the ecliptic of J2000.
DiskOrientation OrientationOf(Body body, double jdTt, const Vector3& fromObserver,
                              const Vector3& north);

}  // namespace vyn
