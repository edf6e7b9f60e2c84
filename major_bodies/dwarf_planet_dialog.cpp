#include "major_bodies/dwarf_planet_dialog.h"

#include "resources/string_table.h"

namespace vyn {
namespace {

using enum GridFeature;

constexpr auto kBox = GridReadingKind::Box;
constexpr auto kName = GridReadingKind::Name;
constexpr auto kLanguage = GridReadingKind::Language;

// The casing of the paths is the one in which each has always been sent.
// clang-format off
constexpr GridReading kReadings[] = {
  {kBox,      Shown,            u"Solar.Dwarfplanet.{Body}.Visible"},
  {kLanguage, Name,             u"Solar.Dwarfplanet.{Body}.Englishname.Visible"},
  {kName,     Name,             u"Solar.Dwarfplanet.{Body}.Japanesename.Visible"},
  {kName,     Name,             u"Solar.Dwarfplanet.{Body}.Englishname.Visible"},
  {kBox,      Magnitude,        u"Solar.Dwarfplanet.{Body}.Magnitude.Visible"},
  {kBox,      Date,             u"Solar.Dwarfplanet.{Body}.Date.Visible"},
  {kBox,      LagrangianPoints, u"Solar.Dwarfplanet.{Body}.LagrangianPoint.Mark.Visible"},
  {kBox,      Orbit,            u"Solar.Dwarfplanet.{Body}.Orbit.Visible"},
  {kBox,      OrbitalPlane,     u"Solar.Dwarfplanet.{Body}.OrbitalPlane.Visible"},
  {kBox,      Perpendicular,    u"Solar.Dwarfplanet.{Body}.Orbit.Perpendicular.Visible"},
  {kBox,      OrbitInTheSky,    u"Solar.Dwarfplanet.{Body}.Orbit.InTheSky.Visible"},
  {kBox,      Grid,             u"Solar.Dwarfplanet.{Body}.Disk.Grid.Visible"},
  {kBox,      Compass,          u"Solar.Dwarfplanet.{Body}.Disk.Compass.Visible"},
};

constexpr auto kSwitch = GridStatementKind::Box;
constexpr auto kJapanese = GridStatementKind::JapaneseName;
constexpr auto kEnglish = GridStatementKind::EnglishName;
constexpr GridStatement kStatements[] = {
  {kSwitch,   Shown,            u"Solar.Dwarfplanet.{Body}.Visible"},
  {kJapanese, Name,             u"Solar.Dwarfplanet.{Body}.JapaneseName.Visible"},
  {kEnglish,  Name,             u"Solar.Dwarfplanet.{Body}.EnglishName.Visible"},
  {kSwitch,   Date,             u"Solar.Dwarfplanet.{Body}.Date.Visible"},
  {kSwitch,   Magnitude,        u"Solar.Dwarfplanet.{Body}.Magnitude.Visible"},
  {kSwitch,   Orbit,            u"Solar.Dwarfplanet.{Body}.Orbit.Visible", GridMode::Solar},
  {kSwitch,   OrbitalPlane,     u"Solar.Dwarfplanet.{Body}.OrbitalPlane.Visible", GridMode::Solar},
  // The ecliptic plane has no column of its own and follows the orbital plane.
  {kSwitch,   OrbitalPlane,     u"Solar.Dwarfplanet.{Body}.EclipticPlane.Visible", GridMode::Solar},
  {kSwitch,   OrbitInTheSky,    u"Solar.Dwarfplanet.{Body}.Orbit.InTheSky.Visible", GridMode::Sky},
  {kSwitch,   Perpendicular,    u"Solar.Dwarfplanet.{Body}.Orbit.Perpendicular.Visible"},
  {kSwitch,   Grid,             u"Solar.Dwarfplanet.{Body}.Disk.Grid.Visible"},
  // Compass before Lagrangian points, unlike the planets.
  {kSwitch,   Compass,          u"Solar.Dwarfplanet.{Body}.Disk.Compass.Visible"},
  {kSwitch,   LagrangianPoints, u"Solar.Dwarfplanet.{Body}.LagrangianPoint.Mark.Visible"},
};
// clang-format on

constexpr int kScriptOrder[] = {0, 1, 2, 3, 4};

// The vectors are read from Ceres alone and written for all dwarf planets at once.
constexpr GridPaths kPaths = {
    kReadings,
    kStatements,
    kScriptOrder,
    false,
    u"Solar.Dwarfplanet.Disk.Multiplier",
    u"Solar.Dwarfplanet.Disk.Multiplier",
    {u"Solar.Dwarfplanet.Ceres.Vector.Visible", u"Solar.Dwarfplanet.Ceres.Vector.Span",
     u"Solar.Dwarfplanet.Ceres.Vector.Multiplier"},
    u"Solar.Dwarfplanet.vector",
    u"Solar.Dwarfplanet.Name.Color",
};

}  // namespace

CDlgDwarfPlanet::CDlgDwarfPlanet(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CDlgPlanetGrid(commandHandle, secondHandle, DwarfPlanetsGrid(), kPaths, LoadString(13359),
                     parent) {}

CDlgDwarfPlanet::CDlgDwarfPlanet(QWidget* parent)
    : CDlgPlanetGrid(nullptr, nullptr, DwarfPlanetsGrid(), kPaths, LoadString(13360), parent) {}

}  // namespace vyn
