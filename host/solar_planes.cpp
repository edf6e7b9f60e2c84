#include "host/solar_planes.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "host/line_builder.h"
#include "host/point_batches.h"
#include "host/small_body_style.h"
#include "host/solar_canvas.h"
#include "host/vector_registers.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

const QColor kEclipticColor(110, 160, 235);
constexpr int kEclipticAlpha = 20;
constexpr int kNorthAlpha = 52;
constexpr int kSouthAlpha = 24;
constexpr double kFarthestAu = 200.0;

using Area = std::vector<Vector3>;

/// The part of a convex area where `height`, which is linear, is not below 0.
/// Source: Sutherland and Hodgman 1974.
Area Above(const Area& area, const std::function<double(const Vector3&)>& height) {
  Area above;
  for (std::size_t i = 0; i < area.size(); ++i) {
    const Vector3& from = area[i];
    const Vector3& to = area[(i + 1) % area.size()];
    const double a = height(from);
    const double b = height(to);
    if (a >= 0.0) above.push_back(from);
    if ((a < 0.0) != (b < 0.0)) above.push_back(from + (to - from) * (a / (a - b)));
  }
  return above;
}

void Fill(SolarCanvas& canvas, const Area& area, const QColor& color) {
  const double nearest = 0.01 * canvas.camera.DistanceAu();
  QPolygonF polygon;
  for (const Vector3& place :
       Above(area, [&](const Vector3& place) { return canvas.camera.DepthAu(place) - nearest; })) {
    if (const auto at = canvas.camera.ToPicture(place)) polygon << *at;
  }
  canvas.painter.setPen(Qt::NoPen);
  canvas.painter.setBrush(color);
  canvas.painter.drawPolygon(polygon);
  ClearVectorRegisters();
}

/// The place on an orbit at this angle from perihelion, seen from the Sun.
Vector3 OrbitPlace(const OrbitElements& orbit, double anomalyDeg) {
  const OrbitPlane plane = PlaneOf(orbit);
  const double anomaly = anomalyDeg * kRadPerDeg;
  const double parameter = orbit.perihelionDistanceAu * (1.0 + orbit.eccentricity);
  const double radius = parameter / (1.0 + orbit.eccentricity * std::cos(anomaly));
  return radius * (std::cos(anomaly) * plane.towardsPerihelion +
                   std::sin(anomaly) * plane.aheadOfPerihelion);
}

/// The part north of the ecliptic is brighter; they meet in the line of nodes.
void PaintOrbitalPlane(SolarCanvas& canvas, const OrbitElements& orbit, const QColor& color) {
  constexpr int kPoints = 181;
  const Area area = OrbitPolyline(orbit, kPoints, kFarthestAu);
  if (area.empty()) return;
  Fill(canvas, Above(area, [](const Vector3& place) { return place.z; }),
       WithAlpha(color, kNorthAlpha));
  Fill(canvas, Above(area, [](const Vector3& place) { return -place.z; }),
       WithAlpha(color, kSouthAlpha));
  const double ascendingDeg = -orbit.argumentOfPerihelionDeg;
  // An open orbit may meet the ecliptic only once.
  if (orbit.eccentricity >= 1.0) return;
  const Vector3 nodes[] = {OrbitPlace(orbit, ascendingDeg),
                           OrbitPlace(orbit, ascendingDeg + 180.0)};
  canvas.Stroke(SpaceLine(canvas.camera, nodes), QPen(WithAlpha(color, 130), 1.0, Qt::DashLine));
}

/// As far as it is drawn.
double AphelionAu(const OrbitElements& orbit) {
  if (orbit.eccentricity >= 1.0) return kFarthestAu;
  return std::min(kFarthestAu, orbit.perihelionDistanceAu * (1.0 + orbit.eccentricity) /
                                   (1.0 - orbit.eccentricity));
}

/// The planes of all bodies are one, so it is filled once, as far as the farthest of them goes.
void PaintEclipticPlane(SolarCanvas& canvas) {
  double farthest = 0.0;
  for (const SkyBody body : kSunCircling) {
    if (!canvas.frame.display.Of(body).eclipticPlane) continue;
    const double radius = AphelionAu(OrbitOf(body, canvas.frame.scene.jdTt));
    canvas.Stroke(
        SpaceLine(canvas.camera, CirclePoints({}, {radius, 0.0, 0.0}, {0.0, radius, 0.0}, 180)),
        QPen(WithAlpha(kEclipticColor, 120), 1.0));
    farthest = std::max(farthest, radius);
  }
  for (const auto* bodies : {&canvas.frame.scene.comets, &canvas.frame.scene.minorPlanets}) {
    for (const SceneSmallBody& body : *bodies) {
      if (body.aids.eclipticPlane) farthest = std::max(farthest, AphelionAu(body.orbit));
    }
  }
  if (farthest == 0.0) return;
  Fill(canvas, CirclePoints({}, {farthest, 0.0, 0.0}, {0.0, farthest, 0.0}, 180),
       WithAlpha(kEclipticColor, kEclipticAlpha));
}

}  // namespace

void PaintOrbitalPlanes(SolarCanvas& canvas) {
  PaintEclipticPlane(canvas);
  for (const SkyBody body : kSunCircling) {
    if (!canvas.frame.display.Of(body).orbitalPlane) continue;
    PaintOrbitalPlane(canvas, OrbitOf(body, canvas.frame.scene.jdTt),
                      QColor::fromRgb(RowOf(body).color));
  }
  for (const auto* bodies : {&canvas.frame.scene.comets, &canvas.frame.scene.minorPlanets}) {
    for (const SceneSmallBody& body : *bodies) {
      if (body.aids.orbitalPlane) PaintOrbitalPlane(canvas, body.orbit, CometPoints::Color());
    }
  }
}

}  // namespace vyn
