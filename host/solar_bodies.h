// Paints the bodies of the solar system's view.
#pragma once

namespace vyn {

struct SolarCanvas;

void PaintSolarBodies(SolarCanvas& canvas);

}  // namespace vyn
