#include "host/sky_marks.h"

#include <cmath>

#include "engine/sky/eclipses.h"
#include "engine/sky/kepler.h"
#include "engine/sky/lagrangian.h"
#include "host/line_builder.h"
#include "host/marks.h"
#include "host/sky_canvas.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

const QColor kMoonOrbitColor(200, 200, 190, 170);

/// The body about which another moves.
Vector3 CentralPlace(const Scene& scene, Body body) {
  return body == Body::Moon ? scene.Of(Body::Earth).heliocentric : Vector3{};
}

/// An orbit as it would be seen from where the observer stands now.
void PaintOrbit(SkyCanvas& canvas, Body body, const QColor& color) {
  constexpr int kPoints = 361;
  constexpr double kFarthestAu = 100.0;
  const Scene& scene = canvas.frame.scene;
  const Vector3 origin = CentralPlace(scene, body) - scene.viewpoint.position;
  LineBuilder line(canvas.frame.size);
  for (const Vector3& place : OrbitPolyline(OrbitOf(body, scene.jdTt), kPoints, kFarthestAu)) {
    line.To(canvas.At(place + origin));
  }
  canvas.Stroke(line.Path(), QPen(color, 1.1));
}

void PaintMarks(SkyCanvas& canvas, Body body) {
  const Scene& scene = canvas.frame.scene;
  const Vector3 origin = CentralPlace(scene, body) - scene.viewpoint.position;
  LagrangianMarks marks(canvas.painter, canvas.labels);
  for (const Vector3& point : LagrangianPointsOf(body, scene.jdTt)) {
    marks.Next(canvas.At(point + origin));
  }
}

struct ShadowEdge {
  bool isOn;
  double radiusDeg;  ///< seen from the Earth's centre
  QColor color;
  QString name;
};

/// Outside the edge.
void AddEdgeLabel(SkyCanvas& canvas, const Vector3& middle, const Vector3& onEdge,
                  const ShadowEdge& edge) {
  const auto from = canvas.At(middle);
  const auto to = canvas.At(onEdge);
  if (!from || !to) return;
  const QPointF outward = (*to - *from) / std::hypot(to->x() - from->x(), to->y() - from->y());
  canvas.labels.Add(
      {*to + 18.0 * outward, 0.0, edge.name, {edge.color, LabelFont(9)}, LabelRank::Place, true});
}

/// The shadow's edge where the Moon's distance is, so that it is seen from the site as the Moon is.
void PaintShadowEdge(SkyCanvas& canvas, const EarthShadow& shadow, const ShadowEdge& edge) {
  if (!edge.isOn) return;
  const Vector3 across = Normalized(Cross(shadow.axis, {0.0, 0.0, 1.0}));
  const double radius = edge.radiusDeg * kRadPerDeg;
  const Vector3 middle = shadow.moonDistanceAu * std::cos(radius) * shadow.axis;
  const double size = shadow.moonDistanceAu * std::sin(radius);
  const Scene& scene = canvas.frame.scene;
  const Vector3 origin = scene.Of(Body::Earth).heliocentric - scene.viewpoint.position;
  LineBuilder line(canvas.frame.size);
  for (const Vector3& place :
       CirclePoints(middle + origin, size * across, size * Cross(across, shadow.axis), 120)) {
    line.To(canvas.At(place));
  }
  canvas.Stroke(line.Path(), QPen(edge.color, 1.4));
  AddEdgeLabel(canvas, middle + origin, middle + origin - size * Cross(across, shadow.axis), edge);
}

}  // namespace

void PaintSkyOrbits(SkyCanvas& canvas) {
  const DisplayState& display = canvas.frame.display;
  if (display.Of(Body::Moon).orbit) PaintOrbit(canvas, Body::Moon, kMoonOrbitColor);
  for (const Body planet : kPlanets) {
    QColor color = QColor::fromRgb(RowOf(planet).color);
    color.setAlpha(150);
    if (display.Of(planet).orbitInTheSky) PaintOrbit(canvas, planet, color);
  }
}

void PaintEarthShadow(SkyCanvas& canvas) {
  const DisplayState& display = canvas.frame.display;
  if (!display.lunarEclipseUmbra && !display.lunarEclipsePenumbra) return;
  const EarthShadow shadow = EarthShadowAt(canvas.frame.scene.jdUt);
  PaintShadowEdge(
      canvas, shadow,
      {display.lunarEclipsePenumbra, shadow.penumbraRadiusDeg, QColor(214, 190, 140), u"半影"_s});
  PaintShadowEdge(
      canvas, shadow,
      {display.lunarEclipseUmbra, shadow.umbraRadiusDeg, QColor(255, 120, 90), u"本影"_s});
}

void PaintSkyLagrangianMarks(SkyCanvas& canvas) {
  for (const BodyRow& row : kBodies) {
    if (canvas.frame.display.Of(row.body).lagrangianMarks) PaintMarks(canvas, row.body);
  }
}

}  // namespace vyn
