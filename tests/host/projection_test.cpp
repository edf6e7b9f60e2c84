#include <cmath>

#include <gtest/gtest.h>

#include "host/line_builder.h"
#include "host/outside_camera.h"
#include "host/sky_projection.h"

namespace vyn {
namespace {

const QSizeF kSize(1200.0, 800.0);

struct SkyCase {
  Spherical center;
  double angleDeg;
};

class SkyProjectionTest : public testing::TestWithParam<SkyCase> {
 protected:
  SkyProjection projection_{GetParam().center, GetParam().angleDeg, kSize};
};

TEST_P(SkyProjectionTest, PointsComeBackFromTheirDirections) {
  for (int x = 0; x <= 1200; x += 150) {
    for (int y = 0; y <= 800; y += 100) {
      const Vector3 direction = projection_.ToDirection(QPointF(x, y));
      EXPECT_NEAR(Length(direction), 1.0, 1e-12);
      const auto back = projection_.ToPicture(5.0 * direction);
      ASSERT_TRUE(back.has_value());
      EXPECT_NEAR(back->x(), x, 1e-6);
      EXPECT_NEAR(back->y(), y, 1e-6);
    }
  }
}

TEST_P(SkyProjectionTest, ShorterSideShowsTheAngle) {
  const double degrees =
      AngleBetween(projection_.ToDirection({600.0, 0.0}), projection_.ToDirection({600.0, 400.0})) *
      180.0 / std::numbers::pi;
  EXPECT_NEAR(degrees, GetParam().angleDeg / 2.0, 1e-9);
}

TEST_P(SkyProjectionTest, AxesLeadRightAndUpByTheScaleThere) {
  const Vector3 direction = projection_.ToDirection({850.0, 150.0});
  const PictureAxes axes = projection_.AxesAt(direction);
  const double scale = projection_.PixelsPerRadian(direction);
  constexpr double kStep = 1e-5;
  const auto right = projection_.ToPicture(direction + kStep * axes.right);
  const auto up = projection_.ToPicture(direction + kStep * axes.up);
  EXPECT_NEAR((right->x() - 850.0) / kStep / scale, 1.0, 1e-3);
  EXPECT_NEAR((right->y() - 150.0) / kStep / scale, 0.0, 1e-3);
  EXPECT_NEAR((150.0 - up->y()) / kStep / scale, 1.0, 1e-3);
}

INSTANTIATE_TEST_SUITE_P(Views, SkyProjectionTest,
                         testing::Values(SkyCase{{180.0, 40.0}, 100.0}, SkyCase{{0.0, 0.0}, 0.5},
                                         SkyCase{{-75.0, 89.0}, 60.0},
                                         SkyCase{{300.0, -60.0}, 170.0}));

TEST(SkyProjectionTest, LongitudeGrowsToTheLeftAndTheBackIsNotShown) {
  const SkyProjection projection({90.0, 0.0}, 60.0, kSize);
  EXPECT_LT(projection.ToPicture(AdToDc(95.0, 0.0))->x(), 600.0);
  EXPECT_LT(projection.ToPicture(AdToDc(90.0, 5.0))->y(), 400.0);
  EXPECT_FALSE(projection.ToPicture(AdToDc(270.0, 0.0)).has_value());
  EXPECT_FALSE(projection.ToPicture(Vector3{}).has_value());
}

TEST(OutsideCameraTest, LooksAtItsTargetWithNorthUp) {
  const Vector3 target{1.0, 2.0, 3.0};
  const OutsideCamera camera(target, {30.0, 20.0}, 10.0, kSize);
  EXPECT_EQ(camera.ToPicture(target), QPointF(600.0, 400.0));
  EXPECT_NEAR(camera.DepthAu(target), 10.0, 1e-12);
  EXPECT_LT(camera.ToPicture(target + Vector3{0.0, 0.0, 1.0})->y(), 400.0);
  const Vector3 towardsCamera = AdToDc(30.0, 20.0);
  EXPECT_NEAR(camera.PixelsPerAu(target + 5.0 * towardsCamera), 2.0 * camera.PixelsPerAu(target),
              1e-9);
  EXPECT_FALSE(camera.ToPicture(target + 11.0 * towardsCamera).has_value());
}

TEST(OutsideCameraTest, CutsALineWhereItPassesTheCamera) {
  const OutsideCamera camera({}, {0.0, 0.0}, 10.0, kSize);
  Vector3 from{0.0, 0.0, 0.0};
  Vector3 to{20.0, 0.0, 0.0};
  ASSERT_TRUE(camera.ClipToFront(&from, &to));
  EXPECT_EQ(from, Vector3{});
  EXPECT_LT(to.x, 10.0);
  EXPECT_TRUE(camera.ToPicture(to).has_value());
  Vector3 behind{15.0, 0.0, 0.0};
  Vector3 fartherBehind{20.0, 0.0, 0.0};
  EXPECT_FALSE(camera.ClipToFront(&behind, &fartherBehind));
}

TEST(LineBuilderTest, KeepsLinesNearThePicture) {
  LineBuilder line({100.0, 100.0});
  line.To(QPointF(-1e7, 50.0));
  line.To(QPointF(1e7, 50.0));
  line.To(std::nullopt);
  line.To(QPointF(50.0, 1e6));
  line.To(QPointF(60.0, 1e6));
  const QRectF bounds = line.Path().boundingRect();
  EXPECT_LT(bounds.width(), 200.0);
  EXPECT_DOUBLE_EQ(bounds.top(), 50.0);
  EXPECT_DOUBLE_EQ(bounds.bottom(), 50.0);
}

TEST(LineBuilderTest, SpaceLineIsInterruptedBehindTheCamera) {
  const OutsideCamera camera({}, {0.0, 20.0}, 1.0, kSize);
  // A circle that passes behind the camera: a closed line becomes an open one.
  const auto circle = CirclePoints({}, {1.5, 0.0, 0.0}, {0.0, 1.5, 0.0}, 90);
  const QPainterPath path = SpaceLine(camera, circle);
  ASSERT_FALSE(path.isEmpty());
  const QRectF picture(QPointF(), kSize);
  EXPECT_TRUE(picture.adjusted(-50.0, -50.0, 50.0, 50.0).contains(path.boundingRect()));
}

}  // namespace
}  // namespace vyn
