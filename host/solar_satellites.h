// Paints the satellites and their orbits into the solar system's view.
#pragma once

namespace vyn {

struct SolarCanvas;
struct SceneBody;
enum class SatelliteSide;

/// Of one body, whose disk has this radius in pixels.
void PaintSolarSatellites(SolarCanvas& canvas, const SceneBody& body, double bodyRadius,
                          SatelliteSide side);

/// Of all bodies.
void PaintSolarSatelliteOrbits(SolarCanvas& canvas);

}  // namespace vyn
