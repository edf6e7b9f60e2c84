#include "image_data/placement.h"

#include <algorithm>
#include <cmath>

#include "siblings/astro/angles.h"

namespace vyn {
namespace {

/// How far the lines' handles stand from the preview's edges, in units of the scale.
constexpr double kLineHandleInset = 0.05;
/// How far the roll's handle stands off the outline, in units of the handles.
constexpr int kRollHandleGap = 3;
constexpr double kRadiusHandleDeg = 45.0;

/// The core engine may hold any number; what is far off every preview is as far as this.
constexpr double kFarAway = 1e6;

int Round(double value) {
  return static_cast<int>(std::lround(std::clamp(value, -kFarAway, kFarAway)));
}

double ClampedOffset(double offset) { return std::clamp(offset, -kMaxOffset, kMaxOffset); }

QPoint PolarPoint(QPoint centre, double distance, double angleDeg) {
  return centre + QPoint(Round(distance * std::cos(angleDeg * kRadPerDeg)),
                         Round(distance * std::sin(angleDeg * kRadPerDeg)));
}

QPoint CentreOf(const Placement& placement, const PreviewGeometry& geometry) {
  const int halfWidth = geometry.size.width() / 2;
  const int halfHeight = geometry.size.height() / 2;
  return {Round(geometry.scale * placement.offsetX + halfWidth),
          Round(geometry.scale * placement.offsetY + halfHeight)};
}

}  // namespace

ImageCrop CropToCover(QSize image, QSize preview) {
  const double widths = static_cast<double>(image.width()) / preview.width();
  const double heights = static_cast<double>(image.height()) / preview.height();
  if (widths > heights) {
    const int width = std::max(1, Round(preview.width() * heights));
    return {{(image.width() - width) / 2, 0, width, image.height()},
            static_cast<double>(preview.height())};
  }
  const int height = std::max(1, Round(preview.height() * widths));
  return {{0, (image.height() - height) / 2, image.width(), height},
          static_cast<double>(preview.width())};
}

PlacementLayout::PlacementLayout(const Placement& placement, const PreviewGeometry& geometry)
    : geometry_(geometry), outlineRadius_(geometry.scale * placement.radius) {
  const QPoint centre = CentreOf(placement, geometry);
  const int inset = Round(kLineHandleInset * geometry.scale);
  const double rollDistance = outlineRadius_ + kRollHandleGap * geometry.unit;
  anchors_ = {QPoint(),
              centre,
              PolarPoint(centre, rollDistance, placement.rollDeg - 90.0),
              QPoint(inset, centre.y()),
              QPoint(centre.x(), geometry.size.height() - inset),
              PolarPoint(centre, outlineRadius_, -kRadiusHandleDeg)};
}

QPoint PlacementLayout::Anchor(PlacementHandle handle) const {
  return anchors_[static_cast<std::size_t>(handle)];
}

QRect PlacementLayout::Square(PlacementHandle handle) const {
  const int unit = geometry_.unit;
  return {Anchor(handle) - QPoint(unit, unit), QSize(2 * unit, 2 * unit)};
}

QRect PlacementLayout::GrabArea(PlacementHandle handle) const {
  QRect area = Square(handle);
  if (handle == PlacementHandle::Horizontal) {
    area.setLeft(0);
    area.setWidth(geometry_.size.width());
  } else if (handle == PlacementHandle::Vertical) {
    area.setTop(0);
    area.setHeight(geometry_.size.height());
  }
  return area;
}

PlacementHandle PlacementLayout::HandleAt(QPoint point) const {
  using enum PlacementHandle;
  for (const PlacementHandle handle : {Centre, Roll, Horizontal, Vertical, Radius}) {
    if (GrabArea(handle).contains(point)) return handle;
  }
  return None;
}

Placement DragHandle(const Placement& placement, PlacementHandle handle, QPoint mouse, QPoint grab,
                     const PreviewGeometry& geometry) {
  if (geometry.scale <= 0.0) return placement;
  // Up to the far edge itself, so that a drag reaches both ends of the range.
  const QPoint point(std::clamp(mouse.x(), 0, geometry.size.width()),
                     std::clamp(mouse.y(), 0, geometry.size.height()));
  const QPoint fromMiddle =
      point - QPoint(geometry.size.width() / 2, geometry.size.height() / 2) - grab;
  const QPoint fromCentre = point - CentreOf(placement, geometry) - grab;
  Placement result = placement;
  if (handle == PlacementHandle::Centre || handle == PlacementHandle::Vertical) {
    result.offsetX = ClampedOffset(fromMiddle.x() / geometry.scale);
  }
  if (handle == PlacementHandle::Centre || handle == PlacementHandle::Horizontal) {
    result.offsetY = ClampedOffset(fromMiddle.y() / geometry.scale);
  }
  if (handle == PlacementHandle::Roll) {
    result.rollDeg = degmal(std::atan2(fromCentre.y(), fromCentre.x()) * kDegPerRad + 90.0);
  }
  if (handle == PlacementHandle::Radius) {
    result.radius = std::clamp(std::hypot(fromCentre.x(), fromCentre.y()) / geometry.scale,
                               kMinRadius, kMaxRadius);
  }
  return result;
}

std::array<QPoint, 3> ArrowMark(const QRect& square, double rollDeg) {
  const double left = square.left();
  const double right = left + square.width();
  const double top = square.top();
  const double bottom = top + square.height();
  const std::array<QPointF, 3> upright{QPointF((left + right) / 2.0, top), QPointF(left, bottom),
                                       QPointF(right, bottom)};
  const QPointF centroid = (upright[0] + upright[1] + upright[2]) / 3.0;
  const double cosine = std::cos(rollDeg * kRadPerDeg);
  const double sine = std::sin(rollDeg * kRadPerDeg);
  std::array<QPoint, 3> turned;
  for (std::size_t i = 0; i < turned.size(); ++i) {
    const QPointF arm = upright[i] - centroid;
    turned[i] = {
        static_cast<int>(std::floor(centroid.x() + arm.x() * cosine - arm.y() * sine + 0.5)),
        static_cast<int>(std::floor(centroid.y() + arm.x() * sine + arm.y() * cosine + 0.5))};
  }
  return turned;
}

}  // namespace vyn
