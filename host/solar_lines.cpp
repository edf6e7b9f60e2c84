#include "host/solar_lines.h"

#include <cmath>
#include <numbers>

#include "engine/sky/kepler.h"
#include "engine/sky/lagrangian.h"
#include "host/line_builder.h"
#include "host/marks.h"
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

Vector3 CentralPlace(const Scene& scene, Body body) {
  return body == Body::Moon ? scene.Of(Body::Earth).heliocentric : Vector3{};
}

void PaintOrbit(SolarCanvas& canvas, Body body) {
  const Scene& scene = canvas.frame.scene;
  const Vector3 center = CentralPlace(scene, body);
  const Vector3 place = scene.Of(body).heliocentric - center;
  std::vector<Vector3> points = OrbitThrough(OrbitOf(body, scene.jdTt), place);
  for (Vector3& point : points) point = point + center;
  QColor color = QColor::fromRgb(RowOf(body).color);
  color.setAlpha(150);
  canvas.Stroke(SpaceLine(canvas.camera, points), QPen(color, 1.1));
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
    const bool isOn = canvas.frame.display.Of(row.body).orbit;
    if (isOn && row.body != Body::Sun) PaintOrbit(canvas, row.body);
  }
}

void PaintSolarLagrangianMarks(SolarCanvas& canvas) {
  const Scene& scene = canvas.frame.scene;
  for (const BodyRow& row : kBodies) {
    if (!canvas.frame.display.Of(row.body).lagrangianMarks || row.body == Body::Sun) continue;
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
