// Paints the satellites of one body, the same in both views: as points or small disks, labelled.
#pragma once

#include <functional>
#include <optional>

#include "host/frame.h"
#include "host/labels.h"
#include "host/sky_projection.h"

class QPainter;
class QPainterPath;

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
  /// A magnified disk reaches farther than the body does, so it hides what is in front of it too.
  bool isMagnified = false;
};

enum class SatelliteSide { Behind, InFront };

/// Those farther away than their body, or those nearer, so that the body can be painted between.
void PaintSatellites(const SatelliteStage& stage, SatelliteSide side);

/// Whether a satellite and its orbit are worth drawing where an au has so many pixels. Of a smaller
/// orbit the satellite is one with its body. The small satellites come in later: there are so many
/// that they would be a cloud about it.
bool IsApartFromBody(const Satellite& satellite, double pixelsPerAu);

/// Draws the line of an orbit, fainter for the small satellites.
void StrokeSatelliteOrbit(QPainter& painter, const QPainterPath& line, const Frame& frame,
                          const Satellite& satellite);

/// As many points as an orbit of that size needs to look round.
int OrbitPointCount(const Satellite& satellite, double pixelsPerAu);

}  // namespace vyn
