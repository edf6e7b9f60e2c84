// Directions as longitude and latitude or as direction cosines, and rotations between frames.
#pragma once

#include "siblings/astro/vector3.h"

namespace vyn {

/// A direction by two angles: ecliptic or heliographic longitude and latitude, right ascension and
/// declination, azimuth and altitude ...
struct Spherical {
  double longitudeDeg = 0.0;  ///< [0, 360) where the library returns one
  double latitudeDeg = 0.0;   ///< -90 to 90
};

/// The direction cosines (a vector of length 1) of a longitude and latitude in degrees: x towards
/// (0, 0), y towards (90, 0), z towards latitude 90.
Vector3 AdToDc(double longitudeDeg, double latitudeDeg);

/// Longitude and latitude of a vector of any length; (0, 0) for the zero vector.
Spherical DcToAd(const Vector3& directionCosines);

/// Applies a rotation.
Vector3 RotateDc(const Matrix3& rotation, const Vector3& directionCosines);

/// The rotation that tells a vector in a frame turned by the angle about the x, y or z axis,
/// counter-clockwise as seen from that axis' positive end. The vector itself seems to turn the
/// other way.
Matrix3 FrameRotationX(double angleDeg);
Matrix3 FrameRotationY(double angleDeg);
Matrix3 FrameRotationZ(double angleDeg);

}  // namespace vyn
