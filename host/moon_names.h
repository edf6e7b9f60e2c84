// Writes the names of the Moon's features beside its disk or on it.
#pragma once

#include "host/labels.h"

class QPainter;

namespace vyn {

struct BodyDisplay;
struct Disk;

/// With lead lines the names stand in two columns left and right of the disk, without them beside
/// the features. Features that would be smaller than a few pixels are left out.
void PaintMoonNames(QPainter& painter, const Disk& disk, const BodyDisplay& display,
                    LabelLayer& labels);

}  // namespace vyn
