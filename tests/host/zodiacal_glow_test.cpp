#include <gtest/gtest.h>

#include "host/zodiacal_glow.h"

namespace vyn {
namespace {

double Total(double longitude, double latitude) {
  const DustLight light = DustLightAt(longitude, latitude);
  return light.zodiacalLight + light.counterGlow;
}

TEST(ZodiacalGlowTest, TotalIsTheTableWithInterpolation) {
  EXPECT_DOUBLE_EQ(Total(30.0, 0.0), 1940.0);
  EXPECT_DOUBLE_EQ(Total(-90.0, -30.0), 103.0);
  EXPECT_DOUBLE_EQ(Total(330.0, 10.0), 955.0);
  EXPECT_DOUBLE_EQ(Total(180.0, 0.0), 180.0);
  EXPECT_DOUBLE_EQ(Total(52.5, 0.0), (710.0 + 395.0) / 2.0);
  EXPECT_DOUBLE_EQ(Total(0.0, 90.0), 60.0);
}

TEST(ZodiacalGlowTest, CounterGlowIsOppositeToTheSunOnly) {
  EXPECT_DOUBLE_EQ(DustLightAt(180.0, 0.0).counterGlow, 40.0);
  EXPECT_DOUBLE_EQ(DustLightAt(100.0, 0.0).counterGlow, 0.0);
  EXPECT_LT(DustLightAt(180.0, 20.0).counterGlow, DustLightAt(180.0, 0.0).counterGlow);
}

TEST(ZodiacalGlowTest, PictureIsBrightestTowardsTheSun) {
  const SkyProjection projection({0.0, 0.0}, 100.0, {800.0, 800.0});
  // The Sun stands 40 degrees to the left of the middle.
  const QImage image = DustLightImage(projection, Matrix3{}, 40.0, true, false);
  const int row = image.height() / 2;
  EXPECT_GT(qAlpha(image.pixel(image.width() / 8, row)),
            qAlpha(image.pixel(image.width() * 7 / 8, row)) + 50);
  const QImage off = DustLightImage(projection, Matrix3{}, 40.0, false, true);
  EXPECT_EQ(qAlpha(off.pixel(image.width() / 8, row)), 0);
}

}  // namespace
}  // namespace vyn
