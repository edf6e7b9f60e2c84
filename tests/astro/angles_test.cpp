// Angles in degrees and directions.
#include "siblings/astro/angles.h"

#include <cmath>

#include <gtest/gtest.h>

#include "siblings/astro/direction_cosines.h"

namespace vyn {
namespace {

TEST(Angles, DegmalStaysBelowAFullTurn) {
  const double cases[][2] = {{0, 0},        {360, 0},    {-360, 0},  {725.5, 5.5},
                             {-0.5, 359.5}, {-1e-20, 0}, {1e9, 280}, {-1e9, 80}};
  for (const auto& [angle, expected] : cases) EXPECT_DOUBLE_EQ(degmal(angle), expected) << angle;
  EXPECT_FALSE(std::signbit(degmal(-0.0)));
  EXPECT_TRUE(std::isnan(degmal(INFINITY)));
}

TEST(Angles, DegTo60SplitsAndKeepsTheSignOfSmallAngles) {
  struct Case {
    double angleDeg;
    double secondStep;
    SexagesimalAngle expected;
  };
  const Case cases[] = {
      {139.75, 0.001, {1, 139, 45, 0.0}},
      {-139.745833333, 1.0, {-1, 139, 44, 45.0}},
      {-0.5, 1.0, {-1, 0, 30, 0.0}},
      {0.0, 1.0, {1, 0, 0, 0.0}},
      {59.9999999999, 0.001, {1, 60, 0, 0.0}},
      {10 + 59.96 / 3600, 0.1, {1, 10, 1, 0.0}},
      {35 + 39.0 / 60 + 29.1572 / 3600, 0.0001, {1, 35, 39, 29.1572}},
      {INFINITY, 1.0, {1, 0, 0, 0.0}},
  };
  for (const auto& [angleDeg, secondStep, expected] : cases) {
    SCOPED_TRACE(angleDeg);
    const SexagesimalAngle split = DegTo60(angleDeg, secondStep);
    EXPECT_EQ(split.sign, expected.sign);
    EXPECT_EQ(split.degrees, expected.degrees);
    EXPECT_EQ(split.minutes, expected.minutes);
    EXPECT_NEAR(split.seconds, expected.seconds, 1e-9);
  }
}

TEST(Angles, EveryWholeSecondSplitsIntoWholeSeconds) {
  for (int second = 0; second < 360 * 3600; ++second) {
    const SexagesimalAngle split = DegTo60(second / 3600.0, 0.1);
    ASSERT_EQ(split.degrees * 3600 + split.minutes * 60 + static_cast<int>(split.seconds + 0.05),
              second);
    ASSERT_LT(split.seconds, 59.95);
  }
}

TEST(DirectionCosines, RotationTellsTheSameDirectionInATurnedFrame) {
  // Pollux, Meeus "Astronomical Algorithms", example 13.a: from the equator to the ecliptic.
  const Spherical ecliptic =
      DcToAd(RotateDc(FrameRotationX(23.4392911), AdToDc(116.328942, 28.026183)));
  EXPECT_NEAR(ecliptic.longitudeDeg, 113.215630, 1e-6);
  EXPECT_NEAR(ecliptic.latitudeDeg, 6.684170, 1e-6);

  const Matrix3 there = FrameRotationZ(40) * FrameRotationY(-70) * FrameRotationX(200);
  const Spherical back = DcToAd(RotateDc(Transposed(there), RotateDc(there, AdToDc(-100, -45))));
  EXPECT_NEAR(back.longitudeDeg, 260.0, 1e-12);
  EXPECT_NEAR(back.latitudeDeg, -45.0, 1e-12);
}

TEST(DirectionCosines, PolesAndTheZeroVectorHaveAnglesToo) {
  EXPECT_NEAR(DcToAd(AdToDc(33, 90)).latitudeDeg, 90.0, 1e-12);
  EXPECT_EQ(DcToAd({}).longitudeDeg, 0.0);
  EXPECT_EQ(DcToAd({}).latitudeDeg, 0.0);
}

}  // namespace
}  // namespace vyn
