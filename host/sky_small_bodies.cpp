#include "host/sky_small_bodies.h"

#include "engine/sky/sky_snapshot.h"
#include "host/line_builder.h"
#include "host/marks.h"
#include "host/orbit_aids.h"
#include "host/point_batches.h"
#include "host/sky_canvas.h"
#include "host/small_body_style.h"
#include "host/tail_painter.h"

namespace vyn {
namespace {

/// Orbits and tails as they would be seen from where the observer stands now.
std::optional<QPointF> PlaceAt(const SkyCanvas& canvas, const Vector3& place) {
  return canvas.At(place - canvas.frame.scene.viewpoint.position);
}

void PaintOrbit(SkyCanvas& canvas, const OrbitElements& orbit, const QPen& pen) {
  LineBuilder line(canvas.frame.size);
  for (const Vector3& place : OrbitPolyline(orbit, kOrbitPoints, kFarthestOrbitAu)) {
    line.To(PlaceAt(canvas, place));
  }
  canvas.Stroke(line.Path(), pen);
}

void PaintMotion(SkyCanvas& canvas, const SceneSmallBody& body, const SmallBodyDisplay& display,
                 const QColor& color) {
  LineBuilder line(canvas.frame.size);
  for (const Vector3& direction : MotionInTheSky(body, display, canvas.frame.scene)) {
    line.To(canvas.At(direction));
  }
  canvas.Stroke(WithArrowHead(line.Path()), QPen(color, 1.4));
}

void PaintAids(SkyCanvas& canvas, const SceneSmallBody& body, const SmallBodyDisplay& display,
               const QColor& color) {
  if (body.aids.orbitInTheSky) PaintOrbit(canvas, body.orbit, QPen(WithAlpha(color, 150), 1.0));
  if (body.aids.vector) PaintMotion(canvas, body, display, color);
  const auto at = canvas.At(body.seen);
  if (at && canvas.IsInPicture(*at, 4.0)) AddLabel(canvas.frame, body, display, *at, canvas.labels);
}

void PaintComets(SkyCanvas& canvas) {
  CometPoints points;
  const Scene& scene = canvas.frame.scene;
  for (const SceneSmallBody& comet : scene.comets) {
    // A tail begins where light shows the comet.
    const Vector3 shift = comet.seen + scene.viewpoint.position - comet.heliocentric;
    PaintTails(canvas.painter, comet, scene.jdTt,
               [&](const Vector3& place) { return PlaceAt(canvas, place + shift); });
    PaintAids(canvas, comet, canvas.frame.display.comets, CometPoints::Color());
    const auto at = canvas.At(comet.seen);
    if (at && canvas.IsInPicture(*at, 4.0)) points.Add(*at, comet.magnitude);
  }
  points.Paint(canvas.painter);
}

void PaintMinorPlanets(SkyCanvas& canvas) {
  const MinorPlanetPoints& minorPlanets = canvas.frame.scene.minorPlanetPoints;
  PaintMinorPlanetPoints(canvas.painter, canvas.frame, [&](int object) {
    return canvas.At(minorPlanets.places->FromSite(object));
  });
  for (const SceneSmallBody& body : canvas.frame.scene.minorPlanets) {
    PaintAids(canvas, body, canvas.frame.display.minorPlanets, MinorPlanetColor());
  }
}

void PaintTracks(SkyCanvas& canvas) {
  const DisplayState& display = canvas.frame.display;
  for (const SceneTrack& trail : canvas.frame.scene.dustTrails) {
    PaintOrbit(canvas, trail.orbit, QPen(WithAlpha(DustTrailColor(display), 70), 7.0));
  }
  for (const SceneTrack& meteorite : canvas.frame.scene.meteorites) {
    const auto at = PlaceAt(canvas, meteorite.heliocentric);
    if (!at) continue;
    PaintMeteorite(canvas.painter, canvas.labels, meteorite,
                   StyleOr(display.meteoriteStyle, kMeteoriteColor), *at);
  }
}

}  // namespace

void PaintSkySmallBodies(SkyCanvas& canvas) {
  PaintTracks(canvas);
  PaintMinorPlanets(canvas);
  PaintComets(canvas);
}

}  // namespace vyn
