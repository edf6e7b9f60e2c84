// What the painters of the solar system's view share: where to paint, what, and from where.
#pragma once

#include <QPainter>

#include "host/frame.h"
#include "host/labels.h"
#include "host/outside_camera.h"

namespace vyn {

struct SolarCanvas {
  SolarCanvas(QPainter& painter, const Frame& frame);

  QPainter& painter;
  const Frame& frame;
  OutsideCamera camera;
  LabelLayer labels;

  bool IsInPicture(const QPointF& point, double margin) const;
  /// Draws a line without filling it.
  void Stroke(const QPainterPath& path, const QPen& pen);
  /// How large a length at the centre of the view is in the picture.
  double PixelsAtTarget(double lengthAu) const;
};

/// A distance in kilometres, astronomical units or light years, whichever is easiest to grasp.
QString DistanceText(double distanceAu);

/// The unit in which that distance is told, in au.
double DistanceUnitAu(double distanceAu);

}  // namespace vyn
