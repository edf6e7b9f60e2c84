// Paints comets, minor planets, meteorites and dust trails into the solar system's view.
#pragma once

namespace vyn {

struct SolarCanvas;

void PaintSolarSmallBodies(SolarCanvas& canvas);

}  // namespace vyn
