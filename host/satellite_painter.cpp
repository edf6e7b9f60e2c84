#include "host/satellite_painter.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "host/disk_painter.h"
#include "host/vector_registers.h"

namespace vyn {
namespace {

const QColor kSatelliteColor(214, 210, 202);
constexpr double kSmallestDiskPixels = 2.5;
constexpr double kSmallestOrbitPixels = 6.0;
constexpr double kSmallestOrbitOfSmallPixels = 40.0;
constexpr double kLargeKm = 150.0;

bool IsLarge(const Satellite& satellite) { return satellite.radiusKm > kLargeKm; }

double OrbitPixels(const Satellite& satellite, double pixelsPerAu) {
  return satellite.mean.semiMajorAxisKm / kKmPerAu * pixelsPerAu;
}

double PointRadius(const SceneSatellite& satellite) {
  constexpr double kFaintest = 1.0;
  const double radius = 1.2 + 0.25 * (9.0 - satellite.magnitude);
  return std::isnan(radius) ? kFaintest : std::clamp(radius, kFaintest, 2.4);
}

void PaintSphere(const SatelliteStage& stage, const SceneSatellite& satellite,
                 const Sighting& sighting, double radius) {
  Disk disk = LitDisk(stage.body.heliocentric + satellite.fromBody, sighting.lineOfSight,
                      sighting.axes, kSatelliteColor);
  disk.center = sighting.at;
  disk.radius = radius;
  PaintLitSurface(stage.painter, disk);
}

void PaintSatellite(const SatelliteStage& stage, const SceneSatellite& satellite,
                    const Sighting& sighting) {
  const Satellite& facts = satellite.display.Facts();
  const double disk = facts.radiusKm / kKmPerAu * sighting.pixelsPerAu;
  const bool isDisk = disk > kSmallestDiskPixels;
  const double radius = isDisk ? disk : PointRadius(satellite);
  if (isDisk) {
    PaintSphere(stage, satellite, sighting, radius);
  } else {
    stage.painter.setPen(Qt::NoPen);
    stage.painter.setBrush(kSatelliteColor);
    stage.painter.drawEllipse(sighting.at, radius, radius);
  }
  ClearVectorRegisters();
  const LabelRank rank = IsLarge(facts) ? LabelRank::Place : LabelRank::Faint;
  stage.labels.Add({sighting.at, radius + 3.0, LabelText(satellite.display),
                    StyleOr(stage.frame.display.satelliteStyle, kSatelliteColor), rank});
}

bool IsHidden(const SatelliteStage& stage, const QPointF& body, const QPointF& at) {
  return std::hypot(at.x() - body.x(), at.y() - body.y()) < stage.bodyRadius;
}

}  // namespace

void PaintSatellites(const SatelliteStage& stage, SatelliteSide side) {
  const auto body = stage.sight({});
  if (!body) return;
  for (const SceneSatellite& satellite : stage.frame.scene.satellites) {
    const SatelliteDisplay& display = satellite.display;
    if (!display.isVisible || BodyOf(display.primary) != stage.body.body) continue;
    const bool isBehind = Dot(satellite.fromBody, body->lineOfSight) > 0.0;
    if (isBehind != (side == SatelliteSide::Behind)) continue;
    if (!IsApartFromBody(display.Facts(), body->pixelsPerAu)) continue;
    const auto sighting = stage.sight(satellite.fromBody);
    if (!sighting) continue;
    if ((isBehind || stage.isMagnified) && IsHidden(stage, body->at, sighting->at)) continue;
    PaintSatellite(stage, satellite, *sighting);
  }
}

bool IsApartFromBody(const Satellite& satellite, double pixelsPerAu) {
  return OrbitPixels(satellite, pixelsPerAu) >=
         (IsLarge(satellite) ? kSmallestOrbitPixels : kSmallestOrbitOfSmallPixels);
}

/// The small ones' lines are so many that they are not smoothed, which takes half the time.
void StrokeSatelliteOrbit(QPainter& painter, const QPainterPath& line, const Frame& frame,
                          const Satellite& satellite) {
  QColor color = StyleOr(frame.display.satelliteStyle, kSatelliteColor).color;
  color.setAlpha(IsLarge(satellite) ? 130 : 60);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, 1.0));
  painter.setRenderHint(QPainter::Antialiasing, IsLarge(satellite));
  painter.drawPath(line);
  painter.setRenderHint(QPainter::Antialiasing);
  ClearVectorRegisters();
}

int OrbitPointCount(const Satellite& satellite, double pixelsPerAu) {
  // With so many the line strays from the ellipse by a third of a pixel.
  constexpr double kPointsPerRoot = 4.0;
  constexpr double kFewest = 25.0;
  constexpr double kMost = 181.0;
  return static_cast<int>(
      std::clamp(kPointsPerRoot * std::sqrt(OrbitPixels(satellite, pixelsPerAu)), kFewest, kMost));
}

}  // namespace vyn
