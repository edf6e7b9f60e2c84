// Paints the sky as it is seen from a place: grids, bodies, comets, ground and labels.
#pragma once

class QPainter;

namespace vyn {

struct Frame;

void PaintSky(QPainter& painter, const Frame& frame);

}  // namespace vyn
