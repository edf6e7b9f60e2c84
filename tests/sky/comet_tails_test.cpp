// Tails of comets, against motion reckoned step by step.
#include <gtest/gtest.h>

#include "engine/sky/comet_tails.h"

namespace vyn {
namespace {

constexpr double kPerihelion = 2461000.5;

OrbitElements Orbit(double eccentricity) {
  return {.perihelionJd = kPerihelion,
          .perihelionDistanceAu = 0.4,
          .eccentricity = eccentricity,
          .argumentOfPerihelionDeg = 40.0,
          .ascendingNodeDeg = 100.0,
          .inclinationDeg = 60.0};
}

Vector3 Pull(const Vector3& place, double gravity) {
  const double r = Length(place);
  return place * (-gravity / (r * r * r));
}

/// Runge and Kutta's fourth order.
Vector3 SteppedPlace(StateVector state, double gravity, double days) {
  constexpr int kSteps = 20000;
  const double h = days / kSteps;
  for (int i = 0; i < kSteps; ++i) {
    const auto& [x, v] = state;
    const Vector3 a1 = Pull(x, gravity);
    const Vector3 a2 = Pull(x + v * (h / 2), gravity);
    const Vector3 a3 = Pull(x + v * (h / 2) + a1 * (h * h / 4), gravity);
    const Vector3 a4 = Pull(x + v * h + a2 * (h * h / 2), gravity);
    state = {x + v * h + (a1 + a2 + a3) * (h * h / 6),
             v + (a1 + 2.0 * a2 + 2.0 * a3 + a4) * (h / 6)};
  }
  return state.position;
}

TEST(CometTails, GrainsMoveAsSteppedForEveryPressure) {
  for (const double eccentricity : {0.6, 0.97, 1.0, 1.2}) {
    const OrbitElements orbit = Orbit(eccentricity);
    for (const double beta : {0.0, 0.2, 0.999999, 1.0, 1.5, 3.0}) {
      for (const double age : {0.5, 15.0, 90.0}) {
        const double jd = kPerihelion + 20.0;
        const Vector3 stepped =
            SteppedPlace(StateAt(orbit, jd - age), orbit.gravity * (1.0 - beta), age);
        EXPECT_LT(Length(GrainPlace(orbit, jd, age, beta) - stepped), 1e-7)
            << eccentricity << " " << beta << " " << age;
      }
    }
  }
}

TEST(CometTails, TheDustTailBeginsAtTheNucleusAndLagsBehindTheIons) {
  const OrbitElements orbit = Orbit(0.99);
  const double jd = kPerihelion + 30.0;
  const StateVector nucleus = StateAt(orbit, jd);
  const TailSheet dust = DustTail(orbit, jd, {.emissionSpanDays = 20.0});
  const TailSheet ions = IonTail(orbit, jd, 3.0);
  const Vector3 away = Normalized(nucleus.position);
  for (const auto& syndyne : dust) EXPECT_EQ(syndyne.front(), nucleus.position);
  const Vector3 dustEnd = dust.back().back() - nucleus.position;
  const Vector3 ionEnd = ions[1].back() - nucleus.position;
  EXPECT_GT(Dot(dustEnd, away), 0.0);
  EXPECT_LT(Dot(dustEnd, nucleus.velocity - Dot(nucleus.velocity, away) * away), 0.0);
  EXPECT_LT(AngleBetween(ionEnd, away), 0.15);
  EXPECT_LT(AngleBetween(ionEnd, away), AngleBetween(dustEnd, away));
  EXPECT_GT(Length(dustEnd), Length(dust.front().back() - nucleus.position))
      << "light drives the grains of the largest beta farthest";
  const auto edge = EdgeOf(dust);
  EXPECT_EQ(edge.front(), edge.back());
}

TEST(CometTails, NoSpanIsNoTail) {
  const TailSheet dust = DustTail(Orbit(0.9), kPerihelion, {.emissionSpanDays = 0.0});
  EXPECT_EQ(dust.front().back(), dust.back().back());
  EXPECT_TRUE(EdgeOf({}).empty());
  EXPECT_DOUBLE_EQ(AdjustedSpanDays(10.0, 4.0), 80.0);
}

}  // namespace
}  // namespace vyn
