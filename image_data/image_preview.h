// The preview of an image dialog: the decoded image, the overlay on it, and the drag of a handle.
#pragma once

#include <array>
#include <functional>

#include <QCursor>
#include <QImage>
#include <QPixmap>

#include "image_data/placement.h"

class QPainter;

namespace vyn {

class CVynPreview;

enum class ImageLoading { Done, Missing, Unreadable };

/// The image is decoded once a path; the picture of it in the preview's size is kept until the
/// image or the size changes, so that a drag paints the overlay alone.
class ImagePreview {
 public:
  /// Paints into `control` from now on, and forgets the image. `path` tells which image is to be
  /// seen (none when empty), `placement` where the overlay is.
  void Attach(CVynPreview* control, std::function<QString()> path,
              std::function<Placement()> placement);

  /// Decodes the image unless it is the one loaded last, casing aside. On failure that one stays.
  ImageLoading Load(const QString& path);
  const QString& LoadedPath() const { return loadedPath_; }

  /// Paints at the next occasion, or at once.
  void Repaint();
  void RepaintNow();

  // Dragging. Points are in the preview's pixels.

  /// Takes hold of the handle under the point; false when there is none.
  bool BeginDrag(QPoint point);
  bool IsDragging() const { return activeHandle_ != PlacementHandle::None; }
  /// The placement with the handle at the point.
  Placement Drag(QPoint point) const;
  void EndDrag();
  /// Shows the cursor that goes with the handle held or under the point.
  void UpdateCursor(QPoint point);

 private:
  PreviewGeometry Geometry() const;
  PlacementLayout Layout() const { return {placement_(), Geometry()}; }
  bool HasPicture() const;
  void Paint(QPainter& painter);
  void PaintPicture(QPainter& painter);

  CVynPreview* control_ = nullptr;
  std::function<QString()> path_;
  std::function<Placement()> placement_;
  QImage image_;
  QString loadedPath_;
  QPixmap picture_;
  PlacementHandle activeHandle_ = PlacementHandle::None;
  QPoint grab_;
  std::array<QCursor, 6> cursors_;
};

}  // namespace vyn
