#include "engine/starting_state.h"

#include <array>
#include <span>

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

struct Satellite {
  QStringView bodyPath;
  int number;
  QStringView japaneseName;
  QStringView englishName;
  QStringView numeral;
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

/// The larger satellites. Planets that are not named here have none.
constexpr std::array<Satellite, 24> kSatellites{{
  {u"Solar.Planet.Earth",      1, u"月",           u"Moon",      u"I"},
  {u"Solar.Planet.Mars",       1, u"フォボス",     u"Phobos",    u"I"},
  {u"Solar.Planet.Mars",       2, u"ダイモス",     u"Deimos",    u"II"},
  {u"Solar.Planet.Jupiter",    1, u"イオ",         u"Io",        u"I"},
  {u"Solar.Planet.Jupiter",    2, u"エウロパ",     u"Europa",    u"II"},
  {u"Solar.Planet.Jupiter",    3, u"ガニメデ",     u"Ganymede",  u"III"},
  {u"Solar.Planet.Jupiter",    4, u"カリスト",     u"Callisto",  u"IV"},
  {u"Solar.Planet.Jupiter",    5, u"アマルテア",   u"Amalthea",  u"V"},
  {u"Solar.Planet.Saturn",     1, u"ミマス",       u"Mimas",     u"I"},
  {u"Solar.Planet.Saturn",     2, u"エンケラドス", u"Enceladus", u"II"},
  {u"Solar.Planet.Saturn",     3, u"テチス",       u"Tethys",    u"III"},
  {u"Solar.Planet.Saturn",     4, u"ディオネ",     u"Dione",     u"IV"},
  {u"Solar.Planet.Saturn",     5, u"レア",         u"Rhea",      u"V"},
  {u"Solar.Planet.Saturn",     6, u"タイタン",     u"Titan",     u"VI"},
  {u"Solar.Planet.Saturn",     7, u"ハイペリオン", u"Hyperion",  u"VII"},
  {u"Solar.Planet.Saturn",     8, u"イアペタス",   u"Iapetus",   u"VIII"},
  {u"Solar.Planet.Uranus",     1, u"アリエル",     u"Ariel",     u"I"},
  {u"Solar.Planet.Uranus",     2, u"ウンブリエル", u"Umbriel",   u"II"},
  {u"Solar.Planet.Uranus",     3, u"タイタニア",   u"Titania",   u"III"},
  {u"Solar.Planet.Uranus",     4, u"オベロン",     u"Oberon",    u"IV"},
  {u"Solar.Planet.Uranus",     5, u"ミランダ",     u"Miranda",   u"V"},
  {u"Solar.Planet.Neptune",    1, u"トリトン",     u"Triton",    u"I"},
  {u"Solar.Planet.Neptune",    2, u"ネレイド",     u"Nereid",    u"II"},
  {u"Solar.DwarfPlanet.Pluto", 1, u"カロン",       u"Charon",    u"I"},
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
  {u"Solar.Planet.Satellite.Count",                   u"24"},
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
  {u"Solar.Comet.*.DustTail.EmissionSpan",            u"10"},
  {u"Solar.Comet.*.DustTail.BetaMin",                 u"-1"},
  {u"Solar.Comet.*.DustTail.BetaMax",                 u"-1"},
  {u"Solar.Comet.*.IonTail.EmissionSpan",             u"3"},
  {u"Solar.MinorPlanet.ID.Color",                     u"#c0c080"},
  {u"Solar.MinorPlanet.ID.Font",                      u"IPAGothic,9"},
  {u"Solar.MinorPlanet.Symbolic",                     u"FALSE"},
  {u"Solar.Meteorite.Count",                          u"0"},
  {u"Solar.DustTrail.Count",                          u"0"},
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

QString SatellitesOf(QStringView bodyPath) { return bodyPath + u".Satellite"_s; }

int SatelliteCount(QStringView bodyPath) {
  int count = 0;
  for (const Satellite& satellite : kSatellites) count += satellite.bodyPath == bodyPath ? 1 : 0;
  return count;
}

void TakeSatelliteCount(QStringView bodyPath, const Take& take) {
  take(SatellitesOf(bodyPath) + u".Count"_s, QString::number(SatelliteCount(bodyPath)));
}

void TakeSatellite(const Satellite& satellite, const Take& take) {
  const QString path =
      SatellitesOf(satellite.bodyPath) + u".No"_s + QString::number(satellite.number);
  TakeRows(path, kOfSatellites, take);
  TakeNames({path, satellite.japaneseName, satellite.englishName}, take);
  take(path + u".Name"_s, satellite.japaneseName);
  take(path + u".Number"_s, satellite.numeral);
}

}  // namespace

QString BodyPath(int bodyNumber) {
  if (bodyNumber < 0 || bodyNumber >= static_cast<int>(kNumberedBodies.size())) return {};
  return kNumberedBodies[bodyNumber].path.toString();
}

void ForEachStartingValue(const Take& take) {
  for (const Satellite& satellite : kSatellites) TakeSatellite(satellite, take);
  for (std::size_t i = 0; i < kFirstPlanet; ++i) {
    TakeNames(kNumberedBodies[i], take);
    TakeRows(kNumberedBodies[i].path, kOfSunAndMoon, take);
  }
  for (const Body& body : std::span(kNumberedBodies).subspan(kFirstPlanet)) TakePlanet(body, take);
  for (const Body& body : kDwarfPlanets) TakePlanet(body, take);
  for (const Body& body : kNumberedBodies) TakeSatelliteCount(body.path, take);
  for (const Body& body : kDwarfPlanets) TakeSatelliteCount(body.path, take);
  for (const auto path : {u"Solar.Planet", u"Solar.DwarfPlanet"}) {
    TakeRows(path, kOfPlanetClasses, take);
  }
  for (const auto path : {u"Solar.Comet", u"Solar.MinorPlanet"}) {
    TakeRows(path, kOfElementClasses, take);
  }
  for (const auto path : {u"Solar.Planet.Mars", u"Solar.Planet.Jupiter"}) {
    TakeRows(path, kOfImagedPlanets, take);
  }
  for (const Row& row : kSingle) take(row.path.toString(), row.value);
}

}  // namespace vyn
