// Draws the handles with which an image is placed over a disk, and the mouse cursors that go with
// them.
#pragma once

#include <QCursor>
#include <QPainter>

#include "image_data/placement.h"

namespace vyn {

/// Lines, disk outline and handles over an image, in red, and in green what shows its roll.
void DrawPlacementOverlay(QPainter& painter, const PlacementLayout& layout, QSize preview,
                          double rollDeg);

/// The arrow in the square of the roll's handle, filled with the brush.
void DrawArrowMark(QPainter& painter, const QRect& square, double angleDeg, const QBrush& brush);

/// The cursors by their resource numbers: 400 normal, 404 move, 408 radius, 409 rotate.
QCursor LoadPlacementCursor(int number);

}  // namespace vyn
