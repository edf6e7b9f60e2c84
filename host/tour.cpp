#include "host/tour.h"

#include <array>
#include <cstdio>
#include <span>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>

#include "core_link/dialog.h"
#include "engine/reference_engine.h"
#include "host/dialog_catalogue.h"
#include "host/main_window.h"
#include "host/sky_view.h"
#include "resources/dialog_template.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// A state of the window; the commands begin at the starting state.
struct Stop {
  QStringView name;
  QStringView commands;
  int observerBody = 4;
};

/// A dialog before a fitting sky, and what is clicked in it.
struct DialogStop {
  int templateNumber;
  QStringView commands;
  std::array<int, 3> clicks;
};

// clang-format off
constexpr Stop kStops[] = {
  {u"sky_horizon",   u"View.Azimuth = 130; View.Altitude = 40; View.Angle = 100; Show Sky"},
  {u"sky_ecliptic",  u"View.Coordinate = Ecliptic; View.Longitude = 60; View.Latitude = 0; View.Angle = 110;"
                     u" solar.moon.orbit.visible = TRUE; Show Sky"},
  {u"moon",          u"View.Center = Solar.Moon; View.Center.Track = TRUE; View.Angle = 0.75;"
                     u" solar.moon.surface.name.visible = TRUE; solar.moon.surface.name.leadline.visible = TRUE;"
                     u" solar.moon.disk.compass.visible = TRUE; Show Sky"},
  {u"zodiacal_light", u"time = jst(2026, 3, 10, 19, 20, 0); View.Azimuth = 265; View.Altitude = 38; View.Angle = 95;"
                     u" solar.ZodiacalLight.Visible = TRUE; solar.CounterGlow.Visible = TRUE; Show Sky"},
  {u"lunar_eclipse", u"time = jst(2025, 9, 8, 1, 50, 0); View.Center = Solar.Moon; View.Center.Track = TRUE; View.Angle = 4;"
                     u" solar.moon.disk.minimumSize = 0; solar.moon.orbit.visible = TRUE;"
                     u" solar.planet.earth.umbra.outline.visible = TRUE; solar.planet.earth.penumbra.outline.visible = TRUE; Show Sky"},
  {u"solar_system_inner", u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 8;"
                     u" solar.MainBelt.Visible = TRUE; solar.HabitableZone.Visible = TRUE; Show Sky"},
  {u"solar_system_outer", u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 110;"
                     u" solar.KuiperBelt.Visible = TRUE; Show Sky"},
  {u"oort_cloud",    u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 250000;"
                     u" solar.OortCloud.Visible = TRUE; CosmicScale.Visible = TRUE; Show Sky"},
  {u"moon_orbit",    u"View.Projection = SolarSystem; View.Center = Solar.Planet.Earth; View.Outside.Distance = 0.009;"
                     u" solar.moon.orbit.visible = TRUE; solar.moon.lagrangianpoint.mark.visible = TRUE; Show Sky"},
  {u"solar_eclipse", u"time = jst(2026, 8, 13, 2, 30, 0); View.Projection = SolarSystem; View.Center = Solar.Planet.Earth;"
                     u" View.Outside.Distance = 0.00018; View.Outside.Longitude = 132; View.Outside.Latitude = 42;"
                     u" Solar.Planet.Earth.Disk.Grid.Visible = TRUE;"
                     u" Solar.Planet.Earth.SolarEclipse.Path.Visible = TRUE; Solar.Planet.Earth.SolarEclipse.Umbra.Outline.Visible = TRUE;"
                     u" Solar.Planet.Earth.SolarEclipse.Penumbra.Outline.Visible = TRUE; Show Sky"},
  {u"motion_in_the_sky", u"time = jst(2026, 2, 20, 18, 0, 0); View.Coordinate = Ecliptic; View.Longitude = 0; View.Latitude = 0; View.Angle = 75;"
                     u" Solar.Planet.Orbit.InTheSky.Visible = TRUE; Solar.Planet.Orbit.Perpendicular.Visible = TRUE; Solar.Planet.Magnitude.Visible = TRUE;"
                     u" Solar.Planet.Vector.Visible = TRUE; Solar.Planet.Vector.Span = 5; Solar.Planet.Vector.Multiplier = 3; Show Sky"},
  {u"magnified_disks", u"time = jst(2026, 6, 16, 20, 0, 0); View.Coordinate = Ecliptic; View.Longitude = 112; View.Latitude = 0; View.Angle = 25;"
                     u" Solar.Planet.Disk.Multiplier = 200; Solar.Planet.Disk.Compass.Visible = TRUE; Solar.Planet.Disk.Grid.Visible = TRUE; Show Sky"},
  {u"mars",          u"View.Projection = SolarSystem; View.Center = Solar.Planet.Mars; View.Outside.Distance = 0.00012;"
                     u" View.Outside.Longitude = 100; View.Outside.Latitude = 10; Solar.Planet.Mars.Surface.Name.Visible = TRUE;"
                     u" Solar.Planet.Mars.Surface.Name.LeadLine.Visible = TRUE; Solar.Planet.Mars.Disk.Grid.Visible = TRUE; Show Sky"},
  {u"earth",         u"View.Projection = SolarSystem; View.Center = Solar.Planet.Earth; View.Outside.Distance = 0.00018;"
                     u" View.Outside.Longitude = 60; View.Outside.Latitude = 5; Solar.Planet.Earth.Surface.Name.Visible = TRUE;"
                     u" Solar.Planet.Earth.Disk.Grid.Visible = TRUE; Show Sky"},
  {u"orbital_planes", u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 2.6; View.Outside.Latitude = 12;"
                     u" Solar.Planet.Mercury.OrbitalPlane.Visible = TRUE; Solar.Planet.Venus.OrbitalPlane.Visible = TRUE;"
                     u" Solar.Planet.Venus.EclipticPlane.Visible = TRUE; Solar.Planet.Mercury.Orbit.Perpendicular.Visible = TRUE;"
                     u" Solar.Planet.Vector.Visible = TRUE; Solar.Planet.Vector.Span = 10; Show Sky"},
  {u"dwarf_planets", u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 190; View.Outside.Latitude = 14;"
                     u" Solar.DwarfPlanet.Orbit.Perpendicular.Visible = TRUE; Solar.DwarfPlanet.Date.Visible = TRUE;"
                     u" Solar.DwarfPlanet.Pluto.OrbitalPlane.Visible = TRUE; Solar.DwarfPlanet.Pluto.EclipticPlane.Visible = TRUE; Show Sky"},
  {u"jupiter_satellites", u"time = jst(2026, 1, 2, 1, 0, 0); View.Center = Solar.Planet.Jupiter; View.Center.Track = TRUE; View.Angle = 0.4;"
                     u" Solar.Planet.Jupiter.Satellite.JapaneseName.Visible = TRUE; Solar.Planet.Jupiter.Satellite.Number.Visible = TRUE;"
                     u" Solar.Planet.Jupiter.Satellite.No1.Orbit.Visible = TRUE; Solar.Planet.Jupiter.Satellite.No2.Orbit.Visible = TRUE;"
                     u" Solar.Planet.Jupiter.Satellite.No3.Orbit.Visible = TRUE; Solar.Planet.Jupiter.Satellite.No4.Orbit.Visible = TRUE; Show Sky"},
  {u"saturn_satellites", u"View.Projection = SolarSystem; View.Center = Solar.Planet.Saturn; View.Outside.Distance = 0.012;"
                     u" View.Outside.Latitude = 25; Solar.Planet.Saturn.Satellite.JapaneseName.Visible = TRUE;"
                     u" Solar.Planet.Saturn.Satellite.Orbit.Visible = TRUE; Show Sky"},
  {u"irregular_satellites", u"View.Projection = SolarSystem; View.Center = Solar.Planet.Jupiter; View.Outside.Distance = 0.6;"
                     u" Solar.Planet.Jupiter.Satellite.EnglishName.Visible = TRUE;"
                     u" Solar.Planet.Jupiter.Satellite.Orbit.Visible = TRUE; Show Sky"},
  {u"pluto",         u"View.Projection = SolarSystem; View.Center = Solar.DwarfPlanet.Pluto; View.Outside.Distance = 0.0012;"
                     u" Solar.DwarfPlanet.Pluto.Satellite.JapaneseName.Visible = TRUE; Solar.DwarfPlanet.Pluto.Satellite.Orbit.Visible = TRUE;"
                     u" Solar.DwarfPlanet.Pluto.Disk.Grid.Visible = TRUE; Show Sky"},
  {u"comet_tails",   u"time = jst(2061, 8, 12, 0, 0, 0); View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 1.7;"
                     u" View.Outside.Longitude = 40; View.Outside.Latitude = 40; Solar.MinorPlanet.Visible = FALSE; Solar.Comet.No489.JapaneseName.Visible = TRUE;"
                     u" Solar.Comet.No489.DustTail.Visible = TRUE; Solar.Comet.No489.IonTail.Visible = TRUE; Solar.Comet.No489.Orbit = TRUE;"
                     u" Solar.Comet.No489.DustTail.EmissionSpan = 120; Solar.Comet.No489.IonTail.EmissionSpan = 16; Show Sky"},
  {u"minor_planets", u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 11; View.Outside.Latitude = 60;"
                     u" Solar.Comet.Visible = FALSE; Solar.MinorPlanet.Symbolic = TRUE; Show Sky"},
  {u"sunspots",      u"View.Coordinate = Ecliptic; View.Center = Solar.Sun; View.Center.Track = TRUE; View.Angle = 0.8; Solar.Sun.Disk.Grid.Visible = TRUE;"
                     u" Solar.Sun.Halo.Visible = FALSE; Solar.Sun.Sunspot.Visible = TRUE; Solar.Sun.Sunspot.Add(); Solar.Sun.Sunspot.#1.Add(-85, 14, 2);"
                     u" Solar.Sun.Sunspot.#1.Add(-77, 15, 3); Solar.Sun.Sunspot.#1.Add(-50, -12, 4); Show Sky"},
  {u"from_the_moon", u"location = location(20, 30, 0); View.Center = Solar.Planet.Earth; View.Center.Track = TRUE; View.Angle = 60; Show Sky", 1},
};

constexpr DialogStop kDialogStops[] = {
  {13004, u"View.Center = Solar.Moon; View.Center.Track = TRUE; View.Angle = 2; Show Sky", {1024, 1025, 1030}},
  {13002, u"time = jst(2026, 2, 20, 18, 0, 0); View.Coordinate = Ecliptic; View.Longitude = 330; View.Latitude = 18; View.Angle = 100; Show Sky", {1107, 1121, 1123}},
  {13005, u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 190; View.Outside.Latitude = 14; Show Sky", {1319, 1376, 1379}},
  {13003, u"View.Coordinate = Ecliptic; View.Longitude = 109.7; View.Latitude = 1.1; View.Angle = 3; Show Sky", {1511, 1515, 1517}},
  {13000, u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 9; Show Sky", {1708, 0, 0}},
  {13001, u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 9; Show Sky", {1837, 0, 0}},
  {13019, u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 9; Show Sky", {11103, 11105, 11108}},
  {13015, u"time = jst(2026, 3, 10, 19, 20, 0); View.Azimuth = 265; View.Altitude = 38; View.Angle = 95; Show Sky", {11102, 11103, 0}},
};
// clang-format on

class Tour {
 public:
  Tour(MainWindow& window, const QString& folder, double jdUt)
      : window_(window), folder_(folder), jdUt_(jdUt) {}

  bool Play() {
    if (!folder_.mkpath(u"."_s)) return Fail(folder_.path());
    for (const Stop& stop : kStops) Visit(stop);
    for (const DialogEntry& entry : DialogCatalogue()) Visit(entry);
    return isComplete_;
  }

 private:
  void Begin(QStringView commands, int observerBody) {
    window_.Engine().LoadStartingState();
    window_.Engine().SetLocationObject(observerBody);
    window_.GoTo(jdUt_);
    window_.Send(commands.toString());
    QApplication::processEvents();
  }

  void Visit(const Stop& stop) {
    Begin(stop.commands, stop.observerBody);
    Save(window_.grab(), stop.name.toString());
  }

  /// Pictures of the dialog alone, of the sky behind it after some clicks, and of the sky after
  /// Cancel, which is as before.
  void Visit(const DialogEntry& entry) {
    const QString name = entry.name.toString();
    const DialogStop* stop = StopOf(entry.templateNumber);
    Begin(stop != nullptr ? stop->commands : QStringView(u"Show Sky"), 4);
    CVynDialog* dialog = window_.OpenDialog(entry);
    QApplication::processEvents();
    Save(dialog->grab(), u"dialog_"_s + name);
    if (stop != nullptr) {
      for (const int id : stop->clicks) Click(*dialog, id);
      Save(WithDialog(*dialog), u"clicked_"_s + name);
    }
    Click(*dialog, kCancelButton);
    Save(window_.grab(), u"cancelled_"_s + name);
  }

  static const DialogStop* StopOf(int templateNumber) {
    for (const DialogStop& stop : kDialogStops) {
      if (stop.templateNumber == templateNumber) return &stop;
    }
    return nullptr;
  }

  static void Click(const CVynDialog& dialog, int id) {
    if (auto* button = qobject_cast<QAbstractButton*>(dialog.GetDlgItem(id)); id != 0 && button) {
      button->click();
    }
    QApplication::processEvents();
  }

  /// A picture of the window with the dialog before it, framed as a window system would.
  QPixmap WithDialog(CVynDialog& dialog) {
    constexpr int kCaptionHeight = 26;
    constexpr int kMargin = 24;
    QPixmap picture = window_.grab();
    const QPixmap content = dialog.grab();
    const QRect caption(picture.width() - content.width() - kMargin, 40 + kMargin, content.width(),
                        kCaptionHeight);
    QPainter painter(&picture);
    painter.fillRect(caption, QColor(52, 60, 78));
    painter.setPen(Qt::white);
    painter.drawText(caption.adjusted(8, 0, 0, 0), Qt::AlignVCenter, dialog.windowTitle());
    painter.drawPixmap(caption.bottomLeft(), content);
    return picture;
  }

  void Save(const QPixmap& picture, const QString& name) {
    const QString file = folder_.filePath(name + u".png");
    if (picture.save(file)) {
      std::printf("%s\n", qPrintable(file));
    } else {
      isComplete_ = Fail(file);
    }
  }

  static bool Fail(const QString& file) {
    std::fprintf(stderr, "vyn-planetarium: cannot write %s\n", qPrintable(file));
    return false;
  }

  MainWindow& window_;
  QDir folder_;
  double jdUt_;
  bool isComplete_ = true;
};

}  // namespace

bool PlayTour(MainWindow& window, const QString& folder, double jdUt) {
  return Tour(window, folder, jdUt).Play();
}

}  // namespace vyn
