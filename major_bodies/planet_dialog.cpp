#include "major_bodies/planet_dialog.h"

#include "resources/string_table.h"

namespace vyn {
namespace {

using enum GridFeature;

constexpr auto kBox = GridReadingKind::Box;
constexpr auto kName = GridReadingKind::Name;
constexpr auto kNameAndLanguage = GridReadingKind::NameAndLanguage;

// The casing of the paths is the one in which each has always been sent.
// clang-format off
constexpr GridReading kReadings[] = {
  {kBox,             Shown,            u"solar.planet.{body}.visible"},
  {kName,            Name,             u"solar.planet.{body}.japanesename.visible"},
  {kNameAndLanguage, Name,             u"solar.planet.{body}.englishname.visible"},
  {kBox,             Date,             u"solar.planet.{body}.date.visible"},
  {kBox,             Magnitude,        u"solar.planet.{body}.magnitude.visible"},
  {kBox,             Orbit,            u"solar.planet.{body}.orbit.visible"},
  {kBox,             OrbitalPlane,     u"solar.planet.{body}.orbitalPlane.visible"},
  {kBox,             OrbitInTheSky,    u"solar.planet.{body}.orbit.InTheSky.Visible", GridRows::AllButEarth},
  {kBox,             OrbitInTheSky,    u"Solar.Planet.Earth.Orbit.InTheSky.Visible", GridRows::EarthOnly},
  {kBox,             Perpendicular,    u"solar.planet.{body}.Orbit.Perpendicular.visible"},
  {kBox,             LagrangianPoints, u"solar.planet.{body}.LagrangianPoint.Mark.Visible"},
  {kBox,             Compass,          u"solar.planet.{Body}.Disk.Compass.Visible"},
  {kBox,             Grid,             u"solar.planet.{Body}.Disk.Grid.Visible"},
  {kBox,             PlaceNames,       u"solar.planet.{Body}.Surface.Name.Visible"},
  {kBox,             LeadLines,        u"solar.planet.{Body}.Surface.Name.LeadLine.Visible"},
};

constexpr auto kSwitch = GridStatementKind::Box;
constexpr auto kJapanese = GridStatementKind::JapaneseName;
constexpr auto kEnglish = GridStatementKind::EnglishName;
constexpr GridStatement kStatements[] = {
  {kSwitch,   Shown,            u"Solar.Planet.{Body}.Visible"},
  {kJapanese, Name,             u"Solar.Planet.{Body}.JapaneseName.Visible"},
  {kEnglish,  Name,             u"Solar.Planet.{Body}.EnglishName.Visible"},
  {kSwitch,   Date,             u"Solar.Planet.{Body}.Date.Visible", GridMode::Both, GridRows::AllButEarth},
  {kSwitch,   Magnitude,        u"Solar.Planet.{Body}.Magnitude.Visible"},
  {kSwitch,   Date,             u"Solar.Planet.{Body}.Date.Visible", GridMode::Both, GridRows::EarthOnly},
  {kSwitch,   Orbit,            u"Solar.Planet.{Body}.Orbit.Visible", GridMode::Solar},
  {kSwitch,   OrbitalPlane,     u"Solar.Planet.{Body}.OrbitalPlane.Visible", GridMode::Solar},
  // The ecliptic plane has no column of its own and follows the orbital plane.
  {kSwitch,   OrbitalPlane,     u"Solar.Planet.{Body}.EclipticPlane.Visible", GridMode::Solar},
  {kSwitch,   OrbitInTheSky,    u"Solar.Planet.{Body}.Orbit.InTheSky.Visible", GridMode::Sky},
  {kSwitch,   Perpendicular,    u"Solar.Planet.{Body}.Orbit.Perpendicular.Visible"},
  {kSwitch,   PlaceNames,       u"Solar.Planet.{Body}.Surface.Name.Visible"},
  {kSwitch,   LeadLines,        u"Solar.Planet.{Body}.Surface.Name.LeadLine.Visible"},
  {kSwitch,   Grid,             u"Solar.Planet.{Body}.Disk.Grid.Visible"},
  {kSwitch,   LagrangianPoints, u"Solar.Planet.{Body}.LagrangianPoint.Mark.Visible"},
  {kSwitch,   Compass,          u"Solar.Planet.{Body}.Disk.Compass.Visible"},
};
// clang-format on

constexpr int kScriptOrder[] = {0, 1, 3, 4, 5, 6, 7, 2};  // the Earth comes last

// The vectors are read from Mercury alone and written for all planets at once.
constexpr GridPaths kPaths = {
    kReadings,
    kStatements,
    kScriptOrder,
    true,
    u"solar.planet.disk.multiplier",
    u"Solar.Planet.disk.multiplier",
    {u"solar.planet.mercury.vector.visible", u"solar.planet.mercury.vector.span",
     u"solar.planet.mercury.vector.multiplier"},
    u"Solar.Planet.vector",
    u"Solar.Planet.Name.Color",
};

}  // namespace

CDlgPlanet::CDlgPlanet(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CDlgPlanetGrid(commandHandle, secondHandle, PlanetsGrid(), kPaths, LoadString(13359),
                     parent) {}

CDlgPlanet::CDlgPlanet(QWidget* parent) : CDlgPlanet(nullptr, nullptr, parent) {}

}  // namespace vyn
