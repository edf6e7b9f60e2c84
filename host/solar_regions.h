// Paints the regions of the solar system's view: belts, habitable zone, Oort cloud, cosmic scale.
#pragma once

namespace vyn {

struct SolarCanvas;

void PaintSolarRegions(SolarCanvas& canvas);

/// Circles at round distances and at light's travel times around the centre of the view.
void PaintCosmicScale(SolarCanvas& canvas);

/// How much of the Oort cloud shows when it fades by itself: nothing (0) while the camera is among
/// the planets, all of it (1) once the cloud is as large as the picture.
double OortCloudOpacity(double cameraDistanceAu);

}  // namespace vyn
