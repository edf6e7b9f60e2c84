// Paints the satellites and their orbits into the sky.
#pragma once

namespace vyn {

struct SkyCanvas;
struct SceneBody;
enum class SatelliteSide;

/// Of one body, whose disk has this radius in pixels.
void PaintSkySatellites(SkyCanvas& canvas, const SceneBody& body, double bodyRadius,
                        SatelliteSide side);

/// Of all bodies.
void PaintSkySatelliteOrbits(SkyCanvas& canvas);

}  // namespace vyn
