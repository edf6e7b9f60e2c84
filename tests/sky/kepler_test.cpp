// Orbits: worked examples, every shape of orbit against the equation itself, there and back.
#include "engine/sky/kepler.h"

#include <chrono>
#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "siblings/astro/angles.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

double TrueAnomalyDeg(const OrbitElements& orbit, double jd) {
  const OrbitPlane plane = PlaneOf(orbit);
  const Vector3 place = PositionAt(orbit, plane, jd);
  return std::atan2(Dot(place, plane.aheadOfPerihelion), Dot(place, plane.towardsPerihelion)) *
         kDegPerRad;
}

TEST(Kepler, WorkedExamplesOfEveryShape) {
  // Meeus, "Astronomical Algorithms" (2nd ed.): example 34.a (parabola) and the table of chapter 35
  // (near-parabolic), given to five decimals.
  struct Case {
    double q;
    double e;
    double days;
    double anomalyDeg;
    double radius;
  };
  const Case cases[] = {
      {1.487469, 1.0, 112.5642, 66.78862, 2.133911},
      {0.921326, 1.00000, 138.4783, 102.74426, 2.364192},
      {0.1, 0.987, 254.9, 164.50029, 4.063777},
      {0.123456, 0.99997, -30.47, 221.91190 - 360, 0.965053},
      {3.363943, 1.05731, 1237.1, 109.40598, 10.668551},
      {0.5871018, 0.9672746, 20.0, 52.85331, 0.729116},
      {0.5871018, 0.9672746, 0.0, 0.0, 0.5871018},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.anomalyDeg);
    const OrbitElements orbit{.perihelionDistanceAu = c.q, .eccentricity = c.e};
    EXPECT_NEAR(TrueAnomalyDeg(orbit, c.days), c.anomalyDeg, 1.1e-5);
    EXPECT_NEAR(Length(PositionAt(orbit, c.days)), c.radius, 1.1e-6);
  }
}

TEST(Kepler, EllipseAgreesWithItsOwnEquation) {
  for (const double e : {0.0, 0.01, 0.3, 0.7, 0.97, 0.9999, 0.99999999}) {
    for (double anomaly = -3.1; anomaly < 3.2; anomaly += 0.05) {
      const double semiMajorAxis = 3.0;
      const double motion = std::sqrt(kSunGravity / semiMajorAxis) / semiMajorAxis;
      const double days = (anomaly - e * std::sin(anomaly)) / motion;
      const OrbitElements orbit{.perihelionDistanceAu = semiMajorAxis * (1.0 - e),
                                .eccentricity = e};
      const double x = semiMajorAxis * (std::cos(anomaly) - e);
      const double y = semiMajorAxis * std::sqrt((1.0 - e) * (1.0 + e)) * std::sin(anomaly);
      // Close to perihelion the time itself, a difference of nearly equal numbers, is less exact.
      const double tolerance =
          1e-12 * semiMajorAxis + 4e-16 / motion / (1.0 - e * std::cos(anomaly));
      const Vector3 place = PositionAt(orbit, days);
      ASSERT_NEAR(place.x, x, tolerance) << e << ' ' << anomaly;
      ASSERT_NEAR(place.y, y, tolerance) << e << ' ' << anomaly;
      const Vector3 turnsLater = PositionAt(orbit, days + 3.0 * PeriodDays(orbit));
      ASSERT_NEAR(Length(turnsLater - place), 0.0, 1e-8);
    }
  }
}

TEST(Kepler, SolutionSatisfiesTheEquationForEveryShapeAndTime) {
  for (const double e : {0.0, 0.5, 0.99, 0.9999999, 1.0, 1.0000001, 1.01, 1.2, 3.4, 9.99, 50.0}) {
    for (const double q : {1e-4, 0.005, 0.5, 5.0, 90.0}) {
      const double beta = kSunGravity * (1.0 - e) / q;
      const double farthest = e < 1.0 ? std::numbers::pi * std::sqrt(kSunGravity) /
                                            std::pow(beta / std::cbrt(kSunGravity), 1.5)
                                      : 1e8;
      for (const double days : {1e-6, 0.1, 10.0, 1e3, 1e5, 1e8}) {
        const double time = std::min(days, 0.999 * farthest);
        const double s = SolveUniversalKepler(q, e, kSunGravity, time);
        const double root = std::sqrt(std::abs(beta)) * s;
        const double cubic = std::abs(beta * s * s) < 1e-6
                                 ? s * s * s / 6.0 * (1.0 - beta * s * s / 20.0)
                                 : (e < 1.0 ? root - std::sin(root) : std::sinh(root) - root) /
                                       std::pow(std::abs(beta), 1.5);
        ASSERT_NEAR((q * s + kSunGravity * e * cubic) / time, 1.0, 1e-9)
            << e << ' ' << q << ' ' << days;
        ASSERT_EQ(SolveUniversalKepler(q, e, kSunGravity, -time), -s);
      }
    }
  }
}

TEST(Kepler, UnusableElementsGiveNoPlaceAndNoEndlessLoop) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double huge = std::numeric_limits<double>::max();
  const OrbitElements bad[] = {
      {.perihelionJd = nan},
      {.perihelionDistanceAu = 0.0},
      {.perihelionDistanceAu = -1},
      {.perihelionDistanceAu = nan},
      {.eccentricity = -0.1},
      {.eccentricity = nan},
      {.perihelionDistanceAu = INFINITY},
  };
  for (const OrbitElements& orbit : bad) {
    EXPECT_TRUE(std::isnan(PositionAt(orbit, 2451545.0).x));
    EXPECT_TRUE(OrbitPolyline({.perihelionDistanceAu = -1}, 100, 40).empty());
  }
  const OrbitElements extreme[] = {{.perihelionDistanceAu = huge},
                                   {.perihelionDistanceAu = 1e-300},
                                   {.eccentricity = huge},
                                   {.eccentricity = 1.0 + 1e-16}};
  for (const OrbitElements& orbit : extreme) {
    for (const double jd : {0.0, 1e300, -huge}) PositionAt(orbit, jd);
  }
  SUCCEED();
}

TEST(Kepler, ElementsComeBackFromPlaceAndVelocity) {
  for (const double e : {0.0, 0.0167, 0.5, 0.995, 0.9999999, 1.0, 1.0000001, 1.05, 3.0}) {
    for (const double days : {-400.0, -20.0, 0.0, 3.0, 300.0}) {
      SCOPED_TRACE(testing::Message() << e << ' ' << days);
      const OrbitElements orbit{.perihelionJd = 2451545.0,
                                .perihelionDistanceAu = 2.3,
                                .eccentricity = e,
                                .argumentOfPerihelionDeg = 123.4,
                                .ascendingNodeDeg = 321.0,
                                .inclinationDeg = 162.3};
      const double jd = orbit.perihelionJd + days;
      const OrbitElements found = OsculatingElements(StateAt(orbit, jd), jd, kSunGravity);
      EXPECT_NEAR(found.eccentricity, e, 1e-12);
      EXPECT_NEAR(found.perihelionDistanceAu, 2.3, 1e-11);
      EXPECT_NEAR(found.inclinationDeg, 162.3, 1e-9);
      EXPECT_NEAR(found.ascendingNodeDeg, 321.0, 1e-9);
      if (e > 0.0) {
        EXPECT_NEAR(found.argumentOfPerihelionDeg, 123.4, 1e-8);
        EXPECT_NEAR(found.perihelionJd, orbit.perihelionJd, 1e-6);
      }
      for (const double later : {0.0, 55.0}) {
        EXPECT_NEAR(Length(PositionAt(found, jd + later) - PositionAt(orbit, jd + later)), 0.0,
                    1e-9);
      }
    }
  }
  EXPECT_TRUE(
      std::isnan(OsculatingElements({{1, 0, 0}, {0.01, 0, 0}}, 0, kSunGravity).perihelionJd));
}

TEST(Kepler, VelocityIsTheChangeOfPlace) {
  for (const double e : {0.0, 0.8, 1.0, 2.5}) {
    const OrbitElements orbit{.perihelionDistanceAu = 0.7, .eccentricity = e, .inclinationDeg = 40};
    const Vector3 velocity = StateAt(orbit, 40.0).velocity;
    const Vector3 change = (PositionAt(orbit, 40.01) - PositionAt(orbit, 39.99)) / 0.02;
    EXPECT_NEAR(Length(velocity - change), 0.0, 1e-9) << e;
  }
}

TEST(Kepler, LinesFollowTheOrbit) {
  const OrbitElements ellipse{.perihelionDistanceAu = 0.5, .eccentricity = 0.96};
  const std::vector<Vector3> closed = OrbitPolyline(ellipse, 101, 40.0);
  ASSERT_EQ(closed.size(), 101U);
  EXPECT_EQ(closed.front(), closed.back());
  EXPECT_NEAR(closed[50].x, 0.5, 1e-12);
  EXPECT_NEAR(Length(closed.front()), 24.5, 1e-9);

  for (const double e : {0.999, 1.0, 2.0}) {
    const OrbitElements open{.perihelionDistanceAu = 0.5, .eccentricity = e};
    const std::vector<Vector3> arc = OrbitPolyline(open, 100, 40.0);
    ASSERT_EQ(arc.size(), 100U);
    EXPECT_NEAR(Length(arc.front()), 40.0, 1e-9) << e;
    EXPECT_NEAR(Length(arc.back()), 40.0, 1e-9);
    EXPECT_LT(arc.front().y, 0.0) << "the incoming end comes first";
  }
  EXPECT_TRUE(OrbitPolyline({.perihelionDistanceAu = 41.0}, 100, 40.0).empty());
}

}  // namespace
}  // namespace vyn
