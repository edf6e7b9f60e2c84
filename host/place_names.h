// Writes the names of places on a body beside its disk or on it.
#pragma once

#include "host/labels.h"
#include "host/sky_body.h"

class QPainter;

namespace vyn {

struct BodyDisplay;
struct Disk;

/// Nothing where they are off or the body has none known. With lead lines the names stand in two
/// columns left and right of the disk, without them beside the features. Features that would be
/// smaller than a few pixels are left out.
void PaintPlaceNames(QPainter& painter, SkyBody body, const Disk& disk, const BodyDisplay& display,
                     LabelLayer& labels);

}  // namespace vyn
