// The theories of single satellites' motions, for satellites.cpp. Places and frames as there.
#pragma once

#include "engine/sky/kepler.h"
#include "engine/sky/satellite_table.h"

namespace vyn {

inline constexpr double kJ2000 = 2451545.0;
inline constexpr double kDaysPerYear = 365.25;
inline constexpr double kB1950Year = 1949.99979;

double SinDeg(double angleDeg);
double CosDeg(double angleDeg);

/// Rotates a vector told in a plane to the frame in which the plane's ascending node and
/// inclination are given.
Matrix3 FromPlane(double ascendingNodeDeg, double inclinationDeg);

/// An ellipse at a moment, in a plane of its own.
struct OrbitInPlane {
  OrbitElements orbit;
  Matrix3 toEcliptic;

  Vector3 PositionAt(double jdTt) const { return toEcliptic * vyn::PositionAt(orbit, jdTt); }
};

/// The shape and angles of an ellipse at a moment.
struct EllipseAngles {
  double eccentricity = 0.0;
  double inclinationDeg = 0.0;
  double ascendingNodeDeg = 0.0;
  double argumentOfPericentreDeg = 0.0;
  double meanAnomalyDeg = 0.0;
};
OrbitElements EllipseAt(double jdTt, double semiMajorAxisKm, const EllipseAngles& angles,
                        double motionDegPerDay);

OrbitInPlane MeanOrbitAt(const MeanElements& mean, double jdTt);

/// Phobos (1) and Deimos (2).
OrbitInPlane MartianOrbitAt(int number, double jdTt);

/// Io (1) to Callisto (4), in km.
Vector3 GalileanPositionKm(int number, double jdTt);

/// Mimas (1) to Iapetus (8).
OrbitInPlane SaturnianOrbitAt(int number, double jdTt);

}  // namespace vyn
