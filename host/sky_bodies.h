// Paints the Sun, the Moon and the planets with their satellites of the sky view.
#pragma once

namespace vyn {

struct SkyCanvas;

void PaintSkyBodies(SkyCanvas& canvas);

}  // namespace vyn
