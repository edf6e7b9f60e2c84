#include "host/solar_bodies.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "host/disk_painter.h"
#include "host/overlay_painter.h"
#include "host/place_names.h"
#include "host/satellite_painter.h"
#include "host/solar_canvas.h"
#include "host/solar_eclipse.h"
#include "host/solar_satellites.h"

namespace vyn {
namespace {

/// Planets never shrink below a point; Jupiter's is the largest.
double PointRadius(SkyBody body) {
  return std::clamp(std::log10(RadiusKm(body)) * 1.6 - 3.6, 1.8, 4.4);
}

/// Smaller disks show no night side: their planets could not be found against the dark.
constexpr double kSmallestSphere = 5.0;

double DiskRadius(const SolarCanvas& canvas, const SceneBody& body, const BodyDisplay& display) {
  const double radius =
      body.RadiusAu() * canvas.camera.PixelsPerAu(body.heliocentric) * display.multiplier;
  if (body.body == SkyBody::Sun) return std::max({radius, display.minimumSizePixels, 3.0});
  return std::max(radius, PointRadius(body.body));
}

/// From afar the Moon is one with the Earth, and the planets with the Sun.
bool IsOneWithItsCentre(const SolarCanvas& canvas, const SceneBody& body) {
  if (body.body == SkyBody::Sun || body.body == canvas.frame.view.center) return false;
  const SkyBody center = body.body == SkyBody::Moon ? SkyBody::Earth : SkyBody::Sun;
  const Vector3& place = canvas.frame.scene.Of(center).heliocentric;
  return Length(body.heliocentric - place) * canvas.camera.PixelsPerAu(place) < 8.0;
}

void PaintSunDisk(SolarCanvas& canvas, const Disk& disk, const BodyDisplay& display) {
  if (display.halo && display.surface) PaintHalo(canvas.painter, disk);
  if (display.surface) PaintSun(canvas.painter, disk);
  if (display.outline) PaintOutline(canvas.painter, disk, false);
}

void PaintMoonDisk(SolarCanvas& canvas, const Disk& disk, const BodyDisplay& display) {
  if (display.surface) PaintMoonSurface(canvas.painter, disk);
  if (display.outline) PaintOutline(canvas.painter, disk, true);
}

void PaintSpot(QPainter& painter, const Disk& disk) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(disk.color);
  painter.drawEllipse(disk.center, disk.radius, disk.radius);
}

void PaintDisk(SolarCanvas& canvas, const SceneBody& body, const Disk& disk,
               const BodyDisplay& display) {
  if (body.body == SkyBody::Sun) {
    PaintSunDisk(canvas, disk, display);
  } else if (disk.radius < kSmallestSphere) {
    PaintSpot(canvas.painter, disk);
  } else if (body.body == SkyBody::Moon) {
    PaintMoonDisk(canvas, disk, display);
  } else {
    PaintLitSurface(canvas.painter, disk);
  }
  // A photograph as it was taken has no place here: from outside the Earth's sky is not seen.
  if (const BodyOverlays* overlays = canvas.frame.overlays.Of(body.body)) {
    PaintSurfaceOverlays(canvas.painter, body.body, disk, *overlays);
  }
  if (display.grid) PaintGrid(canvas.painter, disk);
  PaintPlaceNames(canvas.painter, body.body, disk, display, canvas.labels);
  if (body.body == SkyBody::Earth) PaintSolarEclipse(canvas, disk);
  if (display.compass) PaintCompass(canvas.painter, disk, canvas.labels);
}

void PaintBody(SolarCanvas& canvas, const SceneBody& body, const BodyDisplay& display) {
  const auto at = canvas.camera.ToPicture(body.heliocentric);
  if (!at) return;
  const Scene& scene = canvas.frame.scene;
  Disk disk = DiskOf(body, scene.jdTt, body.heliocentric - canvas.camera.Eye(),
                     canvas.camera.AxesAt(body.heliocentric), scene.viewpoint.celestialPole);
  disk.center = *at;
  disk.radius = DiskRadius(canvas, body, display);
  if (!canvas.IsInPicture(*at, 5.0 * disk.radius + 60.0)) return;
  PaintDisk(canvas, body, disk, display);
  canvas.labels.ReserveFromFaint(disk.Bounds());
  canvas.labels.Add({disk.center, disk.radius + (display.compass ? 24.0 : 5.0),
                     LabelText(canvas.frame, body.body), StyleOr(display.nameStyle, disk.color)});
}

void PaintWithSatellites(SolarCanvas& canvas, const SceneBody& body) {
  if (IsOneWithItsCentre(canvas, body)) return;
  const BodyDisplay& display = canvas.frame.display.Of(body.body);
  const double radius = display.isVisible ? DiskRadius(canvas, body, display) : 0.0;
  PaintSolarSatellites(canvas, body, radius, SatelliteSide::Behind);
  if (display.isVisible) PaintBody(canvas, body, display);
  PaintSolarSatellites(canvas, body, radius, SatelliteSide::InFront);
}

}  // namespace

/// The nearest last, so that it covers the others.
void PaintSolarBodies(SolarCanvas& canvas) {
  std::array<const SceneBody*, kSkyBodyCount> bodies{};
  std::transform(canvas.frame.scene.bodies.begin(), canvas.frame.scene.bodies.end(), bodies.begin(),
                 [](const SceneBody& body) { return &body; });
  std::sort(bodies.begin(), bodies.end(), [&](const SceneBody* a, const SceneBody* b) {
    return canvas.camera.DepthAu(a->heliocentric) > canvas.camera.DepthAu(b->heliocentric);
  });
  for (const SceneBody* body : bodies) PaintWithSatellites(canvas, *body);
}

}  // namespace vyn
