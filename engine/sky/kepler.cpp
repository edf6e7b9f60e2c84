#include "engine/sky/kepler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include <erfa.h>

#include "siblings/astro/angles.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {
namespace {

constexpr double kNotKnown = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr int kMostSteps = 60;

/// Stumpff's functions c0 to c3.
struct Stumpff {
  double c0;
  double c1;
  double c2;
  double c3;
};

/// The series of c2 and c3, where the closed forms would cancel.
Stumpff StumpffNearZero(double x) {
  double c2 = 0.0;
  double c3 = 0.0;
  for (int n = 7; n >= 1; --n) {
    c2 = (1.0 - x * c2) / ((2 * n) * (2 * n - 1));
    c3 = (1.0 - x * c3) / ((2 * n + 1) * (2 * n));
  }
  return {1.0 - x * c2, 1.0 - x * c3, c2, c3};
}

Stumpff StumpffFunctions(double x) {
  if (std::abs(x) < 0.2) return StumpffNearZero(x);
  const double root = std::sqrt(std::abs(x));
  const double c0 = x > 0.0 ? std::cos(root) : std::cosh(root);
  const double c1 = (x > 0.0 ? std::sin(root) : std::sinh(root)) / root;
  return {c0, c1, (1.0 - c0) / x, (1.0 - c1) / x};
}

/// A value that the solution does not exceed, for a time after perihelion: Newton's steps from it
/// come down on the solution without ever crossing it.
double UpperBound(double q, double e, double gravity, double beta, double days) {
  const double atPerihelionSpeed = days / q;
  const double root = std::sqrt(std::abs(beta));
  const double meanAnomaly = days * root * std::abs(beta) / gravity;
  if (beta > 0.0) {
    // x - sin x is at least x^3 / 11.85 up to half a turn.
    const double cubic = std::cbrt(11.85 * days / (gravity * e));
    return std::min({atPerihelionSpeed, std::min(meanAnomaly + e, std::numbers::pi) / root, cubic});
  }
  const double cubic = std::cbrt(6.0 * days / (gravity * e));
  const double hyperbolic = beta < 0.0 ? std::asinh(meanAnomaly / (e - 1.0)) / root : kInfinite;
  return std::min({atPerihelionSpeed, cubic, hyperbolic});
}

bool IsOrbit(const OrbitElements& orbit) {
  return orbit.perihelionDistanceAu > 0.0 && orbit.eccentricity >= 0.0 && orbit.gravity > 0.0 &&
         std::isfinite(orbit.perihelionDistanceAu) && std::isfinite(orbit.eccentricity);
}

/// The place in the plane of the orbit, x towards perihelion.
struct PlanarState {
  double x;
  double y;
  double xVelocity;
  double yVelocity;
};

PlanarState PlanarStateAt(const OrbitElements& orbit, double jdTt) {
  const double q = orbit.perihelionDistanceAu;
  const double e = orbit.eccentricity;
  double days = jdTt - orbit.perihelionJd;
  if (!IsOrbit(orbit) || !std::isfinite(days)) return {kNotKnown, kNotKnown, kNotKnown, kNotKnown};
  if (const double period = PeriodDays(orbit); period < kInfinite) {
    days = std::remainder(days, period);
  }
  const double s = SolveUniversalKepler(q, e, orbit.gravity, days);
  const Stumpff c = StumpffFunctions(orbit.gravity * (1.0 - e) / q * s * s);
  const double radius = q + orbit.gravity * e * s * s * c.c2;
  const double across = std::sqrt(orbit.gravity * q * (1.0 + e));
  return {q - orbit.gravity * s * s * c.c2, across * s * c.c1, -orbit.gravity * s * c.c1 / radius,
          across * c.c0 / radius};
}

Vector3 InSpace(const OrbitPlane& plane, double x, double y) {
  return plane.towardsPerihelion * x + plane.aheadOfPerihelion * y;
}

/// The anomaly beyond which the orbit lies farther out than `farthestAu`; pi when it never does.
double AnomalyAtDistance(double q, double e, double farthestAu) {
  if (e < 1.0 && q * (1.0 + e) / (1.0 - e) <= farthestAu) return std::numbers::pi;
  return std::acos(std::clamp((q * (1.0 + e) / farthestAu - 1.0) / e, -1.0, 1.0));
}

Vector3 PointAtTrueAnomaly(const OrbitElements& orbit, const OrbitPlane& plane, double anomaly) {
  const double radius = orbit.perihelionDistanceAu * (1.0 + orbit.eccentricity) /
                        (1.0 + orbit.eccentricity * std::cos(anomaly));
  return InSpace(plane, radius * std::cos(anomaly), radius * std::sin(anomaly));
}

Vector3 PointAtEccentricAnomaly(const OrbitElements& orbit, const OrbitPlane& plane,
                                double anomaly) {
  const double e = orbit.eccentricity;
  const double semiMajorAxis = orbit.perihelionDistanceAu / (1.0 - e);
  return InSpace(plane, semiMajorAxis * (std::cos(anomaly) - e),
                 semiMajorAxis * std::sqrt(1.0 - e * e) * std::sin(anomaly));
}

Matrix3 EclipticOfEpoch(double julianEpoch) {
  double matrix[3][3];
  eraLtecm(julianEpoch, matrix);
  Matrix3 result;
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) result.rows[i][j] = matrix[i][j];
  }
  return result;
}

/// Angles of an orbit from its two axes.
void SetAngles(OrbitElements& orbit, const OrbitPlane& plane) {
  const Vector3 pole = Cross(plane.towardsPerihelion, plane.aheadOfPerihelion);
  orbit.inclinationDeg = std::atan2(std::hypot(pole.x, pole.y), pole.z) * kDegPerRad;
  // Without an inclination the node may lie anywhere; perihelion is then told from the equinox.
  const bool flat = std::hypot(pole.x, pole.y) < 1e-14;
  const Vector3 node = flat ? Vector3{1.0, 0.0, 0.0} : Normalized({-pole.y, pole.x, 0.0});
  orbit.ascendingNodeDeg = degmal(std::atan2(node.y, node.x) * kDegPerRad);
  orbit.argumentOfPerihelionDeg =
      degmal(std::atan2(-Dot(node, plane.aheadOfPerihelion), Dot(node, plane.towardsPerihelion)) *
             kDegPerRad);
}

/// The s of a place on an orbit, from its y in the plane of the orbit; `c0` is that of the place.
double UniversalAnomaly(double sTimesC1, double c0, double beta) {
  const double x = beta * sTimesC1 * sTimesC1;
  if (std::abs(x) < 1e-4 && c0 > 0.0) return sTimesC1 * (1.0 + x / 6.0 + 3.0 * x * x / 40.0);
  const double root = std::sqrt(std::abs(beta));
  return (beta > 0.0 ? std::atan2(root * sTimesC1, c0) : std::asinh(root * sTimesC1)) / root;
}

double DaysSincePerihelion(const OrbitElements& orbit, double x, double y) {
  const double q = orbit.perihelionDistanceAu;
  const double e = orbit.eccentricity;
  const double beta = orbit.gravity * (1.0 - e) / q;
  const double c0 = 1.0 - beta * (q - x) / orbit.gravity;
  const double s = UniversalAnomaly(y / std::sqrt(orbit.gravity * q * (1.0 + e)), c0, beta);
  return q * s + orbit.gravity * e * s * s * s * StumpffFunctions(beta * s * s).c3;
}

}  // namespace

double SolveUniversalKepler(double perihelionDistanceAu, double eccentricity, double gravity,
                            double daysSincePerihelion) {
  const double q = perihelionDistanceAu;
  const double beta = gravity * (1.0 - eccentricity) / q;
  const double days = std::abs(daysSincePerihelion);
  double s = UpperBound(q, eccentricity, gravity, beta, days);
  for (int step = 0; step < kMostSteps; ++step) {
    const Stumpff c = StumpffFunctions(beta * s * s);
    const double excess = q * s + gravity * eccentricity * s * s * s * c.c3 - days;
    const double slope = q + gravity * eccentricity * s * s * c.c2;
    const double next = s - excess / slope;
    // The next error goes with the square of this step.
    const bool settled = !(s - next > 1e-8 * s);
    s = next;
    if (settled) break;
  }
  return std::copysign(s, daysSincePerihelion);
}

OrbitPlane PlaneOf(const OrbitElements& orbit) {
  const double w = orbit.argumentOfPerihelionDeg * kRadPerDeg;
  const double node = orbit.ascendingNodeDeg * kRadPerDeg;
  const double i = orbit.inclinationDeg * kRadPerDeg;
  const Vector3 towardsNode{std::cos(node), std::sin(node), 0.0};
  const Vector3 aheadOfNode{-std::sin(node) * std::cos(i), std::cos(node) * std::cos(i),
                            std::sin(i)};
  return {towardsNode * std::cos(w) + aheadOfNode * std::sin(w),
          aheadOfNode * std::cos(w) - towardsNode * std::sin(w)};
}

Vector3 PositionAt(const OrbitElements& orbit, const OrbitPlane& plane, double jdTt) {
  const PlanarState state = PlanarStateAt(orbit, jdTt);
  return InSpace(plane, state.x, state.y);
}

Vector3 PositionAt(const OrbitElements& orbit, double jdTt) {
  return PositionAt(orbit, PlaneOf(orbit), jdTt);
}

StateVector StateAt(const OrbitElements& orbit, const OrbitPlane& plane, double jdTt) {
  const PlanarState state = PlanarStateAt(orbit, jdTt);
  return {InSpace(plane, state.x, state.y), InSpace(plane, state.xVelocity, state.yVelocity)};
}

StateVector StateAt(const OrbitElements& orbit, double jdTt) {
  return StateAt(orbit, PlaneOf(orbit), jdTt);
}

OrbitElements OsculatingElements(const StateVector& state, double jdTt, double gravity) {
  const auto& [position, velocity] = state;
  const Vector3 momentum = Cross(position, velocity);
  const Vector3 towards = Cross(velocity, momentum) / gravity - Normalized(position);
  OrbitElements orbit;
  orbit.gravity = gravity;
  orbit.eccentricity = Length(towards);
  orbit.perihelionDistanceAu = Dot(momentum, momentum) / gravity / (1.0 + orbit.eccentricity);
  if (!(orbit.perihelionDistanceAu > 0.0)) return {.perihelionJd = kNotKnown};
  // A circle has no perihelion; the place itself serves.
  const Vector3 perihelion = Normalized(orbit.eccentricity > 1e-12 ? towards : position);
  const Vector3 ahead = Cross(Normalized(momentum), perihelion);
  SetAngles(orbit, {perihelion, ahead});
  orbit.perihelionJd =
      jdTt - DaysSincePerihelion(orbit, Dot(position, perihelion), Dot(position, ahead));
  return orbit;
}

double PeriodDays(const OrbitElements& orbit) {
  if (orbit.eccentricity >= 1.0) return kInfinite;
  const double semiMajorAxis = orbit.perihelionDistanceAu / (1.0 - orbit.eccentricity);
  return 2.0 * std::numbers::pi * std::sqrt(semiMajorAxis / orbit.gravity) * semiMajorAxis;
}

OrbitElements ReferredToJ2000(const OrbitElements& orbit, double equinoxYear) {
  if (equinoxYear == 2000.0 || !std::isfinite(equinoxYear)) return orbit;
  constexpr double kB1950 = 1949.99979;
  const double epoch = equinoxYear == 1950.0 ? kB1950 : equinoxYear;
  const Matrix3 rotation = EclipticOfEpoch(2000.0) * Transposed(EclipticOfEpoch(epoch));
  const OrbitPlane plane = PlaneOf(orbit);
  OrbitElements referred = orbit;
  SetAngles(referred, {rotation * plane.towardsPerihelion, rotation * plane.aheadOfPerihelion});
  return referred;
}

std::vector<Vector3> OrbitPolyline(const OrbitElements& orbit, int count, double farthestAu) {
  const double q = orbit.perihelionDistanceAu;
  if (!IsOrbit(orbit) || !(q < farthestAu) || count < 2) return {};
  const OrbitPlane plane = PlaneOf(orbit);
  const double limit = AnomalyAtDistance(q, orbit.eccentricity, farthestAu);
  const bool closed = limit == std::numbers::pi;
  std::vector<Vector3> points(count);
  for (int i = 0; i < count; ++i) {
    const double anomaly = limit * (2.0 * i / (count - 1) - 1.0);
    points[i] = closed ? PointAtEccentricAnomaly(orbit, plane, anomaly)
                       : PointAtTrueAnomaly(orbit, plane, anomaly);
  }
  if (closed) points.back() = points.front();
  return points;
}

}  // namespace vyn
