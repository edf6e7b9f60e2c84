#include "host/solar_lines.h"

#include <cmath>
#include <numbers>

#include "engine/sky/kepler.h"
#include "engine/sky/lagrangian.h"
#include "host/line_builder.h"
#include "host/marks.h"
#include "host/orbit_aids.h"
#include "host/solar_canvas.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

const QColor kGridColor(86, 112, 164, 70);
const QColor kGridTextColor(122, 144, 190);

/// 1, 2 or 5 times a power of ten of the unit in which distances are told, about a sixth of what
/// the picture shows.
double GridStepAu(double distanceAu) {
  const double unit = DistanceUnitAu(distanceAu);
  const double wanted = distanceAu / 9.0 / unit;
  const double power = std::pow(10.0, std::floor(std::log10(wanted)));
  const double part = wanted / power;
  return unit * power * (part < 2.0 ? 1.0 : part < 5.0 ? 2.0 : 5.0);
}

std::vector<Vector3> EclipticCircle(const Vector3& center, double radiusAu) {
  return CirclePoints(center, {radiusAu, 0.0, 0.0}, {0.0, radiusAu, 0.0}, 180);
}

/// An orbit of `center`'s companion. Its points crowd around where the body is, so that the orbit
/// passes through the body however near the camera comes.
std::vector<Vector3> OrbitThrough(const OrbitElements& orbit, const Vector3& place) {
  constexpr int kHalf = 150;
  const OrbitPlane plane = PlaneOf(orbit);
  const double now =
      std::atan2(Dot(place, plane.aheadOfPerihelion), Dot(place, plane.towardsPerihelion));
  const double parameter = orbit.perihelionDistanceAu * (1.0 + orbit.eccentricity);
  std::vector<Vector3> points;
  points.reserve(2 * kHalf + 1);
  for (int i = -kHalf; i <= kHalf; ++i) {
    const double part = static_cast<double>(i) / kHalf;
    const double anomaly = now + std::numbers::pi * part * (0.02 + 0.98 * part * part);
    const double radius = parameter / (1.0 + orbit.eccentricity * std::cos(anomaly));
    points.push_back(radius * (std::cos(anomaly) * plane.towardsPerihelion +
                               std::sin(anomaly) * plane.aheadOfPerihelion));
  }
  return points;
}

Vector3 CentralPlace(const Scene& scene, SkyBody body) {
  return body == SkyBody::Moon ? scene.Of(SkyBody::Earth).heliocentric : Vector3{};
}

void PaintOrbit(SolarCanvas& canvas, SkyBody body) {
  const Scene& scene = canvas.frame.scene;
  const Vector3 center = CentralPlace(scene, body);
  const Vector3 place = scene.Of(body).heliocentric - center;
  std::vector<Vector3> points = OrbitThrough(OrbitOf(body, scene.jdTt), place);
  for (Vector3& point : points) point = point + center;
  canvas.Stroke(SpaceLine(canvas.camera, points), QPen(OrbitColor(body), kOrbitLinePixels));
}

void PaintPerpendiculars(SolarCanvas& canvas, SkyBody body) {
  QPainterPath feet;
  for (const Segment& segment : OrbitPerpendiculars(body, canvas.frame.scene.jdTt)) {
    feet.addPath(SpaceLine(canvas.camera, segment));
  }
  canvas.Stroke(feet, QPen(PerpendicularColor(body), 1.0));
  canvas.Stroke(SpaceLine(canvas.camera, PerpendicularOf(canvas.frame.scene.Of(body).heliocentric)),
                QPen(OrbitColor(body), 2.0));
}

}  // namespace

void PaintEclipticGrid(SolarCanvas& canvas) {
  constexpr int kCircles = 6;
  constexpr int kRays = 12;
  const Vector3& center = canvas.camera.Target();
  const double step = GridStepAu(canvas.camera.DistanceAu());
  const LabelStyle style{kGridTextColor, LabelFont(8)};
  for (int i = 1; i <= kCircles; ++i) {
    canvas.Stroke(SpaceLine(canvas.camera, EclipticCircle(center, i * step)),
                  QPen(kGridColor, 1.0));
    const auto at = canvas.camera.ToPicture(center + Vector3{i * step, 0.0, 0.0});
    if (at) canvas.labels.Add({*at, 3.0, DistanceText(i * step), style, LabelRank::Faint});
  }
  for (int i = 0; i < kRays; ++i) {
    const Vector3 direction = AdToDc(360.0 * i / kRays, 0.0);
    const std::array<Vector3, 2> ray{center, center + kCircles * step * direction};
    canvas.Stroke(SpaceLine(canvas.camera, ray), QPen(kGridColor, 1.0));
    const auto at = canvas.camera.ToPicture(center + (kCircles + 0.35) * step * direction);
    if (at)
      canvas.labels.Add({*at, 0.0, u"%1°"_s.arg(360 * i / kRays), style, LabelRank::Faint, true});
  }
}

void PaintSolarOrbits(SolarCanvas& canvas) {
  for (const BodyRow& row : kBodies) {
    const BodyDisplay& display = canvas.frame.display.Of(row.body);
    if (!display.orbit || row.body == SkyBody::Sun) continue;
    PaintOrbit(canvas, row.body);
    if (display.perpendicular) PaintPerpendiculars(canvas, row.body);
  }
}

void PaintSolarMotion(SolarCanvas& canvas) {
  for (const SkyBody body : kSunCircling) {
    const BodyDisplay& display = canvas.frame.display.Of(body);
    const Scene& scene = canvas.frame.scene;
    if (!display.hasVector) continue;
    const Segment arrow = MotionInSpace(scene.Of(body), display, scene.jdTt);
    canvas.Stroke(WithArrowHead(SpaceLine(canvas.camera, arrow)),
                  QPen(QColor::fromRgb(RowOf(body).color), 1.6));
  }
}

void PaintSolarLagrangianMarks(SolarCanvas& canvas) {
  const Scene& scene = canvas.frame.scene;
  for (const BodyRow& row : kBodies) {
    if (!canvas.frame.display.Of(row.body).lagrangianMarks || row.body == SkyBody::Sun) continue;
    const Vector3 center = CentralPlace(scene, row.body);
    // Where the whole figure is but a spot, its marks would hide what they mark.
    const double size = Length(scene.Of(row.body).heliocentric - center);
    if (size * canvas.camera.PixelsPerAu(center) < 30.0) continue;
    LagrangianMarks marks(canvas.painter, canvas.labels);
    for (const Vector3& point : LagrangianPointsOf(row.body, scene.jdTt)) {
      marks.Next(canvas.camera.ToPicture(point + center));
    }
  }
}

}  // namespace vyn
