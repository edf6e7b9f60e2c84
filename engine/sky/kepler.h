// Orbits of two bodies: elements to place, place to elements, and orbits as lines to draw.
//
// One equation, in universal variables, serves every conic, so that orbits close to a parabola need
// no case of their own. Source: Danby, "Fundamentals of Celestial Mechanics" (2nd ed.),
// chapter 6.9.
#pragma once

#include <vector>

#include "siblings/astro/vector3.h"

namespace vyn {

/// The Gaussian constant squared: the Sun's gravity in au^3 / day^2.
inline constexpr double kSunGravity = 0.01720209895 * 0.01720209895;

/// Elements of an orbit in the ecliptic of J2000. Perihelion stands for the pericentre whatever the
/// central body.
struct OrbitElements {
  double perihelionJd = 0.0;          ///< in terrestrial time; NaN for an orbit that is not known
  double perihelionDistanceAu = 1.0;  ///< greater than 0
  double eccentricity = 0.0;          ///< 0 or greater
  double argumentOfPerihelionDeg = 0.0;
  double ascendingNodeDeg = 0.0;
  double inclinationDeg = 0.0;
  double gravity = kSunGravity;  ///< of the central body and this one, au^3 / day^2
};

/// Place and velocity relative to the central body, au and au / day.
struct StateVector {
  Vector3 position;
  Vector3 velocity;
};

/// Solves Kepler's equation in universal variables: the s with q s + mu e s^3 c3(b s^2) = t, where
/// b = mu (1 - e) / q and c3 is Stumpff's function. For an ellipse `daysSincePerihelion` is to lie
/// within half a period of perihelion. Relative error below 1e-12; ends after at most 60 steps
/// whatever the arguments.
double SolveUniversalKepler(double perihelionDistanceAu, double eccentricity, double gravity,
                            double daysSincePerihelion);

/// The orientation of an orbit: unit vectors in the ecliptic of J2000 towards perihelion and 90
/// degrees ahead of it. Worth keeping where an orbit is used more than once.
struct OrbitPlane {
  Vector3 towardsPerihelion;
  Vector3 aheadOfPerihelion;
};
OrbitPlane PlaneOf(const OrbitElements& orbit);

/// Place (and velocity) at a Julian date in terrestrial time; NaN for elements outside their
/// ranges.
Vector3 PositionAt(const OrbitElements& orbit, const OrbitPlane& plane, double jdTt);
Vector3 PositionAt(const OrbitElements& orbit, double jdTt);
StateVector StateAt(const OrbitElements& orbit, const OrbitPlane& plane, double jdTt);
StateVector StateAt(const OrbitElements& orbit, double jdTt);

/// The orbit on which a body with this place and velocity moves. A body that moves straight through
/// the central body has none; it gets NaN.
OrbitElements OsculatingElements(const StateVector& state, double jdTt, double gravity);

/// The period in days; infinite for a parabola or hyperbola.
double PeriodDays(const OrbitElements& orbit);

/// Elements given for the ecliptic and equinox of another epoch, told in those of J2000.
/// 1950.0 is taken as the Besselian epoch B1950.0, whose catalogue equinox differs by 0.5".
/// Source: Vondrak, Capitaine and Wallace 2011, A&A 534, A22 (ERFA's eraLtecm).
OrbitElements ReferredToJ2000(const OrbitElements& orbit, double equinoxYear);

/// `count` points (at least 2) along the orbit for drawing, in the ecliptic of J2000, close
/// together where the orbit bends. An ellipse within `farthestAu` closes: its last point is its
/// first. Of another orbit the arc within `farthestAu` is given, from the incoming end to the
/// outgoing one; it is empty when perihelion lies farther out.
std::vector<Vector3> OrbitPolyline(const OrbitElements& orbit, int count, double farthestAu);

}  // namespace vyn
