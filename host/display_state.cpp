#include "host/display_state.h"

#include "engine/reference_engine.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kDefaultPoints = 10;
const QString kDefaultFamily = u"IPAGothic"_s;

struct BodySwitch {
  QStringView word;
  bool BodyDisplay::*value;
};

// clang-format off
constexpr BodySwitch kBodySwitches[] = {
  {u".Visible",                    &BodyDisplay::isVisible},
  {u".Surface.Visible",            &BodyDisplay::surface},
  {u".Outline.Visible",            &BodyDisplay::outline},
  {u".JapaneseName.Visible",       &BodyDisplay::japaneseName},
  {u".EnglishName.Visible",        &BodyDisplay::englishName},
  {u".Number.Visible",             &BodyDisplay::number},
  {u".Date.Visible",               &BodyDisplay::date},
  {u".Magnitude.Visible",          &BodyDisplay::magnitude},
  {u".Halo.Visible",               &BodyDisplay::halo},
  {u".Disk.Compass.Visible",       &BodyDisplay::compass},
  {u".Disk.Grid.Visible",          &BodyDisplay::grid},
  {u".Orbit.Visible",              &BodyDisplay::orbit},
  {u".Orbit.InTheSky.Visible",     &BodyDisplay::orbitInTheSky},
  {u".Orbit.Perpendicular.Visible", &BodyDisplay::perpendicular},
  {u".OrbitalPlane.Visible",       &BodyDisplay::orbitalPlane},
  {u".EclipticPlane.Visible",      &BodyDisplay::eclipticPlane},
  {u".Vector.Visible",             &BodyDisplay::hasVector},
  {u".LagrangianPoint.Mark.Visible", &BodyDisplay::lagrangianMarks},
  {u".Surface.Name.Visible",       &BodyDisplay::placeNames},
  {u".Surface.Name.LeadLine.Visible", &BodyDisplay::leadLines},
};

struct SkySwitch {
  QStringView path;
  bool DisplayState::* value;
};

constexpr SkySwitch kSkySwitches[] = {
  {u"Solar.Planet.Earth.Umbra.Outline.Visible",                 &DisplayState::lunarEclipseUmbra},
  {u"Solar.Planet.Earth.Penumbra.Outline.Visible",              &DisplayState::lunarEclipsePenumbra},
  {u"Solar.Planet.Earth.SolarEclipse.Umbra.Outline.Visible",    &DisplayState::solarEclipseUmbra},
  {u"Solar.Planet.Earth.SolarEclipse.Penumbra.Outline.Visible", &DisplayState::solarEclipsePenumbra},
  {u"Solar.Planet.Earth.SolarEclipse.Path.Visible",             &DisplayState::solarEclipsePath},
  {u"Solar.MainBelt.Visible",                                   &DisplayState::mainBelt},
  {u"Solar.KuiperBelt.Visible",                                 &DisplayState::kuiperBelt},
  {u"Solar.HabitableZone.Visible",                              &DisplayState::habitableZone},
  {u"Solar.OortCloud.Visible",                                  &DisplayState::oortCloud},
  {u"Solar.OortCloud.AutoFade",                                 &DisplayState::oortCloudFades},
  {u"CosmicScale.Visible",                                      &DisplayState::cosmicScale},
  {u"Solar.ZodiacalLight.Visible",                              &DisplayState::zodiacalLight},
  {u"Solar.CounterGlow.Visible",                                &DisplayState::counterGlow},
};
// clang-format on

QFont FontOf(const QString& text) {
  const QString family = text.section(u',', 0, 0).trimmed();
  const int points = text.section(u',', 1, 1).toInt();
  return QFont(family.isEmpty() ? kDefaultFamily : family, points > 0 ? points : kDefaultPoints);
}

/// The style below a node such as "Solar.Sun.Name"; where no colour is set, that of `fallback`.
LabelStyle ReadStyle(ReferenceEngine& engine, const QString& node, const LabelStyle& fallback) {
  const QString color = engine.Property(node + u".Color");
  const QString font = engine.Property(node + u".Font");
  return {QColor::isValidColor(color) ? QColor(color) : fallback.color,
          font.isEmpty() ? fallback.font : FontOf(font)};
}

BodyDisplay ReadBody(ReferenceEngine& engine, const BodyRow& body, const LabelStyle& fallback) {
  const QString path = body.path.toString();
  BodyDisplay display;
  for (const BodySwitch& row : kBodySwitches) {
    display.*row.value = engine.IsOn(QString(path + row.word));
  }
  display.minimumSizePixels = engine.Number(QString(path + u".Disk.MinimumSize"));
  display.multiplier = engine.Number(QString(path + u".Disk.Multiplier"), 1.0);
  display.vectorSpanDays = engine.Number(QString(path + u".Vector.Span"), 1.0);
  display.vectorMultiplier = engine.Number(QString(path + u".Vector.Multiplier"), 1.0);
  display.nameStyle = ReadStyle(engine, path + u".Name", fallback);
  return display;
}

SmallBodyDisplay ReadSmallBodies(ReferenceEngine& engine, const QString& path,
                                 const LabelStyle& fallback) {
  return {ReadStyle(engine, path + u".ID", fallback),
          engine.Number(QString(path + u".Vector.Span"), 1.0),
          engine.Number(QString(path + u".Vector.Multiplier"), 1.0),
          engine.IsOn(QString(path + u".Symbolic"))};
}

}  // namespace

/// The dialog of the Sun and the Moon has one colour for both names, so the Moon's falls back to
/// the Sun's.
DisplayState ReadDisplayState(ReferenceEngine& engine) {
  DisplayState display;
  const LabelStyle plain{QColor(), FontOf({})};
  const LabelStyle sunStyle = ReadStyle(engine, u"Solar.Sun.Name"_s, plain);
  const LabelStyle planetStyle = ReadStyle(engine, u"Solar.Planet.Name"_s, plain);
  const LabelStyle dwarfStyle = ReadStyle(engine, u"Solar.DwarfPlanet.Name"_s, plain);
  for (const BodyRow& body : kBodies) {
    const LabelStyle& fallback = IsDwarfPlanet(body.body)   ? dwarfStyle
                                 : IsSunCircling(body.body) ? planetStyle
                                                            : sunStyle;
    display.bodies[IndexOf(body.body)] = ReadBody(engine, body, fallback);
  }
  display.satellites = ReadSatelliteDisplay(engine);
  display.satelliteStyle = ReadStyle(engine, u"Solar.Planet.Satellite.Name"_s, plain);
  for (const SkySwitch& row : kSkySwitches) display.*row.value = engine.IsOn(row.path);
  display.comets = ReadSmallBodies(engine, u"Solar.Comet"_s, plain);
  display.minorPlanets = ReadSmallBodies(engine, u"Solar.MinorPlanet"_s, plain);
  display.meteoriteStyle = ReadStyle(engine, u"Solar.Meteorite.Name"_s, plain);
  display.dustTrailColor = ReadStyle(engine, u"Solar.DustTrail.DustStream"_s, plain).color;
  display.regionStyle = ReadStyle(engine, u"Solar.MainBelt"_s, plain);
  return display;
}

}  // namespace vyn
