// Paints the satellites of one body, the same in both views: as points or small disks, labelled.
#pragma once

#include <functional>
#include <optional>

#include "host/frame.h"
#include "host/labels.h"
#include "host/sky_projection.h"

class QPainter;

namespace vyn {

/// How a place in space is shown.
struct Sighting {
  QPointF at;
  double pixelsPerAu = 0.0;
  Vector3 lineOfSight;  ///< of any length
  PictureAxes axes;
};

/// Where satellites are painted.
struct SatelliteStage {
  QPainter& painter;
  const Frame& frame;
  LabelLayer& labels;
  const SceneBody& body;
  /// How a place near the body is shown, told relative to it; nothing when it is not in the
  /// picture.
  std::function<std::optional<Sighting>(const Vector3& fromBody)> sight;
  /// Of the body's disk, in pixels; what stands behind it is not seen. 0 for a body not drawn.
  double bodyRadius = 0.0;
};

enum class SatelliteSide { Behind, InFront };

/// Those farther away than their body, or those nearer, so that the body can be painted between.
void PaintSatellites(const SatelliteStage& stage, SatelliteSide side);

/// Whether an orbit so large is worth drawing; of a smaller one the satellites are one with their
/// body.
bool IsOrbitVisible(double semiMajorAxisPixels);

/// The pen for the orbits of a body's satellites.
QPen SatelliteOrbitPen(const Frame& frame);

/// As many points as an orbit of that size needs to look round.
int OrbitPointCount(double semiMajorAxisPixels);

}  // namespace vyn
