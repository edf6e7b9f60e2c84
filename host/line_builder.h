// Builds lines through many points of a picture, leaving out what cannot be seen, so that a line
// that runs far out of the picture costs nothing and harms nothing.
#pragma once

#include <optional>
#include <span>

#include <QPainterPath>
#include <QRectF>

#include "host/outside_camera.h"
#include "host/sky_projection.h"

namespace vyn {

/// Lines that are no wider are drawn several times as fast.
inline constexpr double kOrbitLinePixels = 1.0;

class LineBuilder {
 public:
  /// Lines are cut off a little outside the picture.
  explicit LineBuilder(const QSizeF& pictureSize);

  /// Goes on to the next point; nothing interrupts the line.
  void To(const std::optional<QPointF>& point);
  void Break() { last_.reset(); }

  const QPainterPath& Path() const { return path_; }

 private:
  void Add(QPointF from, QPointF to);

  QRectF bounds_;
  QPainterPath path_;
  std::optional<QPointF> last_;
};

/// The line through directions of the sky, told in the frame of the view.
QPainterPath SkyLine(const SkyProjection& projection, std::span<const Vector3> directions);

/// The line through places in space.
QPainterPath SpaceLine(const OutsideCamera& camera, std::span<const Vector3> places);

/// `count` + 1 points of a circle; the last is the first. `axis1` and `axis2` are its radii.
std::vector<Vector3> CirclePoints(const Vector3& center, const Vector3& axis1, const Vector3& axis2,
                                  int count);

}  // namespace vyn
