// What the painters of the sky view share: where to paint, what, and how the sky is projected.
#pragma once

#include <QPainter>

#include "host/frame.h"
#include "host/labels.h"
#include "host/sky_projection.h"

namespace vyn {

/// The direction in the middle of the sky view, in the frame of the view.
Spherical SkyMiddle(const Frame& frame);

struct SkyCanvas {
  SkyCanvas(QPainter& painter, const Frame& frame);

  QPainter& painter;
  const Frame& frame;
  SkyProjection projection;
  LabelLayer labels;

  /// A vector in the ecliptic of J2000, told in the frame of the view.
  Vector3 ToView(const Vector3& vector) const { return frame.scene.viewpoint.toView * vector; }
  /// Where it is shown.
  std::optional<QPointF> At(const Vector3& vector) const {
    return projection.ToPicture(ToView(vector));
  }
  /// The axes of the picture in that direction, in the ecliptic of J2000.
  PictureAxes AxesAt(const Vector3& vector) const;
  bool IsInPicture(const QPointF& point, double margin) const;
  /// Draws a line without filling it.
  void Stroke(const QPainterPath& path, const QPen& pen);
};

}  // namespace vyn
