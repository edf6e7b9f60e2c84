#include "host/sky_marks.h"

#include <cmath>

#include "engine/sky/eclipses.h"
#include "engine/sky/kepler.h"
#include "engine/sky/lagrangian.h"
#include "host/line_builder.h"
#include "host/marks.h"
#include "host/orbit_aids.h"
#include "host/sky_canvas.h"
#include "host/sky_satellites.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

const QColor kMoonOrbitColor(200, 200, 190, 170);

/// The body about which another moves.
Vector3 CentralPlace(const Scene& scene, SkyBody body) {
  return body == SkyBody::Moon ? scene.Of(SkyBody::Earth).heliocentric : Vector3{};
}

/// An orbit as it would be seen from where the observer stands now.
void PaintOrbit(SkyCanvas& canvas, SkyBody body, const QColor& color) {
  constexpr int kPoints = 361;
  constexpr double kFarthestAu = 100.0;
  const Scene& scene = canvas.frame.scene;
  const Vector3 origin = CentralPlace(scene, body) - scene.viewpoint.position;
  LineBuilder line(canvas.frame.size);
  for (const Vector3& place : OrbitPolyline(OrbitOf(body, scene.jdTt), kPoints, kFarthestAu)) {
    line.To(canvas.At(place + origin));
  }
  canvas.Stroke(line.Path(), QPen(color, kOrbitLinePixels));
}

/// What is straight in space is an arc in the picture.
void AddArc(SkyCanvas& canvas, const Segment& segment, LineBuilder* line) {
  constexpr int kPieces = 6;
  const Vector3& origin = canvas.frame.scene.viewpoint.position;
  line->Break();
  for (int i = 0; i <= kPieces; ++i) {
    const double part = static_cast<double>(i) / kPieces;
    line->To(canvas.At(segment[0] + (segment[1] - segment[0]) * part - origin));
  }
}

void PaintPerpendiculars(SkyCanvas& canvas, SkyBody body) {
  LineBuilder feet(canvas.frame.size);
  for (const Segment& segment : OrbitPerpendiculars(body, canvas.frame.scene.jdTt)) {
    AddArc(canvas, segment, &feet);
  }
  canvas.Stroke(feet.Path(), QPen(PerpendicularColor(body), 1.0));
  LineBuilder own(canvas.frame.size);
  AddArc(canvas, PerpendicularOf(canvas.frame.scene.Of(body).heliocentric), &own);
  canvas.Stroke(own.Path(), QPen(OrbitColor(body), 2.0));
}

void PaintMarks(SkyCanvas& canvas, SkyBody body) {
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
  const Vector3 origin = scene.Of(SkyBody::Earth).heliocentric - scene.viewpoint.position;
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
  if (display.Of(SkyBody::Moon).orbit) PaintOrbit(canvas, SkyBody::Moon, kMoonOrbitColor);
  for (const SkyBody body : kSunCircling) {
    if (!display.Of(body).orbitInTheSky) continue;
    PaintOrbit(canvas, body, OrbitColor(body));
    if (display.Of(body).perpendicular) PaintPerpendiculars(canvas, body);
  }
  PaintSkySatelliteOrbits(canvas);
}

/// The observer's own body is not seen.
void PaintSkyMotion(SkyCanvas& canvas) {
  for (const SkyBody body : kSunCircling) {
    const BodyDisplay& display = canvas.frame.display.Of(body);
    const Scene& scene = canvas.frame.scene;
    if (!display.hasVector || body == scene.viewpoint.body) continue;
    LineBuilder line(canvas.frame.size);
    for (const Vector3& direction : MotionInTheSky(scene.Of(body), display, scene)) {
      line.To(canvas.At(direction));
    }
    canvas.Stroke(WithArrowHead(line.Path()), QPen(QColor::fromRgb(RowOf(body).color), 1.6));
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
