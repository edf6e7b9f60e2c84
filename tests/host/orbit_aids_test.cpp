#include <cmath>

#include <gtest/gtest.h>

#include "engine/reference_engine.h"
#include "engine/sky/satellites.h"
#include "host/display_state.h"
#include "host/orbit_aids.h"
#include "host/view_state.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr double kSpanDays = 5.0;

class MotionTest : public testing::TestWithParam<SkyBody> {
 protected:
  Scene SceneAt(int day) {
    engine_.LoadStartingState();
    engine_.Doit(u"time = jst(2026, 3, %1, 9, 0, 0)"_s.arg(day));
    return BuildScene(engine_, ViewKind::Ecliptic);
  }

  static std::vector<Vector3> Motion(const Scene& scene, double multiplier) {
    BodyDisplay display;
    display.vectorSpanDays = kSpanDays;
    display.vectorMultiplier = multiplier;
    return MotionInTheSky(scene.Of(GetParam()), display, scene);
  }

  ReferenceEngine engine_;
};

// The site turns with the Earth, some minutes more than five times: that is too little to matter
// for anything as far away as a planet.
TEST_P(MotionTest, ArrowEndsWhereTheBodyIsSeenThen) {
  const Scene now = SceneAt(1);
  const Scene then = SceneAt(6);
  const auto way = Motion(now, 1.0);
  EXPECT_LT(AngleBetween(way.front(), now.Of(GetParam()).seen), 1e-9);
  EXPECT_LT(AngleBetween(way.back(), then.Of(GetParam()).seen) * kDegPerRad, 0.02);
}

TEST_P(MotionTest, ArrowIsLengthenedButEndsHalfRoundTheSky) {
  const Scene scene = SceneAt(1);
  const auto length = [&](double multiplier) {
    double sum = 0.0;
    const auto way = Motion(scene, multiplier);
    for (std::size_t i = 1; i < way.size(); ++i) sum += AngleBetween(way[i - 1], way[i]);
    return sum * kDegPerRad;
  };
  EXPECT_NEAR(length(3.0), std::min(3.0 * length(1.0), 180.0), 1e-6);
  EXPECT_LE(length(1e6), 180.0 + 1e-6);
}

INSTANTIATE_TEST_SUITE_P(Bodies, MotionTest,
                         testing::Values(SkyBody::Mercury, SkyBody::Mars, SkyBody::Jupiter,
                                         SkyBody::Ceres, SkyBody::Eris));

TEST(OrbitAidsTest, PerpendicularsLeadFromTheOrbitToTheEcliptic) {
  const double jdTt = 2461042.0;
  const auto segments = OrbitPerpendiculars(SkyBody::Eris, jdTt);
  ASSERT_GT(segments.size(), 36U);
  const OrbitPlane plane = PlaneOf(OrbitOf(SkyBody::Eris, jdTt));
  const Vector3 pole = Cross(plane.towardsPerihelion, plane.aheadOfPerihelion);
  for (const auto& [place, foot] : segments) {
    EXPECT_NEAR(Dot(place, pole), 0.0, 1e-9);
    EXPECT_EQ(foot, (Vector3{place.x, place.y, 0.0}));
  }
}

// The prime meridian of Pluto is the one that always faces Charon; Eris is taken to turn in the
// plane of its satellite.
TEST(SkyBodyTest, DwarfPlanetsTurnAsTheirSatellitesSay) {
  for (const double jdTt : {2461042.0, 2461045.2}) {
    const auto inFrame = [&](SkyBody body, Primary primary, int number) {
      return DcToAd(ToBodyFixed(body, jdTt) * SatellitePosition(primary, number, jdTt));
    };
    const Spherical charon = inFrame(SkyBody::Pluto, Primary::Pluto, 1);
    EXPECT_NEAR(std::remainder(charon.longitudeDeg, 360.0), 0.0, 3.0);
    EXPECT_NEAR(charon.latitudeDeg, 0.0, 1.0);
    EXPECT_NEAR(inFrame(SkyBody::Eris, Primary::Eris, 1).latitudeDeg, 0.0, 0.5);
  }
}

// Pluto entered Aquarius for good in November 2024 and goes some 1.8 degrees a year.
TEST(SkyBodyTest, PlutoIsSeenWhereItIs) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  engine.Doit(u"time = jst(2026, 1, 23, 9, 0, 0)"_s);
  const Scene scene = BuildScene(engine, ViewKind::Ecliptic);
  const Spherical place = DcToAd(scene.viewpoint.toView * scene.Of(SkyBody::Pluto).seen);
  // Its conjunction with the Sun fell on this day.
  const Spherical sun = DcToAd(scene.viewpoint.toView * scene.Of(SkyBody::Sun).seen);
  EXPECT_NEAR(place.longitudeDeg, sun.longitudeDeg, 1.0);
  EXPECT_NEAR(scene.Of(SkyBody::Pluto).magnitude, 14.5, 0.4);
}

}  // namespace
}  // namespace vyn
