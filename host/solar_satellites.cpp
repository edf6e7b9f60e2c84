#include "host/solar_satellites.h"

#include "engine/sky/satellites.h"
#include "host/line_builder.h"
#include "host/satellite_painter.h"
#include "host/solar_canvas.h"

namespace vyn {
namespace {

constexpr double kMarginPixels = 30.0;

void PaintOrbit(SolarCanvas& canvas, const SatelliteDisplay& display) {
  const Scene& scene = canvas.frame.scene;
  const Vector3& center = scene.Of(BodyOf(display.primary)).heliocentric;
  const double pixelsPerAu = canvas.camera.PixelsPerAu(center);
  if (!IsApartFromBody(display.Facts(), pixelsPerAu)) return;
  std::vector<Vector3> points = SatelliteOrbitPolyline(
      display.primary, display.number, scene.jdTt, OrbitPointCount(display.Facts(), pixelsPerAu));
  for (Vector3& point : points) point = point + center;
  StrokeSatelliteOrbit(canvas.painter, SpaceLine(canvas.camera, points), canvas.frame,
                       display.Facts());
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
  const bool isMagnified = canvas.frame.display.Of(body.body).multiplier > 1.0;
  PaintSatellites(
      {canvas.painter, canvas.frame, canvas.labels, body, sight, bodyRadius, isMagnified}, side);
}

void PaintSolarSatelliteOrbits(SolarCanvas& canvas) {
  for (const SceneSatellite& satellite : canvas.frame.scene.satellites) {
    if (satellite.display.orbit) PaintOrbit(canvas, satellite.display);
  }
}

}  // namespace vyn
