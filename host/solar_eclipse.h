// Paints the Moon's shadow and the central band of a solar eclipse on the Earth's globe.
#pragma once

namespace vyn {

struct Disk;
struct SolarCanvas;

/// `earth` is the Earth's disk in the picture. The band is that of the new moon nearest to the
/// moment shown.
void PaintSolarEclipse(SolarCanvas& canvas, const Disk& earth);

}  // namespace vyn
