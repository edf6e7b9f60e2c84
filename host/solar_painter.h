// Paints the solar system as it is seen from outside.
#pragma once

class QPainter;

namespace vyn {

struct Frame;

void PaintSolarSystem(QPainter& painter, const Frame& frame);

}  // namespace vyn
