// Paints comets' tails, for both views.
#pragma once

#include <functional>
#include <optional>

#include <QPointF>

#include "host/scene_small_bodies.h"

class QPainter;

namespace vyn {

/// Where a place, relative to the Sun, is in the picture; nothing when it is out of sight.
using PlaceToPicture = std::function<std::optional<QPointF>(const Vector3& place)>;

/// Tails that are hardly longer than the comet's point are left out, and so is one that is partly
/// out of sight where it would be torn.
void PaintTails(QPainter& painter, const SceneSmallBody& comet, double jdTt,
                const PlaceToPicture& toPicture);

}  // namespace vyn
