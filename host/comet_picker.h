// Which comet is under the mouse.
#pragma once

#include <QPointF>
#include <QString>

#include "host/frame.h"

namespace vyn {

/// The path in the core engine of the comet that is drawn nearest to the point, such as
/// "Solar.Comet.No3"; empty when none is within a few pixels.
QString CometAt(const Frame& frame, const QPointF& point);

}  // namespace vyn
