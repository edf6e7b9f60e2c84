#include <cmath>

#include <QPointF>

#include <gtest/gtest.h>

#include "engine/reference_engine.h"
#include "host/display_state.h"
#include "host/scene.h"
#include "host/view_state.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

std::vector<SceneSatellite> SatellitesAt(ReferenceEngine& engine, ViewKind view, Scene* scene) {
  *scene = BuildScene(engine, view);
  AddSatellites(ReadSatelliteDisplay(engine), view, scene);
  return scene->satellites;
}

/// In Jupiter's radii: x to the west along its equator, y to its north.
QPointF FromJupiter(const Scene& scene, const SceneSatellite& satellite) {
  const SceneBody& jupiter = scene.Of(SkyBody::Jupiter);
  const Matrix3 fromFixed = Transposed(ToBodyFixed(SkyBody::Jupiter, scene.jdTt));
  const Vector3 sight = Normalized(jupiter.seen);
  const Vector3 right = Normalized(Cross(sight, fromFixed * Vector3{0.0, 0.0, 1.0}));
  return QPointF(Dot(satellite.fromBody, right), Dot(satellite.fromBody, Cross(right, sight))) /
         jupiter.RadiusAu();
}

// Meeus, "Astronomical Algorithms" (2nd ed.), example 44.a: 1992 December 16, 0h TD. Io goes half
// of Jupiter's radius while the light comes.
TEST(SatellitesTest, GalileanSatellitesAreSeenAsInTheAlmanac) {
  constexpr double kX[] = {-3.44, 7.44, 1.24, 7.08};
  constexpr double kY[] = {0.21, 0.25, 0.65, 1.10};
  ReferenceEngine engine;
  engine.LoadStartingState();
  engine.Doit(u"time = jst(1992, 12, 16, 8, 59, 1)"_s);
  Scene scene;
  int seen = 0;
  for (const SceneSatellite& satellite : SatellitesAt(engine, ViewKind::Ecliptic, &scene)) {
    const auto& [primary, number] = std::pair(satellite.display.primary, satellite.display.number);
    if (primary != Primary::Jupiter || number > 4) continue;
    const QPointF at = FromJupiter(scene, satellite);
    EXPECT_NEAR(at.x(), kX[number - 1], 0.1) << number;
    EXPECT_NEAR(at.y(), kY[number - 1], 0.1) << number;
    ++seen;
  }
  EXPECT_EQ(seen, 4);
}

TEST(SatellitesTest, EveryKnownSatelliteIsThereOnceAndTheMoonIsNot) {
  ReferenceEngine engine;
  EXPECT_TRUE(ReadSatelliteDisplay(engine).empty()) << "nothing is switched on yet";
  engine.LoadStartingState();
  engine.Doit(
      u"Solar.Planet.Satellite.Visible = TRUE; Solar.DwarfPlanet.Satellite.Visible = TRUE"_s);
  std::size_t known = 0;
  for (const Primary primary : kPrimaries) {
    const QString path = RowOf(BodyOf(primary)).path + u".Satellite.Count"_s;
    EXPECT_EQ(engine.Number(path), static_cast<double>(SatellitesOf(primary).size()))
        << path.toStdString();
    known += SatellitesOf(primary).size();
  }
  EXPECT_EQ(ReadSatelliteDisplay(engine).size(), known - 1);
}

TEST(SatellitesTest, SwitchesAreReadBySatellite) {
  ReferenceEngine engine;
  engine.Doit(
      u"Solar.planet.jupiter.Satellite.no4.Visible = TRUE;"
      u"Solar.planet.jupiter.Satellite.no4.EnglishName.Visible = TRUE;"
      u"Solar.planet.uranus.Satellite.no1.Orbit.Visible = TRUE;"
      u"Solar.dwarfplanet.pluto.Satellite.no1.Number.Visible = TRUE"_s);
  const auto displays = ReadSatelliteDisplay(engine);
  ASSERT_EQ(displays.size(), 2U) << "a number alone shows nothing";
  EXPECT_EQ(LabelText(displays[0]), u"Callisto"_s);
  EXPECT_TRUE(displays[0].isVisible && !displays[0].orbit);
  EXPECT_EQ(displays[1].primary, Primary::Uranus);
  EXPECT_TRUE(!displays[1].isVisible && displays[1].orbit);
}

struct LabelCase {
  SatelliteDisplay display;
  const char16_t* text;
};

TEST(SatellitesTest, LabelsTellNameAndNumber) {
  const int unnamed = static_cast<int>(SatellitesOf(Primary::Saturn).size());
  const LabelCase cases[] = {
      {{.primary = Primary::Jupiter, .number = 4, .japaneseName = true}, u"カリスト"},
      {{.primary = Primary::Jupiter, .number = 4, .hasNumber = true}, u"木星IV"},
      {{.primary = Primary::Jupiter, .number = 4, .englishName = true, .hasNumber = true},
       u"Callisto 木星IV"},
      {{.primary = Primary::Pluto, .number = 1, .japaneseName = true, .hasNumber = true},
       u"カロン 冥王星I"},
      {{.primary = Primary::Jupiter, .number = 4}, u""},
      {{.primary = Primary::Saturn, .number = unnamed, .hasNumber = true}, u""},
  };
  for (const LabelCase& row : cases) {
    EXPECT_EQ(LabelText(row.display), QString::fromUtf16(row.text));
  }
  const SatelliteDisplay designated{
      .primary = Primary::Saturn, .number = unnamed, .japaneseName = true};
  EXPECT_TRUE(LabelText(designated).startsWith(u"S/"_s)) << "no Japanese name, so the other";
}

}  // namespace
}  // namespace vyn
