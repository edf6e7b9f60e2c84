// Paints what lies behind the bodies of the sky view, and the ground before them.
#pragma once

namespace vyn {

struct SkyCanvas;

/// The colour of the sky by day and night, zodiacal light and counterglow.
void PaintSkyBackground(SkyCanvas& canvas);

/// The grid of the view's coordinates and the ecliptic.
void PaintSkyGrid(SkyCanvas& canvas);

/// In horizontal coordinates the ground, through which what is below the horizon shimmers, and the
/// points of the compass.
void PaintGround(SkyCanvas& canvas);

}  // namespace vyn
