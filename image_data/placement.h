// How an image is laid over a body's disk, and how the handles of the preview move it: geometry
// alone, in the pixels of the preview, y downwards.
#pragma once

#include <array>

#include <QPoint>
#include <QRect>
#include <QSize>

namespace vyn {

inline constexpr double kMaxOffset = 0.5;
inline constexpr double kMinRadius = 0.01;
inline constexpr double kMaxRadius = 0.5;

/// Where the body's disk is in the image. Lengths are in units of the preview's scale, which is the
/// side of the square that the image fills.
struct Placement {
  double offsetX = 0.0;  ///< of the disk's centre from the image's, to the right, -0.5 to 0.5
  double offsetY = 0.0;  ///< the same downwards
  double radius = 0.3;   ///< of the disk, 0.01 to 0.5
  double rollDeg = 0.0;  ///< of the image, [0, 360)
};

/// The middle part of an image that covers a preview, and the scale of the preview then, in pixels.
struct ImageCrop {
  QRect source;
  double scale = 0.0;
};
ImageCrop CropToCover(QSize image, QSize preview);

/// In the order in which they are tried under the mouse.
enum class PlacementHandle { None, Centre, Roll, Horizontal, Vertical, Radius };

/// What the handles are measured by.
struct PreviewGeometry {
  QSize size;          ///< of the preview
  double scale = 0.0;  ///< of the image in it; 0 as long as there is none
  int unit = 1;        ///< half the side of a handle's square
};

/// Where the overlay's parts stand.
class PlacementLayout {
 public:
  PlacementLayout(const Placement& placement, const PreviewGeometry& geometry);

  QPoint Centre() const { return Anchor(PlacementHandle::Centre); }
  /// The radius of the disk's outline in pixels.
  double OutlineRadius() const { return outlineRadius_; }
  QPoint Anchor(PlacementHandle handle) const;
  /// The square around a handle's anchor, its right and bottom edges not included.
  QRect Square(PlacementHandle handle) const;
  /// Where the mouse takes hold of a handle: its square, or a band through the whole preview for
  /// the two lines.
  QRect GrabArea(PlacementHandle handle) const;
  /// The first handle under the point.
  PlacementHandle HandleAt(QPoint point) const;

 private:
  PreviewGeometry geometry_;
  double outlineRadius_;
  std::array<QPoint, 6> anchors_;
};

/// The placement after the mouse has dragged a handle to `mouse`; `grab` is where it took hold,
/// relative to the handle's anchor.
Placement DragHandle(const Placement& placement, PlacementHandle handle, QPoint mouse, QPoint grab,
                     const PreviewGeometry& geometry);

/// The triangle that points out of a square at the roll angle, 0 upwards, turning clockwise.
std::array<QPoint, 3> ArrowMark(const QRect& square, double rollDeg);

}  // namespace vyn
