// Paints photographs and sunspots over a body's disk.
#pragma once

#include "host/disk_painter.h"
#include "host/image_overlays.h"

namespace vyn {

/// What turns with the body: surface layers, on its lit part, and spots.
void PaintSurfaceOverlays(QPainter& painter, SkyBody body, const Disk& disk,
                          const BodyOverlays& overlays);

/// Photographs as they were taken, north towards the celestial pole. They may be larger than the
/// disk.
void PaintImageOverlays(QPainter& painter, const Disk& disk, const BodyOverlays& overlays);

}  // namespace vyn
