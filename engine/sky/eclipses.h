// Shadows: the Moon's on the Earth and the Earth's at the Moon, and when they are met.
//
// Vectors are in the ecliptic of J2000, in au, from the Earth's centre, unless told otherwise.
// The Earth is the WGS84 ellipsoid without mountains and air; the Moon is a sphere of 0.2725076
// Earth radii for the penumbra and 0.272281 for the umbra, as the Astronomical Almanac has it.
#pragma once

#include <optional>
#include <vector>

#include "engine/sky/bodies.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {

enum class EclipseKind { None, Penumbral, Partial, Annular, Total };
enum class ShadowCone { Umbra, Penumbra };

/// The Earth's shadow where the Moon is.
struct EarthShadow {
  Vector3 axis;  ///< unit vector from the Earth's centre away from the Sun
  double moonDistanceAu = 0.0;
  double moonRadiusDeg = 0.0;  ///< angles as seen from the Earth's centre
  double umbraRadiusDeg = 0.0;
  double penumbraRadiusDeg = 0.0;
  double separationDeg = 0.0;  ///< from the axis to the Moon's centre

  /// The part of the Moon's diameter that is within the cone; negative outside.
  double Magnitude(ShadowCone cone) const;
};

/// Air enlarges the shadow by Danjon's rule: the Moon's parallax counts 1.01 times, at a mean
/// radius of the Earth. Source: Espenak and Meeus, "Five Millennium Canon of Lunar Eclipses".
EarthShadow EarthShadowAt(double jdUt);

struct LunarEclipse {
  double jdGreatestUt = 0.0;
  EclipseKind kind = EclipseKind::None;  ///< None, Penumbral, Partial or Total
  double umbralMagnitude = 0.0;
  double penumbralMagnitude = 0.0;
};

struct SolarEclipse {
  double jdGreatestUt = 0.0;
  /// None, Partial, Annular or Total. One that is annular at its ends and total in the middle is
  /// told by its middle.
  EclipseKind kind = EclipseKind::None;
  /// How far the shadow's axis passes from the Earth's centre, in Earth radii, positive north.
  double gamma = 0.0;
};

/// The full moon or new moon nearest to the date, and the eclipse that it brings, if any.
LunarEclipse LunarEclipseNear(double jdUt);
SolarEclipse SolarEclipseNear(double jdUt);

/// The edge of the Moon's shadow on the ground as longitude (east, [0, 360)) and geodetic latitude:
/// `count` points around the shadow, empty where the shadow's edge passes the Earth by.
std::vector<std::optional<Spherical>> ShadowOutline(double jdUt, ShadowCone cone, int count);

/// The central band of a solar eclipse at one moment.
struct CentralPathPoint {
  double jdUt = 0.0;
  Spherical centre;                ///< longitude and latitude as in ShadowOutline
  std::optional<Spherical> left;   ///< the edges of umbra or antumbra as seen by whoever goes along
  std::optional<Spherical> right;  ///< with it, empty where they pass the Earth by
  bool total = false;              ///< else annular
};

/// The band of the eclipse nearest to the date, from its first moment on the ground to its last;
/// empty for an eclipse without one or a step that is not positive. Takes some milliseconds: keep
/// it while the eclipse stays the same.
std::vector<CentralPathPoint> CentralPathNear(double jdUt, double stepMinutes);

}  // namespace vyn
