#include "engine/starting_state.h"

#include <array>
#include <span>

#include "engine/reference_engine.h"
#include "engine/sky/dust_trails.h"
#include "engine/sky/meteorites.h"
#include "engine/sky/satellite_table.h"
#include "engine/small_body_types.h"
#include "engine/value_text.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

struct Row {
  QStringView path;
  QStringView value;
};

struct Body {
  QStringView path;
  QStringView japaneseName;
  QStringView englishName;
};

// clang-format off
constexpr std::array<Body, 10> kNumberedBodies{{
  {u"Solar.Sun",            u"太陽",   u"Sun"},
  {u"Solar.Moon",           u"月",     u"Moon"},
  {u"Solar.Planet.Mercury", u"水星",   u"Mercury"},
  {u"Solar.Planet.Venus",   u"金星",   u"Venus"},
  {u"Solar.Planet.Earth",   u"地球",   u"Earth"},
  {u"Solar.Planet.Mars",    u"火星",   u"Mars"},
  {u"Solar.Planet.Jupiter", u"木星",   u"Jupiter"},
  {u"Solar.Planet.Saturn",  u"土星",   u"Saturn"},
  {u"Solar.Planet.Uranus",  u"天王星", u"Uranus"},
  {u"Solar.Planet.Neptune", u"海王星", u"Neptune"},
}};
constexpr std::size_t kFirstPlanet = 2;

constexpr std::array<Body, 5> kDwarfPlanets{{
  {u"Solar.DwarfPlanet.Ceres",    u"ケレス",   u"Ceres"},
  {u"Solar.DwarfPlanet.Pluto",    u"冥王星",   u"Pluto"},
  {u"Solar.DwarfPlanet.Haumea",   u"ハウメア", u"Haumea"},
  {u"Solar.DwarfPlanet.Makemake", u"マケマケ", u"Makemake"},
  {u"Solar.DwarfPlanet.Eris",     u"エリス",   u"Eris"},
}};

constexpr Row kSingle[]{
  {u"View.Projection",                                u"Stereographic"},
  {u"View.Coordinate",                                u"Horizon"},
  {u"View.Center",                                    u"Solar.Moon"},
  {u"View.Center.Track",                              u"FALSE"},
  {u"View.Angle",                                     u"90"},
  {u"Time.JD",                                        u"2461042"},
  {u"Time.TimeZone",                                  u"9"},
  {u"Location.Longitude",                             u"139.75"},
  {u"Location.Latitude",                              u"35.65"},
  {u"Location.Altitude",                              u"40"},
  {u"CosmicScale.Visible",                            u"FALSE"},

  {u"Solar.Sun.Surface.Visible",                      u"TRUE"},
  {u"Solar.Sun.Outline.Visible",                      u"FALSE"},
  {u"Solar.Sun.Halo.Visible",                         u"TRUE"},
  {u"Solar.Sun.Disk.MinimumSize",                     u"10"},
  {u"Solar.Sun.Disk.Multiplier",                      u"1"},
  {u"Solar.Sun.Name.Color",                           u"#ffd060"},
  {u"Solar.Sun.Name.Font",                            u"IPAGothic,10"},
  {u"Solar.Sun.Corona.Visible",                       u"FALSE"},
  {u"Solar.Sun.Corona.Brightness",                    u"1.0"},
  {u"Solar.Sun.Corona.Count",                         u"0"},
  {u"Solar.Sun.Sunspot.Visible",                      u"FALSE"},
  {u"Solar.Sun.Sunspot.Count",                        u"0"},
  {u"Solar.Sun.TakenImage.Visible",                   u"FALSE"},
  {u"Solar.Sun.TakenImage.Brightness",                u"1.0"},
  {u"Solar.Sun.TakenImage.Count",                     u"0"},

  {u"Solar.Moon.Surface.Visible",                     u"TRUE"},
  {u"Solar.Moon.Outline.Visible",                     u"FALSE"},
  {u"Solar.Moon.Disk.MinimumSize",                    u"10"},
  {u"Solar.Moon.Surface.Name.Visible",                u"FALSE"},
  {u"Solar.Moon.Surface.Name.LeadLine.Visible",       u"FALSE"},

  {u"Solar.Planet.Earth.SolarEclipse.Path.Visible",   u"FALSE"},
  {u"Solar.Planet.Earth.SolarEclipse.Umbra.Outline.Visible",    u"FALSE"},
  {u"Solar.Planet.Earth.SolarEclipse.Penumbra.Outline.Visible", u"FALSE"},
  {u"Solar.Planet.Earth.Umbra.Outline.Visible",       u"FALSE"},
  {u"Solar.Planet.Earth.Penumbra.Outline.Visible",    u"FALSE"},
  {u"Solar.Planet.Earth.Surface.Name.Visible",        u"FALSE"},
  {u"Solar.Planet.Earth.Surface.Name.LeadLine.Visible", u"FALSE"},
  {u"Solar.Planet.Mars.Surface.Name.Visible",         u"FALSE"},
  {u"Solar.Planet.Mars.Surface.Name.LeadLine.Visible", u"FALSE"},
  {u"Solar.Planet.Name.Color",                        u"#a0d0ff"},
  {u"Solar.Planet.Name.Font",                         u"IPAGothic,10"},
  {u"Solar.Planet.Satellite.Name.Color",              u"#c0c0c0"},
  {u"Solar.Planet.Satellite.Name.Font",               u"IPAGothic,9"},
  {u"Solar.DwarfPlanet.Name.Color",                   u"#d0b0ff"},
  {u"Solar.DwarfPlanet.Name.Font",                    u"IPAGothic,10"},

  {u"Solar.MainBelt.Visible",                         u"FALSE"},
  {u"Solar.MainBelt.Color",                           u"#907860"},
  {u"Solar.KuiperBelt.Visible",                       u"FALSE"},
  {u"Solar.HabitableZone.Visible",                    u"FALSE"},
  {u"Solar.OortCloud.Visible",                        u"FALSE"},
  {u"Solar.OortCloud.AutoFade",                       u"TRUE"},
  {u"Solar.ZodiacalLight.Visible",                    u"FALSE"},
  {u"Solar.CounterGlow.Visible",                      u"FALSE"},

  {u"Solar.Comet.ID.Color",                           u"#80ffc0"},
  {u"Solar.Comet.ID.Font",                            u"IPAGothic,9"},
  {u"Solar.Comet.*.AutoEmissionSpan",                 u"TRUE"},
  {u"Solar.Comet.*.DustTail.EmissionSpan",            u"30"},
  {u"Solar.Comet.*.DustTail.BetaMin",                 u"-1"},
  {u"Solar.Comet.*.DustTail.BetaMax",                 u"-1"},
  {u"Solar.Comet.*.IonTail.EmissionSpan",             u"3"},
  {u"Solar.MinorPlanet.ID.Color",                     u"#c0c080"},
  {u"Solar.MinorPlanet.ID.Font",                      u"IPAGothic,9"},
  {u"Solar.MinorPlanet.Symbolic",                     u"FALSE"},
  {u"Solar.Meteorite.Name.Color",                     u"#ffa070"},
  {u"Solar.Meteorite.Name.Font",                      u"IPAGothic,9"},
  {u"Solar.DustTrail.DustStream.Color",               u"#808080"},
};

/// Of each planet and dwarf planet.
constexpr Row kOfPlanets[]{
  {u"Visible",                      u"TRUE"},
  {u"JapaneseName.Visible",         u"TRUE"},
  {u"EnglishName.Visible",          u"FALSE"},
  {u"Magnitude.Visible",            u"FALSE"},
  {u"Date.Visible",                 u"FALSE"},
  {u"Disk.Compass.Visible",         u"FALSE"},
  {u"Disk.Grid.Visible",            u"FALSE"},
  {u"LagrangianPoint.Mark.Visible", u"FALSE"},
  {u"Orbit.Visible",                u"TRUE"},
  {u"Orbit.InTheSky.Visible",       u"FALSE"},
  {u"Orbit.Perpendicular.Visible",  u"FALSE"},
  {u"OrbitalPlane.Visible",         u"FALSE"},
  {u"EclipticPlane.Visible",        u"FALSE"},
  {u"Vector.Visible",               u"FALSE"},
  {u"Vector.Span",                  u"1"},
  {u"Vector.Multiplier",            u"1"},
  {u"Disk.Multiplier",              u"1"},
};

constexpr Row kOfSunAndMoon[]{
  {u"Visible",                      u"TRUE"},
  {u"JapaneseName.Visible",         u"TRUE"},
  {u"EnglishName.Visible",          u"FALSE"},
  {u"Date.Visible",                 u"FALSE"},
  {u"Disk.Compass.Visible",         u"FALSE"},
  {u"Disk.Grid.Visible",            u"FALSE"},
};

constexpr Row kOfSatellites[]{
  {u"Visible",                      u"TRUE"},
  {u"Name.Visible",                 u"FALSE"},
  {u"JapaneseName.Visible",         u"FALSE"},
  {u"EnglishName.Visible",          u"FALSE"},
  {u"Number.Visible",               u"FALSE"},
  {u"Orbit.Visible",                u"FALSE"},
  {u"LagrangianPoint.Mark.Visible", u"FALSE"},
};

/// Of the planets and of the dwarf planets as wholes.
constexpr Row kOfPlanetClasses[]{
  {u"Disk.Multiplier",              u"1"},
  {u"Vector.Visible",               u"FALSE"},
  {u"Vector.Span",                  u"1"},
  {u"Vector.Multiplier",            u"1"},
};

/// Of the comets and of the minor planets as wholes.
constexpr Row kOfElementClasses[]{
  {u"Visible",                      u"TRUE"},
  {u"Vector.Visible",               u"FALSE"},
  {u"Vector.Span",                  u"1"},
  {u"Vector.Multiplier",            u"1"},
  {u"Brighter.Visible",             u"FALSE"},
  {u"Brighter.Magnitude",           u"12.0"},
};

constexpr Row kOfMeteorites[]{
  {u"Visible",                      u"FALSE"},
  {u"JapaneseName.Visible",         u"TRUE"},
  {u"Orbit.Visible",                u"TRUE"},
};

constexpr Row kOfDustTrails[]{
  {u"Visible",                      u"FALSE"},
  {u"Orbit.Visible",                u"TRUE"},
};

/// What new data sets get.
constexpr Row kOfNewSets[]{
  {u"Solar.Sun.Corona.*.Visible",                     u"TRUE"},
  {u"Solar.Sun.Corona.*.Offset.X",                    u"0"},
  {u"Solar.Sun.Corona.*.Offset.Y",                    u"0"},
  {u"Solar.Sun.Corona.*.Radius",                      u"0.3"},
  {u"Solar.Sun.Corona.*.Roll",                        u"0"},
  {u"Solar.Sun.Sunspot.*.Visible",                    u"TRUE"},
};

/// Of bodies with images.
constexpr Row kOfNewImages[]{
  {u"TakenImage.*.Visible",                           u"TRUE"},
  {u"TakenImage.*.Brightness",                        u"1.0"},
  {u"TakenImage.*.Offset.X",                          u"0"},
  {u"TakenImage.*.Offset.Y",                          u"0"},
  {u"TakenImage.*.Radius",                            u"0.3"},
  {u"TakenImage.*.Roll",                              u"0"},
  {u"TakenImage.*.Range",                             u"90"},
};

/// Of Mars and Jupiter, which carry surface textures and images.
constexpr Row kOfImagedPlanets[]{
  {u"TakenImage.Visible",           u"FALSE"},
  {u"TakenImage.Brightness",        u"1.0"},
  {u"TakenImage.Count",             u"0"},
};
// clang-format on

using Take = std::function<void(const QString&, QStringView)>;

void TakeRows(QStringView path, std::span<const Row> rows, const Take& take) {
  for (const Row& row : rows) take(path + u'.' + row.path, row.value);
}

void TakeNames(const Body& body, const Take& take) {
  take(body.path + u".JapaneseName"_s, body.japaneseName);
  take(body.path + u".EnglishName"_s, body.englishName);
}

void TakePlanet(const Body& body, const Take& take) {
  TakeNames(body, take);
  TakeRows(body.path, kOfPlanets, take);
}

QString PathOf(Primary primary) {
  switch (primary) {
    case Primary::Pluto:
      return u"Solar.DwarfPlanet.Pluto"_s;
    case Primary::Eris:
      return u"Solar.DwarfPlanet.Eris"_s;
    case Primary::Ceres:
      return u"Solar.DwarfPlanet.Ceres"_s;
    case Primary::Makemake:
      return u"Solar.DwarfPlanet.Makemake"_s;
    case Primary::Haumea:
      return u"Solar.DwarfPlanet.Haumea"_s;
    default:
      return BodyPath(static_cast<int>(kFirstPlanet) + static_cast<int>(primary));
  }
}

void TakeSatellite(const QString& path, const Satellite& satellite, const QString& numeral,
                   const Take& take) {
  const QString englishName = QString::fromUtf8(satellite.name);
  const QStringView japaneseName = satellite.japaneseName;
  const QStringView name = japaneseName.isEmpty() ? QStringView(englishName) : japaneseName;
  TakeRows(path, kOfSatellites, take);
  TakeNames({path, name, englishName}, take);
  take(path + u".Name", name);
  take(path + u".Number", numeral);
}

void TakeSatellites(Primary primary, const Take& take) {
  const QString path = PathOf(primary) + u".Satellite";
  int number = 0;
  for (const Satellite& satellite : SatellitesOf(primary)) {
    ++number;
    TakeSatellite(path + u".No" + QString::number(number), satellite,
                  QString::fromStdString(SatelliteNumeral(primary, number)), take);
  }
}

/// Of every body, also of those that have none, and of all together.
void TakeSatelliteCounts(const Take& take) {
  qsizetype total = 0;
  for (const Primary primary : kPrimaries) {
    const auto count = static_cast<qsizetype>(SatellitesOf(primary).size());
    take(PathOf(primary) + u".Satellite.Count", QString::number(count));
    total += count;
  }
  take(u"Solar.Planet.Satellite.Count"_s, QString::number(total));
}

void TakeOrbitalTypes(const QString& path, ElementKind kind, const Take& take) {
  const auto types = OrbitalTypesOf(kind);
  const QString typePath = path + u".OrbitalType";
  take(typePath + u".Count", QString::number(types.size()));
  for (std::size_t i = 0; i < types.size(); ++i) {
    const QString member = typePath + u".#" + QString::number(i + 1);
    take(member + u".ObjectName", types[i].objectName);
    take(member + u".LocalName", types[i].localName);
    take(typePath + u'.' + types[i].objectName, u"FALSE");
  }
}

void TakeMeteorites(const Take& take) {
  int number = 0;
  for (const Meteorite& meteorite : RecordedMeteorites()) {
    const QString path = u"Solar.Meteorite.No"_s + QString::number(++number);
    TakeNames({path, meteorite.japaneseName, meteorite.englishName}, take);
    take(path + u".TimeOfFall", NumberText(meteorite.FallJdUt()));
    TakeRows(path, kOfMeteorites, take);
  }
  take(u"Solar.Meteorite.Count"_s, QString::number(number));
}

void TakeDustTrails(const Take& take) {
  int number = 0;
  for (const DustTrail& trail : KnownDustTrails()) {
    const QString path = u"Solar.DustTrail.No"_s + QString::number(++number);
    take(path + u".Name", u"%1 (%2)"_s.arg(trail.name, trail.parent));
    TakeRows(path, kOfDustTrails, take);
  }
  take(u"Solar.DustTrail.Count"_s, QString::number(number));
}

}  // namespace

QString BodyPath(int bodyNumber) {
  if (bodyNumber < 0 || bodyNumber >= static_cast<int>(kNumberedBodies.size())) return {};
  return kNumberedBodies[bodyNumber].path.toString();
}

void ForEachStartingValue(const Take& take) {
  for (const Primary primary : kPrimaries) TakeSatellites(primary, take);
  for (std::size_t i = 0; i < kFirstPlanet; ++i) {
    TakeNames(kNumberedBodies[i], take);
    TakeRows(kNumberedBodies[i].path, kOfSunAndMoon, take);
  }
  for (const Body& body : std::span(kNumberedBodies).subspan(kFirstPlanet)) TakePlanet(body, take);
  for (const Body& body : kDwarfPlanets) TakePlanet(body, take);
  TakeSatelliteCounts(take);
  for (const auto path : {u"Solar.Planet", u"Solar.DwarfPlanet"}) {
    TakeRows(path, kOfPlanetClasses, take);
  }
  for (const auto path : {u"Solar.Comet", u"Solar.MinorPlanet"}) {
    TakeRows(path, kOfElementClasses, take);
  }
  TakeOrbitalTypes(u"Solar.Comet"_s, ElementKind::Comet, take);
  TakeOrbitalTypes(u"Solar.MinorPlanet"_s, ElementKind::MinorPlanet, take);
  TakeMeteorites(take);
  TakeDustTrails(take);
  for (const auto path : {u"Solar.Planet.Mars", u"Solar.Planet.Jupiter"}) {
    TakeRows(path, kOfImagedPlanets, take);
  }
  for (const auto path : {u"Solar.Sun", u"Solar.Planet.Mars", u"Solar.Planet.Jupiter"}) {
    TakeRows(path, kOfNewImages, take);
  }
  for (const Row& row : kOfNewSets) take(row.path.toString(), row.value);
  for (const Row& row : kSingle) take(row.path.toString(), row.value);
}

}  // namespace vyn
