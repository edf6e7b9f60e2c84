#include <cmath>
#include <numbers>

#include <QPainterPath>
#include <QPolygonF>

#include <gtest/gtest.h>

#include "engine/sky/observer.h"
#include "host/disk_painter.h"
#include "host/scene.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

/// Seen from the Earth's centre with celestial north up, as the almanacs have it.
Disk MoonDisk(double jdTt) {
  const Observer observer(jdTt, Site{});
  SceneBody moon{SkyBody::Moon, HeliocentricState(SkyBody::Moon, jdTt).position};
  moon.seen = moon.heliocentric - HeliocentricState(SkyBody::Earth, jdTt).position;
  const Vector3 sight = Normalized(moon.seen);
  const Vector3 right = Normalized(Cross(sight, observer.CelestialPole()));
  Disk disk = DiskOf(moon, jdTt, moon.seen, {right, Cross(right, sight)}, observer.CelestialPole());
  disk.center = {500.0, 500.0};
  disk.radius = 100.0;
  return disk;
}

double AreaOf(const QPolygonF& polygon) {
  double doubled = 0.0;
  for (int i = 1; i < polygon.size(); ++i) {
    doubled += polygon[i - 1].x() * polygon[i].y() - polygon[i].x() * polygon[i - 1].y();
  }
  return std::abs(doubled) / 2.0;
}

// Meeus, "Astronomical Algorithms" (2nd ed.), example 48.a: 1992 April 12, 0h TD.
TEST(DiskTest, MoonIsLitAsInTheAlmanac) {
  const Disk disk = MoonDisk(CalcJd(1992, 4, 12.0));
  EXPECT_NEAR(BrightLimbAngleDeg(disk), 285.0, 0.2);
  const double lit = AreaOf(LitPart(disk).toFillPolygon()) / (std::numbers::pi * 1e4);
  EXPECT_NEAR(lit, 0.6786, 0.003);
  // The bright limb is to the right and a little up, as the angle says.
  EXPECT_TRUE(LitPart(disk).contains(QPointF(590.0, 480.0)));
  EXPECT_FALSE(LitPart(disk).contains(QPointF(410.0, 520.0)));
}

// Example 53.a, the same date: libration -1.23 and +4.20.
TEST(DiskTest, MoonTurnsItsFaceAsInTheAlmanac) {
  const Disk disk = MoonDisk(CalcJd(1992, 4, 12.0));
  const auto middle = disk.AtPlace(-1.23, 4.20);
  ASSERT_TRUE(middle.has_value());
  EXPECT_NEAR(middle->x(), 500.0, 0.3);
  EXPECT_NEAR(middle->y(), 500.0, 0.3);
  EXPECT_FALSE(disk.AtPlace(180.0, 0.0).has_value());
  // Mare Crisium stands at the western edge of the sky, to the right.
  EXPECT_GT(disk.AtPlace(59.1, 16.2)->x(), 560.0);
}

struct PhaseCase {
  Vector3 light;
  double fraction;
};

class PhaseTest : public testing::TestWithParam<PhaseCase> {};

TEST_P(PhaseTest, LitPartHasTheRightSize) {
  Disk disk;
  disk.radius = 100.0;
  disk.light = GetParam().light;
  EXPECT_NEAR(AreaOf(LitPart(disk).toFillPolygon()) / (std::numbers::pi * 1e4), GetParam().fraction,
              0.003);
}

INSTANTIATE_TEST_SUITE_P(Phases, PhaseTest,
                         testing::Values(PhaseCase{{0.0, 0.0, 1.0}, 1.0},
                                         PhaseCase{{1.0, 0.0, 0.0}, 0.5},
                                         PhaseCase{{0.0, -0.8, 0.6}, 0.8},
                                         PhaseCase{{-0.6, 0.0, -0.8}, 0.1},
                                         PhaseCase{{0.0, 0.0, -1.0}, 0.0}));

}  // namespace
}  // namespace vyn
