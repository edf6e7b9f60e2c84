// Paints the planes of orbits, and of the ecliptic, into the solar system's view.
#pragma once

namespace vyn {

struct SolarCanvas;

void PaintOrbitalPlanes(SolarCanvas& canvas);

}  // namespace vyn
