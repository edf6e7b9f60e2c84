#include "major_bodies/sun_dialog.h"

#include <array>

#include "core_link/reply.h"
#include "core_link/statement.h"
#include "resources/string_table.h"

namespace vyn {

enum class ReadingKind { Any, Shown, TrueSize };

/// How a control value is read: true when any of the paths is (asked until one is), when a body is
/// shown, or when a disk may be drawn smaller than one pixel.
struct SunReading {
  ReadingKind kind;
  int control;
  QStringView path;
  QStringView otherPath = {};
};

namespace {

enum class StatementKind { Body, JapaneseName, EnglishName, Switch, TrueSize, TrueSizeInSky };

/// What the state script says of a property; `radio` is the drawing or language beside the switch.
struct SunStatement {
  StatementKind kind;
  int control;
  QStringView path;
  int radio = 0;
};

constexpr int kSun = 1001, kSunSurface = 1002, kSunName = 1004, kSunLanguage = 1005;
constexpr int kMoon = 1017, kMoonName = 1020, kMoonPlaceNames = 1027;
constexpr int kObserverOnSun = 0, kObserverOnMoon = 1, kObserverElsewhere = 4;

// The casing of the paths is the one in which each has always been sent.
// clang-format off
constexpr std::array kReadings = {
  SunReading{ReadingKind::Shown,    1001, u"solar.sun"},
  SunReading{ReadingKind::Any,      1005, u"solar.sun.englishname.visible"},
  SunReading{ReadingKind::Any,      1004, u"solar.sun.japanesename.visible", u"solar.sun.englishname.visible"},
  SunReading{ReadingKind::Any,      1007, u"solar.sun.date.visible"},
  SunReading{ReadingKind::Any,      1011, u"solar.sun.halo.visible"},
  SunReading{ReadingKind::TrueSize, 1010, u"solar.sun.disk.minimumSize"},
  SunReading{ReadingKind::Any,      1002, u"solar.sun.outline.visible"},
  SunReading{ReadingKind::Any,      1008, u"solar.sun.disk.compass.visible"},
  SunReading{ReadingKind::Any,      1009, u"solar.sun.disk.grid.visible"},
  SunReading{ReadingKind::Any,      1015, u"Solar.Planet.Earth.SolarEclipse.Umbra.Outline.Visible", u"Solar.Planet.Earth.SolarEclipse.Penumbra.Outline.Visible"},
  SunReading{ReadingKind::Any,      1014, u"Solar.Planet.Earth.SolarEclipse.Path.Visible"},
  SunReading{ReadingKind::Shown,    1017, u"solar.planet.earth.satellite.moon"},
  SunReading{ReadingKind::Any,      1021, u"solar.planet.earth.satellite.moon.englishname.visible"},
  SunReading{ReadingKind::Any,      1020, u"solar.planet.earth.satellite.moon.japanesename.visible", u"solar.planet.earth.satellite.moon.englishname.visible"},
  SunReading{ReadingKind::Any,      1023, u"solar.planet.earth.satellite.moon.date.visible"},
  SunReading{ReadingKind::Any,      1032, u"solar.planet.earth.umbra.outline.visible", u"solar.planet.earth.penumbra.outline.visible"},
  SunReading{ReadingKind::TrueSize, 1026, u"solar.planet.earth.satellite.moon.disk.minimumSize"},
  SunReading{ReadingKind::Any,      1018, u"solar.planet.earth.satellite.moon.outline.visible"},
  SunReading{ReadingKind::Any,      1024, u"solar.planet.earth.satellite.moon.disk.compass.visible"},
  SunReading{ReadingKind::Any,      1025, u"solar.planet.earth.satellite.moon.disk.grid.visible"},
  SunReading{ReadingKind::Any,      1027, u"solar.planet.earth.satellite.moon.surface.name.visible"},
  SunReading{ReadingKind::Any,      1028, u"Solar.Planet.Earth.Satellite.Moon.Surface.Name.Leadline.Visible"},
  SunReading{ReadingKind::Any,      1029, u"solar.planet.earth.satellite.moon.lagrangianpoint.mark.visible"},
  SunReading{ReadingKind::Any,      1030, u"solar.planet.earth.satellite.moon.orbit.visible"},
};

constexpr std::array kStatements = {
  SunStatement{StatementKind::Body,          1001, u"solar.sun", 1002},
  SunStatement{StatementKind::JapaneseName,  1004, u"solar.sun.japanesename.visible", 1005},
  SunStatement{StatementKind::EnglishName,   1004, u"solar.sun.englishname.visible", 1005},
  SunStatement{StatementKind::Switch,        1007, u"solar.sun.date.visible"},
  SunStatement{StatementKind::Switch,        1011, u"solar.sun.halo.visible"},
  SunStatement{StatementKind::TrueSize,      1010, u"solar.sun.disk.minimumSize"},
  SunStatement{StatementKind::Switch,        1008, u"solar.sun.disk.compass.visible"},
  SunStatement{StatementKind::Switch,        1009, u"solar.sun.disk.grid.visible"},
  SunStatement{StatementKind::Switch,        1015, u"Solar.Planet.Earth.SolarEclipse.Umbra.Outline.Visible"},
  SunStatement{StatementKind::Switch,        1015, u"Solar.Planet.Earth.SolarEclipse.Penumbra.Outline.Visible"},
  SunStatement{StatementKind::Switch,        1014, u"Solar.Planet.Earth.SolarEclipse.Path.Visible"},
  SunStatement{StatementKind::Body,          1017, u"solar.planet.earth.satellite.moon", 1018},
  SunStatement{StatementKind::JapaneseName,  1020, u"solar.planet.earth.satellite.moon.japanesename.visible", 1021},
  SunStatement{StatementKind::EnglishName,   1020, u"solar.planet.earth.satellite.moon.englishname.visible", 1021},
  SunStatement{StatementKind::Switch,        1023, u"solar.planet.earth.satellite.moon.date.visible"},
  SunStatement{StatementKind::Switch,        1032, u"solar.planet.earth.umbra.outline.visible"},
  SunStatement{StatementKind::Switch,        1032, u"solar.planet.earth.penumbra.outline.visible"},
  // Unlike the Sun's, the Moon's minimum size is left alone in solar-system mode.
  SunStatement{StatementKind::TrueSizeInSky, 1026, u"solar.planet.earth.satellite.moon.disk.minimumSize"},
  SunStatement{StatementKind::Switch,        1024, u"solar.planet.earth.satellite.moon.disk.compass.visible"},
  SunStatement{StatementKind::Switch,        1025, u"solar.planet.earth.satellite.moon.disk.grid.visible"},
  SunStatement{StatementKind::Switch,        1027, u"solar.planet.earth.satellite.moon.surface.name.visible"},
  SunStatement{StatementKind::Switch,        1028, u"solar.planet.earth.satellite.moon.surface.name.leadline.visible"},
  SunStatement{StatementKind::Switch,        1029, u"solar.planet.earth.satellite.moon.lagrangianpoint.mark.visible"},
  SunStatement{StatementKind::Switch,        1030, u"solar.planet.earth.satellite.moon.orbit.visible"},
};
// clang-format on

QString MinimumSize(QStringView path, bool trueSize) {
  return statement::Int(path, trueSize ? 0 : 10);
}

/// A body that is not shown keeps its surface and outline as they are. The solar-system view knows
/// no outlines.
QString BodyStatements(const QString& body, bool shown, bool asSurface, bool asOutline) {
  QString text = statement::Bool(QString(body + u".visible"), shown);
  if (shown) {
    text += statement::Bool(QString(body + u".surface.visible"), asSurface);
    text += statement::Bool(QString(body + u".outline.visible"), asOutline);
  }
  return text;
}

}  // namespace

CDlgSun::CDlgSun(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CVynLiveDialog(commandHandle, secondHandle, 13004, LoadString(13363), parent) {
  SetValue(kSunLanguage, -1);
}

CDlgSun::CDlgSun(QWidget* parent) : CDlgSun(nullptr, nullptr, parent) {}

void CDlgSun::AttachControls() {
  CVynLiveDialog::AttachControls();
  OnClicked({1001}, &CDlgSun::OnCheckSunView);
  OnClicked({1004}, &CDlgSun::OnCheckSunName);
  OnClicked({1002}, &CDlgSun::OnRadioSunSurface);
  OnClicked({1003}, &CDlgSun::OnRadioSunBorder);
  OnClicked({1017}, &CDlgSun::OnCheckMoonView);
  OnClicked({1020}, &CDlgSun::OnCheckMoonName);
  OnClicked({1027}, &CDlgSun::OnCheckMoonGeoName);
  OnClicked({1005, 1006, 1007, 1008, 1009, 1010, 1011, 1014, 1015, 1018, 1019,
             1021, 1022, 1023, 1024, 1025, 1026, 1028, 1029, 1030, 1032},
            &CDlgSun::OnApply);
  AttachColorButton(1033, &CDlgSun::OnButtonFont);
}

void CDlgSun::Init() {
  solarMode_ = IsSolarMode();
  for (const SunReading& reading : kReadings) SetValue(reading.control, ReadValue(reading));
  UpdateData(false);
}

int CDlgSun::ReadValue(const SunReading& reading) {
  switch (reading.kind) {
    case ReadingKind::Shown:
      return IsBodyShown(reading.path.toString());
    case ReadingKind::TrueSize:
      return GetDouble(reading.path.toString()) < 1.0;
    case ReadingKind::Any:
      break;
  }
  const auto isOn = [this](QStringView path) {
    return CorVynBool(statement::Query(path.toString()));
  };
  return isOn(reading.path) || (!reading.otherPath.isEmpty() && isOn(reading.otherPath));
}

bool CDlgSun::IsBodyShown(const QString& body) {
  const QString query = statement::Query(body);
  return CorVynBool(query + u".visible") &&
         (CorVynBool(query + u".surface.visible") || CorVynBool(query + u".outline.visible"));
}

bool CDlgSun::CorVynBool(const QString& command) { return reply::ToBool(Doit(command)); }

/// At opening the body under the observer's feet is taken out of the user's hands: it cannot be
/// hidden from a horizon that stands on it.
void CDlgSun::UpdateControls() {
  EnableDisableSun();
  EnableDisableMoon();
  observerBody_ = kObserverElsewhere;
  isHorizon_ = IsHorizonView();
  if (!isHorizon_ || CommandHandle() == nullptr) return;
  observerBody_ = CommandHandle()->GetLocationObject();
  if (observerBody_ == kObserverOnSun) {
    Enable({1000, kSun}, false);
    EnableDisableSun(0);
  } else if (observerBody_ == kObserverOnMoon) {
    Enable({1016, kMoon}, false);
    EnableDisableMoon(0);
  }
}

void CDlgSun::EnableDisableSun(int shown) {
  Enable({1002, 1003, 1010}, shown && !solarMode_);
  Enable({1004, 1007, 1008, 1009}, shown);
  Enable({1005, 1006}, shown && IsChecked(kSunName));
  Enable(1011, shown && IsChecked(kSunSurface));
}

/// The Lagrangian points, 1029, can be switched whether or not the Moon itself is shown.
void CDlgSun::EnableDisableMoon(int shown) {
  Enable({1018, 1019, 1031, 1026}, shown && !solarMode_);
  Enable({1032, 1020, 1023, 1024, 1025, 1027, 1030}, shown);
  Enable({1021, 1022}, shown && IsChecked(kMoonName));
  Enable(1028, shown && IsChecked(kMoonPlaceNames));
}

void CDlgSun::WriteScript(QString& out) {
  for (const SunStatement& row : kStatements) {
    const bool on = IsOn(row.control);
    switch (row.kind) {
      case StatementKind::Body:
        out += BodyStatements(row.path.toString(), on, solarMode_ || Value(row.radio) == 0,
                              !solarMode_ && Value(row.radio) == 1);
        break;
      case StatementKind::JapaneseName:
        out += statement::Bool(row.path, on && Value(row.radio) == 0);
        break;
      case StatementKind::EnglishName:
        out += statement::Bool(row.path, on && Value(row.radio) == 1);
        break;
      case StatementKind::Switch:
        out += statement::Bool(row.path, on);
        break;
      case StatementKind::TrueSize:
        out += MinimumSize(row.path, on);
        break;
      case StatementKind::TrueSizeInSky:
        if (!solarMode_) out += MinimumSize(row.path, on);
        break;
    }
  }
  if (observerBody_ < 2) out += ObserverBodyStatement(observerBody_);
}

void CDlgSun::OnCheckSunView() { ApplySun(); }
void CDlgSun::OnCheckSunName() { ApplySun(); }
void CDlgSun::OnRadioSunSurface() { ApplySun(); }
void CDlgSun::OnRadioSunBorder() { ApplySun(); }
void CDlgSun::OnCheckMoonView() { ApplyMoon(); }
void CDlgSun::OnCheckMoonName() { ApplyMoon(); }
void CDlgSun::OnCheckMoonGeoName() { ApplyMoon(); }

void CDlgSun::ApplySun() {
  Apply();
  EnableDisableSun();
}

void CDlgSun::ApplyMoon() {
  Apply();
  EnableDisableMoon();
}

void CDlgSun::OnButtonFont() { ChooseColorAndFont(QStringLiteral("Solar.Sun.Name.Color")); }

}  // namespace vyn
