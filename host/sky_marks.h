// Paints what is computed rather than seen in the sky view: orbits, motion, shadows,
// Lagrangian points.
#pragma once

namespace vyn {

struct SkyCanvas;

void PaintSkyOrbits(SkyCanvas& canvas);
void PaintSkyMotion(SkyCanvas& canvas);
void PaintEarthShadow(SkyCanvas& canvas);
void PaintSkyLagrangianMarks(SkyCanvas& canvas);

}  // namespace vyn
