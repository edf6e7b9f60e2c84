// Paints comets, minor planets, meteorites and dust trails into the sky view.
#pragma once

namespace vyn {

struct SkyCanvas;

void PaintSkySmallBodies(SkyCanvas& canvas);

}  // namespace vyn
