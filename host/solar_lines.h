// Paints the lines of the solar system's view: the grid of the ecliptic, orbits, motion, Lagrangian
// points.
#pragma once

namespace vyn {

struct SolarCanvas;

/// Circles and rays in the plane of the ecliptic around the centre of the view.
void PaintEclipticGrid(SolarCanvas& canvas);

void PaintSolarOrbits(SolarCanvas& canvas);
void PaintSolarMotion(SolarCanvas& canvas);
void PaintSolarLagrangianMarks(SolarCanvas& canvas);

}  // namespace vyn
