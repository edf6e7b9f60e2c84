// The placement of an image by its handles, and the disk of sunspots.
#include <gtest/gtest.h>

#include "image_data/placement.h"
#include "image_data/sun_disk.h"

namespace vyn {
namespace {

using enum PlacementHandle;

constexpr PreviewGeometry kGeometry{QSize(300, 300), 300.0, 5};

TEST(CropToCover, TakesTheMiddleOfTheLongerSide) {
  const ImageCrop wide = CropToCover({6000, 4000}, {300, 200});
  EXPECT_EQ(wide.source, QRect(0, 0, 6000, 4000));
  EXPECT_EQ(wide.scale, 300.0);
  const ImageCrop wider = CropToCover({6000, 2000}, {300, 200});
  EXPECT_EQ(wider.source, QRect(1500, 0, 3000, 2000));
  EXPECT_EQ(wider.scale, 200.0);
  const ImageCrop tall = CropToCover({1000, 4000}, {300, 300});
  EXPECT_EQ(tall.source, QRect(0, 1500, 1000, 1000));
  EXPECT_EQ(tall.scale, 300.0);
  EXPECT_EQ(CropToCover({30000, 1}, {300, 300}).source.size(), QSize(1, 1));
}

TEST(PlacementLayout, StandsAtItsAnchors) {
  const PlacementLayout layout({0.1, -0.2, 0.25, 90.0}, kGeometry);
  EXPECT_EQ(layout.Centre(), QPoint(180, 90));
  EXPECT_EQ(layout.OutlineRadius(), 75.0);
  EXPECT_EQ(layout.Anchor(Roll), QPoint(180 + 75 + 15, 90));
  EXPECT_EQ(layout.Anchor(Horizontal), QPoint(15, 90));
  EXPECT_EQ(layout.Anchor(Vertical), QPoint(180, 285));
  EXPECT_EQ(layout.Anchor(Radius), QPoint(233, 37));
  EXPECT_EQ(layout.Square(Centre), QRect(175, 85, 10, 10));
}

TEST(PlacementLayout, TakesTheFirstHandleUnderTheMouse) {
  const PlacementLayout layout({}, kGeometry);
  const std::pair<QPoint, PlacementHandle> cases[] = {
      {{150, 150}, Centre},   {{145, 154}, Centre}, {{155, 150}, Horizontal},
      {{150, 155}, Vertical}, {{150, 45}, Roll},    {{299, 147}, Horizontal},
      {{147, 3}, Vertical},   {{214, 86}, Radius},  {{219, 86}, None},
      {{20, 20}, None},
  };
  for (const auto& [point, handle] : cases) {
    EXPECT_EQ(layout.HandleAt(point), handle) << point.x() << ',' << point.y();
  }
  // With no radius all but the roll lie on each other.
  EXPECT_EQ(PlacementLayout({0.0, 0.0, 0.01, 0.0}, kGeometry).HandleAt({152, 148}), Centre);
}

TEST(DragHandle, CentreAndLinesMoveWithinHalfTheScale) {
  const Placement moved = DragHandle({}, Centre, {182, 121}, {2, 1}, kGeometry);
  EXPECT_DOUBLE_EQ(moved.offsetX, 0.1);
  EXPECT_DOUBLE_EQ(moved.offsetY, -0.1);
  const Placement far = DragHandle(moved, Centre, {9999, -9999}, {}, kGeometry);
  EXPECT_EQ(far.offsetX, 0.5);
  EXPECT_EQ(far.offsetY, -0.5);
  const Placement across = DragHandle({}, Vertical, {180, 0}, {}, kGeometry);
  EXPECT_DOUBLE_EQ(across.offsetX, 0.1);
  EXPECT_EQ(across.offsetY, 0.0);
  const Placement down = DragHandle({}, Horizontal, {0, 180}, {}, kGeometry);
  EXPECT_EQ(down.offsetX, 0.0);
  EXPECT_DOUBLE_EQ(down.offsetY, 0.1);
}

TEST(DragHandle, RollAndRadiusFollowThePointFromTheCentre) {
  const Placement placement{0.1, 0.0, 0.2, 10.0};
  EXPECT_DOUBLE_EQ(DragHandle(placement, Roll, {250, 150}, {}, kGeometry).rollDeg, 90.0);
  EXPECT_DOUBLE_EQ(DragHandle(placement, Roll, {180, 20}, {}, kGeometry).rollDeg, 0.0);
  EXPECT_DOUBLE_EQ(DragHandle(placement, Roll, {100, 150}, {}, kGeometry).rollDeg, 270.0);
  EXPECT_DOUBLE_EQ(DragHandle(placement, Radius, {180 + 30, 150 - 40}, {}, kGeometry).radius,
                   50.0 / 300.0);
  EXPECT_EQ(DragHandle(placement, Radius, {180, 150}, {}, kGeometry).radius, 0.01);
  EXPECT_EQ(DragHandle(placement, Radius, {0, 0}, {}, kGeometry).radius, 0.5);
}

TEST(DragHandle, DoesNothingWithoutAnImage) {
  const Placement placement{0.1, 0.2, 0.2, 10.0};
  EXPECT_EQ(DragHandle(placement, Radius, {0, 0}, {}, {QSize(300, 300), 0.0, 5}).radius, 0.2);
}

TEST(ArrowMark, PointsWhereTheRollSays) {
  const QRect square(100, 100, 12, 12);
  const auto up = ArrowMark(square, 0.0);
  EXPECT_EQ(up, (std::array{QPoint(106, 100), QPoint(100, 112), QPoint(112, 112)}));
  // About the centroid (106, 108), clockwise.
  const auto right = ArrowMark(square, 90.0);
  EXPECT_EQ(right, (std::array{QPoint(114, 108), QPoint(102, 102), QPoint(102, 114)}));
}

TEST(SunDisk, PlacesComeBackFromTheirPoints) {
  const SunDisk disk({300, 300}, 238.0, 6.0);
  for (const QPoint point :
       {QPoint(150, 150), QPoint(60, 130), QPoint(200, 250), QPoint(151, 20)}) {
    const auto place = disk.GetSunLocation(point);
    ASSERT_TRUE(place);
    EXPECT_GE(place->longitudeDeg, -180.0);
    EXPECT_LE(place->longitudeDeg, 180.0);
    EXPECT_EQ(disk.GetSunPoint(place->longitudeDeg, place->latitudeDeg), point);
  }
  const auto middle = disk.GetSunLocation({150, 150});
  EXPECT_NEAR(middle->longitudeDeg, 238.0 - 360.0, 1e-9);
  EXPECT_NEAR(middle->latitudeDeg, 6.0, 1e-9);
}

TEST(SunDisk, LongitudesGrowToTheRightAndLatitudesUpwards) {
  const SunDisk disk({300, 300}, 0.0, 0.0);
  EXPECT_NEAR(disk.GetSunLocation({150 + disk.Radius(), 150})->longitudeDeg, 90.0, 1e-6);
  EXPECT_NEAR(disk.GetSunLocation({150, 150 - disk.Radius()})->latitudeDeg, 90.0, 1e-6);
  EXPECT_FALSE(disk.GetSunLocation({150 + disk.Radius(), 149}));
  EXPECT_FALSE(disk.GetSunPoint(100.0, 0.0));
  EXPECT_TRUE(disk.GetSunPoint(80.0, 0.0));
}

}  // namespace
}  // namespace vyn
