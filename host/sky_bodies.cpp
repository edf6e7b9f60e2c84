#include "host/sky_bodies.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "host/disk_painter.h"
#include "host/overlay_painter.h"
#include "host/place_names.h"
#include "host/satellite_painter.h"
#include "host/sky_canvas.h"
#include "host/sky_satellites.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// A planet whose disk is smaller than this is a point whose size tells its brightness.
constexpr double kSmallestPlanetDiskPixels = 2.5;

double DiskRadius(const SkyCanvas& canvas, const SceneBody& body, const BodyDisplay& display) {
  const double scale = canvas.projection.PixelsPerRadian(canvas.ToView(body.seen));
  const double radius = body.RadiusRad() * scale * display.multiplier;
  return display.minimumSizePixels < 1.0 ? radius : std::max(radius, display.minimumSizePixels);
}

double PointRadius(double magnitude) { return std::clamp(1.3 + 0.5 * (5.0 - magnitude), 1.2, 5.5); }

void PaintPoint(QPainter& painter, const QPointF& at, const QColor& color, double radius) {
  QColor glow = color;
  glow.setAlpha(50);
  painter.setPen(Qt::NoPen);
  painter.setBrush(glow);
  painter.drawEllipse(at, radius * 2.0, radius * 2.0);
  painter.setBrush(color);
  painter.drawEllipse(at, radius, radius);
}

void PaintSunDisk(SkyCanvas& canvas, const Disk& disk, const BodyDisplay& display) {
  if (display.halo && display.surface) PaintHalo(canvas.painter, disk);
  if (display.surface) PaintSun(canvas.painter, disk);
  if (display.outline) PaintOutline(canvas.painter, disk, false);
}

void PaintMoonDisk(SkyCanvas& canvas, const Disk& disk, const BodyDisplay& display) {
  if (display.surface) PaintMoonSurface(canvas.painter, disk);
  if (display.outline) PaintOutline(canvas.painter, disk, true);
}

void PaintPlanetDisk(SkyCanvas& canvas, const SceneBody& body, const Disk& disk) {
  if (disk.radius < kSmallestPlanetDiskPixels) {
    PaintPoint(canvas.painter, disk.center, disk.color, PointRadius(body.magnitude));
  } else {
    PaintLitSurface(canvas.painter, disk);
  }
}

void PaintDisk(SkyCanvas& canvas, const SceneBody& body, const Disk& disk,
               const BodyDisplay& display) {
  if (body.body == SkyBody::Sun) {
    PaintSunDisk(canvas, disk, display);
  } else if (body.body == SkyBody::Moon) {
    PaintMoonDisk(canvas, disk, display);
  } else {
    PaintPlanetDisk(canvas, body, disk);
  }
  if (const BodyOverlays* overlays = canvas.frame.overlays.Of(body.body)) {
    PaintSurfaceOverlays(canvas.painter, body.body, disk, *overlays);
    PaintImageOverlays(canvas.painter, disk, *overlays);
  }
  if (display.grid) PaintGrid(canvas.painter, disk);
  PaintPlaceNames(canvas.painter, body.body, disk, display, canvas.labels);
  if (display.compass) PaintCompass(canvas.painter, disk, canvas.labels);
}

/// The Sun and the Moon are named whenever a name is on, the planets where there is room.
void AddLabel(SkyCanvas& canvas, const SceneBody& body, const Disk& disk,
              const BodyDisplay& display) {
  const double size =
      std::max(disk.radius, IsSunCircling(body.body) ? PointRadius(body.magnitude) : 0.0);
  const double gap = size + (display.compass ? 24.0 : 5.0);
  const LabelRank rank = IsSunCircling(body.body) ? LabelRank::Body : LabelRank::Always;
  canvas.labels.Add({disk.center, gap, LabelText(canvas.frame, body.body),
                     StyleOr(display.nameStyle, disk.color), rank});
}

void PaintBody(SkyCanvas& canvas, const SceneBody& body, const BodyDisplay& display) {
  const auto at = canvas.At(body.seen);
  if (!at) return;
  Disk disk = DiskOf(body, canvas.frame.scene.jdTt, body.seen, canvas.AxesAt(body.seen),
                     canvas.frame.scene.viewpoint.celestialPole);
  disk.center = *at;
  disk.radius = DiskRadius(canvas, body, display);
  if (!canvas.IsInPicture(*at, 5.0 * disk.radius + 60.0)) return;
  PaintDisk(canvas, body, disk, display);
  canvas.labels.ReserveFromFaint(disk.Bounds());
  AddLabel(canvas, body, disk, display);
}

void PaintWithSatellites(SkyCanvas& canvas, const SceneBody& body) {
  const BodyDisplay& display = canvas.frame.display.Of(body.body);
  const double radius = display.isVisible ? DiskRadius(canvas, body, display) : 0.0;
  PaintSkySatellites(canvas, body, radius, SatelliteSide::Behind);
  if (display.isVisible) PaintBody(canvas, body, display);
  PaintSkySatellites(canvas, body, radius, SatelliteSide::InFront);
}

}  // namespace

/// The nearest last, so that it covers the others.
void PaintSkyBodies(SkyCanvas& canvas) {
  std::vector<const SceneBody*> bodies;
  for (const SceneBody& body : canvas.frame.scene.bodies) bodies.push_back(&body);
  std::sort(bodies.begin(), bodies.end(), [](const SceneBody* a, const SceneBody* b) {
    return Length(a->seen) > Length(b->seen);
  });
  for (const SceneBody* body : bodies) {
    if (body->body != canvas.frame.scene.viewpoint.body) PaintWithSatellites(canvas, *body);
  }
}

}  // namespace vyn
