#include "host/sky_satellites.h"

#include "engine/sky/satellites.h"
#include "host/line_builder.h"
#include "host/satellite_painter.h"
#include "host/sky_canvas.h"

namespace vyn {
namespace {

constexpr double kMarginPixels = 30.0;

double PixelsPerAu(const SkyCanvas& canvas, const Vector3& seen) {
  return canvas.projection.PixelsPerRadian(canvas.ToView(seen)) / Length(seen);
}

void PaintOrbit(SkyCanvas& canvas, const SatelliteDisplay& display) {
  const Frame& frame = canvas.frame;
  const SceneBody& body = frame.scene.Of(BodyOf(display.primary));
  if (body.body == frame.scene.viewpoint.body) return;
  const double pixelsPerAu = PixelsPerAu(canvas, body.seen);
  if (!IsApartFromBody(display.Facts(), pixelsPerAu)) return;
  LineBuilder line(frame.size);
  for (const Vector3& place : SatelliteOrbitPolyline(
           display.primary, display.number, ShownJdTt(frame.scene, body.body, frame.view.kind),
           OrbitPointCount(display.Facts(), pixelsPerAu))) {
    line.To(canvas.At(body.seen + place));
  }
  StrokeSatelliteOrbit(canvas.painter, line.Path(), canvas.frame, display.Facts());
}

}  // namespace

void PaintSkySatellites(SkyCanvas& canvas, const SceneBody& body, double bodyRadius,
                        SatelliteSide side) {
  const auto sight = [&](const Vector3& fromBody) -> std::optional<Sighting> {
    const Vector3 seen = body.seen + fromBody;
    const auto at = canvas.At(seen);
    // The body itself may stand outside the picture and its satellites inside.
    const bool isBody = fromBody == Vector3{};
    if (!at || (!isBody && !canvas.IsInPicture(*at, kMarginPixels))) return std::nullopt;
    return Sighting{*at, PixelsPerAu(canvas, seen), seen, canvas.AxesAt(seen)};
  };
  const bool isMagnified = canvas.frame.display.Of(body.body).multiplier > 1.0;
  PaintSatellites(
      {canvas.painter, canvas.frame, canvas.labels, body, sight, bodyRadius, isMagnified}, side);
}

void PaintSkySatelliteOrbits(SkyCanvas& canvas) {
  for (const SceneSatellite& satellite : canvas.frame.scene.satellites) {
    if (satellite.display.orbit) PaintOrbit(canvas, satellite.display);
  }
}

}  // namespace vyn
