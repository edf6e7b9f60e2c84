// Paints the bodies of the solar system's view and the comets.
#pragma once

namespace vyn {

struct SolarCanvas;

void PaintSolarBodies(SolarCanvas& canvas);
void PaintSolarComets(SolarCanvas& canvas);

}  // namespace vyn
