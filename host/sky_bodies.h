// Paints the Sun, the Moon, the planets with their satellites, and the comets of the sky view.
#pragma once

namespace vyn {

struct SkyCanvas;

void PaintSkyBodies(SkyCanvas& canvas);
void PaintSkyComets(SkyCanvas& canvas);

}  // namespace vyn
