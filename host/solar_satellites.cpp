#include "host/solar_satellites.h"

#include "engine/sky/satellites.h"
#include "host/line_builder.h"
#include "host/satellite_painter.h"
#include "host/solar_canvas.h"

namespace vyn {
namespace {

constexpr double kMarginPixels = 30.0;

void PaintOrbit(SolarCanvas& canvas, const SatelliteDisplay& display, const QPen& pen) {
  const Scene& scene = canvas.frame.scene;
  const Vector3& center = scene.Of(BodyOf(display.primary)).heliocentric;
  const double size =
      display.Facts().mean.semiMajorAxisKm / kKmPerAu * canvas.camera.PixelsPerAu(center);
  if (!IsOrbitVisible(size)) return;
  std::vector<Vector3> points =
      SatelliteOrbitPolyline(display.primary, display.number, scene.jdTt, OrbitPointCount(size));
  for (Vector3& point : points) point = point + center;
  canvas.Stroke(SpaceLine(canvas.camera, points), pen);
}

}  // namespace

void PaintSolarSatellites(SolarCanvas& canvas, const SceneBody& body, double bodyRadius,
                          SatelliteSide side) {
  const auto sight = [&](const Vector3& fromBody) -> std::optional<Sighting> {
    const Vector3 place = body.heliocentric + fromBody;
    const auto at = canvas.camera.ToPicture(place);
    const bool isBody = fromBody == Vector3{};
    if (!at || (!isBody && !canvas.IsInPicture(*at, kMarginPixels))) return std::nullopt;
    return Sighting{*at, canvas.camera.PixelsPerAu(place), place - canvas.camera.Eye(),
                    canvas.camera.AxesAt(place)};
  };
  PaintSatellites({canvas.painter, canvas.frame, canvas.labels, body, sight, bodyRadius}, side);
}

void PaintSolarSatelliteOrbits(SolarCanvas& canvas) {
  const QPen pen = SatelliteOrbitPen(canvas.frame);
  for (const SceneSatellite& satellite : canvas.frame.scene.satellites) {
    if (satellite.display.orbit) PaintOrbit(canvas, satellite.display, pen);
  }
}

}  // namespace vyn
