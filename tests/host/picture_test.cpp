// Every property that the dialogs switch has to change the picture, and nothing else may.
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include "engine/reference_engine.h"
#include "host/frame.h"
#include "host/solar_regions.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

QImage Picture(ReferenceEngine& engine) {
  QImage image(640, 480, QImage::Format_RGB32);
  QPainter painter(&image);
  PaintFrame(painter, ReadFrame(engine, image.size()));
  return image;
}

struct SwitchCase {
  const char* name;
  const char16_t* sky;    ///< commands after the starting state
  const char16_t* click;  ///< what is switched then
};

constexpr char16_t kMoon[] = u"View.Center = Solar.Moon; View.Center.Track = TRUE; View.Angle = 2";
constexpr char16_t kSun[] = u"View.Center = Solar.Sun; View.Center.Track = TRUE; View.Angle = 2";
constexpr char16_t kWideSun[] =
    u"View.Center = Solar.Sun; View.Center.Track = TRUE; View.Angle = 90";
constexpr char16_t kWideMoon[] =
    u"View.Center = Solar.Moon; View.Center.Track = TRUE; View.Angle = 90";
constexpr char16_t kEclipsedMoon[] =
    u"time = jst(2025, 9, 8, 3, 12, 0); View.Center = Solar.Moon; View.Center.Track = TRUE;"
    u"View.Angle = 4";
constexpr char16_t kEclipsedEarth[] =
    u"time = jst(2026, 8, 13, 2, 30, 0); View.Projection = SolarSystem;"
    u"View.Center = Solar.Planet.Earth; View.Outside.Distance = 0.0003;"
    u"View.Outside.Longitude = 140; View.Outside.Latitude = 40";
constexpr char16_t kPlanets[] =
    u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 6";
constexpr char16_t kOuterSystem[] =
    u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 120";
constexpr char16_t kFarAway[] =
    u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 200000";
constexpr char16_t kEarthAndMoon[] =
    u"View.Projection = SolarSystem; View.Center = Solar.Planet.Earth;"
    u"View.Outside.Distance = 0.01";
constexpr char16_t kEvening[] =
    u"time = jst(2026, 3, 10, 19, 20, 0); View.Azimuth = 265; View.Altitude = 38";

constexpr char16_t kInnerSystem[] =
    u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 2";
constexpr char16_t kJupiter[] =
    u"View.Center = Solar.Planet.Jupiter; View.Center.Track = TRUE; View.Angle = 0.4";
constexpr char16_t kJupiterOutside[] =
    u"View.Projection = SolarSystem; View.Center = Solar.Planet.Jupiter;"
    u"View.Outside.Distance = 0.03";
constexpr char16_t kCeres[] =
    u"View.Center = Solar.DwarfPlanet.Ceres; View.Center.Track = TRUE; View.Angle = 0.5;"
    u"Solar.DwarfPlanet.Disk.Multiplier = 500";
constexpr char16_t kPlutoOutside[] =
    u"View.Projection = SolarSystem; View.Center = Solar.DwarfPlanet.Pluto;"
    u"View.Outside.Distance = 0.0012";
constexpr char16_t kMarsOutside[] =
    u"View.Projection = SolarSystem; View.Center = Solar.Planet.Mars;"
    u"View.Outside.Distance = 0.00012";
constexpr char16_t kEarthOutside[] =
    u"View.Projection = SolarSystem; View.Center = Solar.Planet.Earth;"
    u"View.Outside.Distance = 0.0002";
constexpr char16_t kAroundTheSun[] = u"View.Coordinate = Ecliptic; View.Longitude = 281";
constexpr char16_t kAroundCeres[] =
    u"View.Coordinate = Ecliptic; View.Longitude = 0; View.Latitude = -10; View.Angle = 60";
constexpr char16_t kMovingPlanets[] =
    u"View.Coordinate = Ecliptic; View.Longitude = 281; Solar.Planet.Vector.Visible = TRUE";
constexpr char16_t kMercuryOrbitInTheSky[] =
    u"View.Coordinate = Ecliptic; View.Longitude = 281;"
    u"Solar.Planet.Mercury.Orbit.InTheSky.Visible = TRUE";

// clang-format off
constexpr SwitchCase kCases[] = {
  {"SunShown",            kSun,       u"solar.sun.visible = FALSE"},
  {"SunOutline",          kSun,       u"solar.sun.surface.visible = FALSE; solar.sun.outline.visible = TRUE"},
  {"SunNameEnglish",      kSun,       u"solar.sun.japanesename.visible = FALSE; solar.sun.englishname.visible = TRUE"},
  {"SunNameOff",          kSun,       u"solar.sun.japanesename.visible = FALSE"},
  {"SunDate",             kSun,       u"solar.sun.date.visible = TRUE"},
  {"SunCompass",          kSun,       u"solar.sun.disk.compass.visible = TRUE"},
  {"SunGrid",             kSun,       u"solar.sun.disk.grid.visible = TRUE"},
  {"SunTrueSize",         kWideSun,   u"solar.sun.disk.minimumSize = 0"},
  {"SunHalo",             kSun,       u"solar.sun.halo.visible = FALSE"},
  {"SunNameColor",        kSun,       u"Solar.Sun.Name.Color = #ff0000"},
  {"SunNameFont",         kSun,       u"Solar.Sun.Name.Font = \"IPAGothic,24\""},
  {"MoonShown",           kMoon,      u"solar.planet.earth.satellite.moon.visible = FALSE"},
  {"MoonOutline",         kMoon,      u"solar.moon.surface.visible = FALSE; solar.moon.outline.visible = TRUE"},
  {"MoonName",            kMoon,      u"solar.planet.earth.satellite.moon.japanesename.visible = FALSE"},
  {"MoonDate",            kMoon,      u"solar.planet.earth.satellite.moon.date.visible = TRUE"},
  {"MoonCompass",         kMoon,      u"solar.planet.earth.satellite.moon.disk.compass.visible = TRUE"},
  {"MoonGrid",            kMoon,      u"solar.planet.earth.satellite.moon.disk.grid.visible = TRUE"},
  {"MoonTrueSize",        kWideMoon,  u"solar.planet.earth.satellite.moon.disk.minimumSize = 0"},
  {"MoonPlaceNames",      kMoon,      u"solar.planet.earth.satellite.moon.surface.name.visible = TRUE"},
  {"MoonLagrangian",      kWideMoon,  u"solar.planet.earth.satellite.moon.lagrangianpoint.mark.visible = TRUE"},
  {"MoonOrbit",           kWideMoon,  u"solar.planet.earth.satellite.moon.orbit.visible = TRUE"},
  {"MoonOrbitOutside",    kEarthAndMoon, u"solar.planet.earth.satellite.moon.orbit.visible = TRUE"},
  {"MoonLagrangianOutside", kEarthAndMoon, u"solar.moon.lagrangianpoint.mark.visible = TRUE"},
  {"LunarUmbra",          kEclipsedMoon, u"solar.planet.earth.umbra.outline.visible = TRUE"},
  {"LunarPenumbra",       kEclipsedMoon, u"solar.planet.earth.penumbra.outline.visible = TRUE"},
  {"SolarEclipsePath",    kEclipsedEarth, u"Solar.Planet.Earth.SolarEclipse.Path.Visible = TRUE"},
  {"SolarEclipseUmbra",   kEclipsedEarth, u"Solar.Planet.Earth.SolarEclipse.Umbra.Outline.Visible = TRUE"},
  {"SolarEclipsePenumbra", kEclipsedEarth, u"Solar.Planet.Earth.SolarEclipse.Penumbra.Outline.Visible = TRUE"},
  {"MainBelt",            kPlanets,   u"solar.MainBelt.Visible = TRUE"},
  {"MainBeltColor",       u"View.Projection = SolarSystem; View.Center = Solar.Sun; solar.MainBelt.Visible = TRUE", u"Solar.MainBelt.Color = #ff00ff"},
  {"KuiperBelt",          kOuterSystem, u"solar.KuiperBelt.Visible = TRUE"},
  {"HabitableZone",       kPlanets,   u"solar.HabitableZone.Visible = TRUE"},
  {"OortCloud",           kFarAway,   u"solar.OortCloud.Visible = TRUE"},
  {"OortCloudFading",     u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 60; solar.OortCloud.Visible = TRUE", u"solar.OortCloud.AutoFade.Visible = FALSE"},
  {"CosmicScale",         kPlanets,   u"CosmicScale.Visible = TRUE"},
  {"ZodiacalLight",       kEvening,   u"solar.ZodiacalLight.Visible = TRUE"},
  {"CounterGlow",         u"View.Coordinate = Ecliptic; View.Longitude = 101", u"solar.CounterGlow.Visible = TRUE"},
  {"PlanetOrbit",         kPlanets,   u"Solar.Planet.Mars.Orbit.Visible = FALSE"},
  {"PlanetOrbitInTheSky", u"View.Coordinate = Ecliptic", u"Solar.Planet.Mars.Orbit.InTheSky.Visible = TRUE"},
  {"PlanetShown",         kJupiter,   u"Solar.Planet.Jupiter.Visible = FALSE"},
  {"PlanetShownOutside",  kJupiterOutside, u"Solar.Planet.Jupiter.Visible = FALSE"},
  {"PlanetNameEnglish",   kJupiter,   u"Solar.Planet.Jupiter.JapaneseName.Visible = FALSE; Solar.Planet.Jupiter.EnglishName.Visible = TRUE"},
  {"PlanetMagnitude",     kJupiter,   u"Solar.Planet.Jupiter.Magnitude.Visible = TRUE"},
  {"PlanetDate",          kJupiter,   u"Solar.Planet.Jupiter.Date.Visible = TRUE"},
  {"PlanetNameColor",     kJupiter,   u"Solar.Planet.Name.Color = #ff0000"},
  {"PlanetMagnified",     kJupiter,   u"Solar.Planet.disk.multiplier = 3"},
  {"PlanetCompass",       kJupiter,   u"Solar.Planet.Jupiter.Disk.Compass.Visible = TRUE"},
  {"PlanetGrid",          kJupiter,   u"Solar.Planet.Jupiter.Disk.Grid.Visible = TRUE"},
  {"PlanetGridOutside",   kJupiterOutside, u"Solar.Planet.Jupiter.Disk.Grid.Visible = TRUE"},
  {"PlanetLagrangian",    u"View.Coordinate = Ecliptic; View.Longitude = 110", u"Solar.Planet.Jupiter.LagrangianPoint.Mark.Visible = TRUE"},
  {"PlanetLagrangianOutside", kOuterSystem, u"Solar.Planet.Neptune.LagrangianPoint.Mark.Visible = TRUE"},
  {"PlanetPerpendicular", kInnerSystem, u"Solar.Planet.Mercury.Orbit.Perpendicular.Visible = TRUE"},
  {"PlanetPerpendicularInTheSky", kMercuryOrbitInTheSky, u"Solar.Planet.Mercury.Orbit.Perpendicular.Visible = TRUE"},
  {"PlanetOrbitalPlane",  kInnerSystem, u"Solar.Planet.Mercury.OrbitalPlane.Visible = TRUE"},
  {"PlanetEclipticPlane", kInnerSystem, u"Solar.Planet.Mercury.EclipticPlane.Visible = TRUE"},
  {"PlanetVector",        kAroundTheSun, u"Solar.Planet.vector.Visible = TRUE"},
  {"PlanetVectorOutside", kInnerSystem, u"Solar.Planet.vector.Visible = TRUE"},
  {"PlanetVectorSpan",    kMovingPlanets, u"Solar.Planet.vector.span = 10.000000"},
  {"PlanetVectorMultiplier", kMovingPlanets, u"Solar.Planet.vector.multiplier = 5.000000"},
  {"MarsPlaceNames",      kMarsOutside, u"Solar.Planet.Mars.Surface.Name.Visible = TRUE"},
  {"EarthPlaceNames",     kEarthOutside, u"Solar.Planet.Earth.Surface.Name.Visible = TRUE"},
  {"DwarfPlanetShown",    kCeres,     u"Solar.Dwarfplanet.Ceres.Visible = FALSE"},
  {"DwarfPlanetNameEnglish", kCeres,  u"Solar.Dwarfplanet.Ceres.JapaneseName.Visible = FALSE; Solar.Dwarfplanet.Ceres.EnglishName.Visible = TRUE"},
  {"DwarfPlanetMagnitude", kCeres,    u"Solar.Dwarfplanet.Ceres.Magnitude.Visible = TRUE"},
  {"DwarfPlanetDate",     kCeres,     u"Solar.Dwarfplanet.Ceres.Date.Visible = TRUE"},
  {"DwarfPlanetNameColor", kCeres,    u"Solar.Dwarfplanet.Name.Color = #ff0000"},
  {"DwarfPlanetMagnified", kCeres,    u"Solar.Dwarfplanet.Disk.Multiplier = 100"},
  {"DwarfPlanetCompass",  kCeres,     u"Solar.Dwarfplanet.Ceres.Disk.Compass.Visible = TRUE"},
  {"DwarfPlanetGrid",     kCeres,     u"Solar.Dwarfplanet.Ceres.Disk.Grid.Visible = TRUE"},
  {"DwarfPlanetLagrangian", kOuterSystem, u"Solar.Dwarfplanet.Pluto.LagrangianPoint.Mark.Visible = TRUE"},
  {"DwarfPlanetOrbit",    kOuterSystem, u"Solar.Dwarfplanet.Eris.Orbit.Visible = FALSE"},
  {"DwarfPlanetOrbitInTheSky", kAroundCeres, u"Solar.Dwarfplanet.Ceres.Orbit.InTheSky.Visible = TRUE"},
  {"DwarfPlanetPerpendicular", kOuterSystem, u"Solar.Dwarfplanet.Haumea.Orbit.Perpendicular.Visible = TRUE"},
  {"DwarfPlanetOrbitalPlane", kOuterSystem, u"Solar.Dwarfplanet.Makemake.OrbitalPlane.Visible = TRUE"},
  {"DwarfPlanetEclipticPlane", kOuterSystem, u"Solar.Dwarfplanet.Makemake.EclipticPlane.Visible = TRUE"},
  {"DwarfPlanetVector",   kAroundCeres, u"Solar.Dwarfplanet.vector.Visible = TRUE; Solar.Dwarfplanet.vector.multiplier = 20"},
  {"SatelliteShown",      kJupiter,   u"Solar.planet.jupiter.Satellite.no3.Visible = FALSE"},
  {"SatelliteShownOutside", kPlutoOutside, u"Solar.dwarfplanet.pluto.Satellite.no1.Visible = FALSE"},
  {"SatelliteJapaneseName", kJupiter, u"Solar.planet.jupiter.Satellite.no3.JapaneseName.Visible = TRUE"},
  {"SatelliteEnglishName", kJupiter,  u"Solar.planet.jupiter.Satellite.no3.EnglishName.Visible = TRUE"},
  {"SatelliteNumber",     kJupiter,   u"Solar.planet.jupiter.Satellite.no3.Number.Visible = TRUE"},
  {"SatelliteOrbit",      kJupiter,   u"Solar.planet.jupiter.Satellite.no3.Orbit.Visible = TRUE"},
  {"SatelliteOrbitOutside", kJupiterOutside, u"Solar.planet.jupiter.Satellite.no3.Orbit.Visible = TRUE"},
  {"SatelliteNameColor",  u"View.Center = Solar.Planet.Jupiter; View.Center.Track = TRUE; View.Angle = 0.4; Solar.Planet.Jupiter.Satellite.JapaneseName.Visible = TRUE", u"Solar.Planet.Satellite.Name.Color = #ff0000"},
  {"MoonNumber",          kMoon,      u"Solar.moon.Number.Visible = TRUE"},
};
// clang-format on

class SwitchTest : public testing::TestWithParam<SwitchCase> {
 protected:
  SwitchTest() {
    engine_.LoadStartingState();
    engine_.Doit(QString::fromUtf16(GetParam().sky));
  }

  ReferenceEngine engine_;
};

TEST_P(SwitchTest, ChangesThePictureAndBack) {
  engine_.Doit(u"Make Status.#5"_s);
  const QImage before = Picture(engine_);
  EXPECT_EQ(before, Picture(engine_)) << "the same state painted twice";
  engine_.Doit(QString::fromUtf16(GetParam().click));
  EXPECT_NE(before, Picture(engine_));
  engine_.Doit(engine_.Doit(u"? Status.#5.Object"_s));
  EXPECT_EQ(before, Picture(engine_)) << "put back";
}

INSTANTIATE_TEST_SUITE_P(Properties, SwitchTest, testing::ValuesIn(kCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(PictureTest, LeadLinesMoveTheNamesBesideTheDisk) {
  const std::pair<const char16_t*, QString> cases[] = {{kMoon, u"Solar.Moon"_s},
                                                       {kMarsOutside, u"Solar.Planet.Mars"_s},
                                                       {kEarthOutside, u"Solar.Planet.Earth"_s}};
  for (const auto& [sky, body] : cases) {
    ReferenceEngine engine;
    engine.LoadStartingState();
    engine.Doit(QString::fromUtf16(sky) + u"; "_s + body + u".Surface.Name.Visible = TRUE"_s);
    const QImage without = Picture(engine);
    engine.Doit(QString(body + u".Surface.Name.LeadLine.Visible = TRUE"_s));
    EXPECT_NE(without, Picture(engine)) << body.toStdString();
  }
}

TEST(PictureTest, MagnifiedDiskHidesTheSatellitesAboutIt) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  engine.Doit(QString::fromUtf16(kJupiter) + u"; Solar.Planet.Disk.Multiplier = 30"_s);
  const QImage with = Picture(engine);
  engine.Doit(u"Solar.Planet.Jupiter.Satellite.Visible = FALSE"_s);
  EXPECT_EQ(with.copy(220, 140, 200, 200), Picture(engine).copy(220, 140, 200, 200));
}

TEST(PictureTest, EveryViewIsPaintedFromEveryBodyAtEverySize) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  ASSERT_TRUE(engine.LoadElements(ElementKind::Comet, QStringLiteral(VYN_DATA_DIR "/comets.eld")));
  for (const char16_t* view : {u"View.Coordinate = Horizon", u"View.Coordinate = Ecliptic",
                               u"View.Projection = SolarSystem"}) {
    engine.Doit(QString::fromUtf16(view));
    for (const int body : {0, 1, 4}) {
      engine.SetLocationObject(body);
      for (const char16_t* extent : {u"View.Angle = 0.05; View.Outside.Distance = 0.0001",
                                     u"View.Angle = 220; View.Outside.Distance = 1000000"}) {
        engine.Doit(QString::fromUtf16(extent));
        QImage image(33, 700, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        PaintFrame(painter, ReadFrame(engine, image.size()));
        EXPECT_NE(image.pixelColor(16, 350), QColor(Qt::magenta));
      }
    }
  }
}

TEST(PictureTest, OortCloudFadesInWithDistance) {
  EXPECT_DOUBLE_EQ(OortCloudOpacity(60.0), 0.0);
  EXPECT_GT(OortCloudOpacity(20000.0), OortCloudOpacity(5000.0));
  EXPECT_DOUBLE_EQ(OortCloudOpacity(200000.0), 1.0);
}

}  // namespace
}  // namespace vyn
