#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include "engine/reference_engine.h"
#include "engine/sky/magnitudes.h"
#include "host/scene.h"
#include "host/view_state.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

class SceneTest : public testing::Test {
 protected:
  SceneTest() { engine_.LoadStartingState(); }

  Scene Build(ViewKind kind = ViewKind::Horizon) const { return BuildScene(engine_, kind); }

  void LoadComets() {
    ASSERT_TRUE(
        engine_.LoadElements(ElementKind::Comet, QStringLiteral(VYN_DATA_DIR "/comets.eld")));
  }

  static Spherical InView(const Scene& scene, SkyBody body) {
    return DcToAd(scene.viewpoint.toView * scene.Of(body).seen);
  }

  ReferenceEngine engine_;
};

// Jupiter was opposite to the Sun on 2026-01-10, 9 hours UT.
TEST_F(SceneTest, EclipticViewShowsJupiterOppositeToTheSunAtItsOpposition) {
  engine_.Doit(QStringLiteral("time = jst(2026, 1, 10, 18, 0, 0)"));
  const Scene scene = Build(ViewKind::Ecliptic);
  const double apart =
      InView(scene, SkyBody::Jupiter).longitudeDeg - InView(scene, SkyBody::Sun).longitudeDeg;
  EXPECT_NEAR(degmal(apart), 180.0, 0.1);
  EXPECT_NEAR(InView(scene, SkyBody::Sun).latitudeDeg, 0.0, 0.01);
}

// At the equinox of 2026-03-20 the Sun culminates 90 degrees less the latitude high.
TEST_F(SceneTest, HorizonViewShowsTheNoonSunInTheSouth) {
  engine_.Doit(QStringLiteral("time = jst(2026, 3, 20, 11, 48, 20)"));
  const Spherical sun = InView(Build(), SkyBody::Sun);
  EXPECT_NEAR(degmal(-sun.longitudeDeg), 180.0, 0.5);
  EXPECT_NEAR(sun.latitudeDeg, 90.0 - 35.65, 0.25);
}

// An afternoon Sun is in the west: the azimuth grows to the right, the frame's longitude to the
// left.
TEST_F(SceneTest, HorizonViewHasWestAtAzimuth270) {
  engine_.Doit(QStringLiteral("time = jst(2026, 3, 20, 17, 30, 0)"));
  EXPECT_NEAR(degmal(-InView(Build(), SkyBody::Sun).longitudeDeg), 268.0, 3.0);
}

TEST_F(SceneTest, ObserverOnTheMoonSeesTheEarthOverhead) {
  engine_.SetLocationObject(1);
  engine_.Doit(QStringLiteral("location = location(0, 0, 0)"));
  const Scene scene = Build();
  EXPECT_EQ(scene.viewpoint.body, SkyBody::Moon);
  // Libration carries the Earth up to some ten degrees from the zenith.
  EXPECT_GT(InView(scene, SkyBody::Earth).latitudeDeg, 79.0);
  EXPECT_NEAR(2.0 * scene.Of(SkyBody::Earth).RadiusRad() * kDegPerRad, 1.95, 0.15);
  engine_.Doit(QStringLiteral("location = location(90, 0, 0)"));
  EXPECT_NEAR(InView(Build(), SkyBody::Earth).latitudeDeg, 0.0, 11.0);
  EXPECT_NEAR(degmal(-InView(Build(), SkyBody::Earth).longitudeDeg), 270.0, 11.0);
}

TEST_F(SceneTest, ObserverOnTheSunStandsOnItsSurface) {
  engine_.SetLocationObject(0);
  const Scene scene = Build();
  EXPECT_NEAR(Length(scene.viewpoint.position), scene.Of(SkyBody::Sun).RadiusAu(), 1e-6);
  EXPECT_NEAR(Length(scene.Of(SkyBody::Earth).seen), 0.983, 0.006);
}

TEST_F(SceneTest, CometsFollowTheirSwitchesAndTheLimit) {
  LoadComets();
  const auto all = Build().comets.size();
  EXPECT_GT(all, 1600U);
  engine_.Doit(QStringLiteral("Solar.Comet.No1.Individual = FALSE"));
  EXPECT_EQ(Build().comets.size(), all - 1);
  engine_.Doit(
      QStringLiteral("Solar.Comet.Individual = FALSE; Solar.Comet.Brighter.Visible = TRUE;"
                     "Solar.Comet.Brighter.Magnitude = 12.0"));
  const Scene limited = Build();
  EXPECT_GT(limited.comets.size(), 0U);
  EXPECT_LT(limited.comets.size(), 100U);
  for (const SceneSmallBody& comet : limited.comets) EXPECT_LE(comet.magnitude, 12.0);
  engine_.Doit(QStringLiteral("Solar.Comet.Visible = FALSE"));
  EXPECT_TRUE(Build().comets.empty());
}

TEST_F(SceneTest, CometsAreNamedAsTheirSwitchesSay) {
  LoadComets();
  EXPECT_TRUE(Build().comets.front().name.isEmpty());
  engine_.Doit(QStringLiteral("Solar.Comet.No1.EnglishName.Visible = TRUE"));
  const Scene scene = Build();
  EXPECT_EQ(scene.comets[0].name, engine_.Property(QStringLiteral("Solar.Comet.No1.EnglishName")));
  EXPECT_FALSE(scene.comets[0].name.isEmpty());
  EXPECT_TRUE(scene.comets[1].name.isEmpty());
}

}  // namespace
}  // namespace vyn
