#include "host/solar_small_bodies.h"

#include "engine/sky/sky_snapshot.h"
#include "host/line_builder.h"
#include "host/marks.h"
#include "host/orbit_aids.h"
#include "host/point_batches.h"
#include "host/small_body_style.h"
#include "host/solar_canvas.h"
#include "host/tail_painter.h"

namespace vyn {
namespace {

void PaintOrbit(SolarCanvas& canvas, const OrbitElements& orbit, const QPen& pen) {
  canvas.Stroke(SpaceLine(canvas.camera, OrbitPolyline(orbit, kOrbitPoints, kFarthestOrbitAu)),
                pen);
}

void PaintPerpendiculars(SolarCanvas& canvas, const SceneSmallBody& body, const QColor& color) {
  QPainterPath feet;
  for (const Segment& segment : OrbitPerpendiculars(body.orbit)) {
    feet.addPath(SpaceLine(canvas.camera, segment));
  }
  canvas.Stroke(feet, QPen(WithAlpha(color, 80), 1.0));
  canvas.Stroke(SpaceLine(canvas.camera, PerpendicularOf(body.heliocentric)),
                QPen(WithAlpha(color, 150), 2.0));
}

void PaintAids(SolarCanvas& canvas, const SceneSmallBody& body, const SmallBodyDisplay& display,
               const QColor& color) {
  if (body.aids.orbit) PaintOrbit(canvas, body.orbit, QPen(WithAlpha(color, 150), 1.0));
  if (body.aids.perpendicular) PaintPerpendiculars(canvas, body, color);
  if (body.aids.vector) {
    const Segment arrow = MotionInSpace(body, display, canvas.frame.scene.jdTt);
    canvas.Stroke(WithArrowHead(SpaceLine(canvas.camera, arrow)), QPen(color, 1.4));
  }
  const auto at = canvas.camera.ToPicture(body.heliocentric);
  if (at && canvas.IsInPicture(*at, 4.0)) AddLabel(canvas.frame, body, display, *at, canvas.labels);
}

void PaintComets(SolarCanvas& canvas) {
  CometPoints points;
  const Scene& scene = canvas.frame.scene;
  const auto toPicture = [&](const Vector3& place) { return canvas.camera.ToPicture(place); };
  for (const SceneSmallBody& comet : scene.comets) {
    PaintTails(canvas.painter, comet, scene.jdTt, toPicture);
    PaintAids(canvas, comet, canvas.frame.display.comets, CometPoints::Color());
    const auto at = canvas.camera.ToPicture(comet.heliocentric);
    if (at && canvas.IsInPicture(*at, 4.0)) points.Add(*at, comet.magnitude);
  }
  points.Paint(canvas.painter);
}

void PaintMinorPlanets(SolarCanvas& canvas) {
  const MinorPlanetPoints& minorPlanets = canvas.frame.scene.minorPlanetPoints;
  PaintMinorPlanetPoints(canvas.painter, canvas.frame, [&](int object) {
    return canvas.camera.ToPicture(minorPlanets.places->Heliocentric(object));
  });
  for (const SceneSmallBody& body : canvas.frame.scene.minorPlanets) {
    PaintAids(canvas, body, canvas.frame.display.minorPlanets, MinorPlanetColor());
  }
}

void PaintTracks(SolarCanvas& canvas) {
  const DisplayState& display = canvas.frame.display;
  for (const SceneTrack& trail : canvas.frame.scene.dustTrails) {
    const QColor color = DustTrailColor(display);
    PaintOrbit(canvas, trail.orbit, QPen(WithAlpha(color, 70), 7.0));
    if (trail.hasOrbit) PaintOrbit(canvas, trail.orbit, QPen(color, 1.0));
  }
  for (const SceneTrack& meteorite : canvas.frame.scene.meteorites) {
    const LabelStyle style = StyleOr(display.meteoriteStyle, kMeteoriteColor);
    if (meteorite.hasOrbit) {
      PaintOrbit(canvas, meteorite.orbit, QPen(WithAlpha(style.color, 170), 1.1));
    }
    const auto at = canvas.camera.ToPicture(meteorite.heliocentric);
    if (at) PaintMeteorite(canvas.painter, canvas.labels, meteorite, style, *at);
  }
}

}  // namespace

void PaintSolarSmallBodies(SolarCanvas& canvas) {
  PaintTracks(canvas);
  PaintMinorPlanets(canvas);
  PaintComets(canvas);
}

}  // namespace vyn
