#include "image_data/image_preview.h"

#include <algorithm>

#include <QLoggingCategory>
#include <QPainter>

#include "image_data/placement_overlay.h"
#include "siblings/controls/preview.h"
#include "siblings/files/common_file.h"
#include "siblings/images/image_file.h"

namespace vyn {
namespace {

/// For the debugger; silent unless it is asked for.
Q_LOGGING_CATEGORY(DragLog, "vyn.preview.drag", QtInfoMsg)

}  // namespace

void ImagePreview::Attach(CVynPreview* control, std::function<QString()> path,
                          std::function<Placement()> placement) {
  control_ = control;
  path_ = std::move(path);
  placement_ = std::move(placement);
  image_ = {};
  picture_ = {};
  loadedPath_.clear();
  activeHandle_ = PlacementHandle::None;
  cursors_ = {LoadPlacementCursor(400),   LoadPlacementCursor(404),   LoadPlacementCursor(409),
              QCursor(Qt::SizeVerCursor), QCursor(Qt::SizeHorCursor), LoadPlacementCursor(408)};
  control_->SetPainter([this](QPainter& painter) { Paint(painter); });
}

ImageLoading ImagePreview::Load(const QString& path) {
  if (path.isEmpty() || path.compare(loadedPath_, Qt::CaseInsensitive) == 0) {
    return ImageLoading::Done;
  }
  if (!CCommonFile::DoesFileExist(path)) return ImageLoading::Missing;
  QImage image = LoadImageFile(path);
  if (image.isNull()) return ImageLoading::Unreadable;
  image_ = std::move(image);
  picture_ = {};
  loadedPath_ = path;
  return ImageLoading::Done;
}

void ImagePreview::Repaint() { control_->update(); }
void ImagePreview::RepaintNow() { control_->repaint(); }

PreviewGeometry ImagePreview::Geometry() const {
  const double scale = image_.isNull() ? 0.0 : CropToCover(image_.size(), control_->size()).scale;
  return {control_->size(), scale, control_->fontMetrics().averageCharWidth()};
}

bool ImagePreview::HasPicture() const { return !image_.isNull() && !path_().isEmpty(); }

void ImagePreview::Paint(QPainter& painter) {
  if (!HasPicture()) return;
  PaintPicture(painter);
  const Placement placement = placement_();
  DrawPlacementOverlay(painter, {placement, Geometry()}, control_->size(), placement.rollDeg);
}

void ImagePreview::PaintPicture(QPainter& painter) {
  const double ratio = control_->devicePixelRatioF();
  const QSize size = (QSizeF(control_->size()) * ratio).toSize();
  if (picture_.size() != size) {
    picture_ = QPixmap(size);
    picture_.fill(Qt::black);
    const QRect source = CropToCover(image_.size(), control_->size()).source;
    QPainter(&picture_).drawImage(picture_.rect(), image_, source);
    picture_.setDevicePixelRatio(ratio);
  }
  painter.drawPixmap(QPoint(), picture_);
}

bool ImagePreview::BeginDrag(QPoint point) {
  if (!HasPicture()) return false;
  const PlacementLayout layout = Layout();
  activeHandle_ = layout.HandleAt(point);
  grab_ = point - layout.Anchor(activeHandle_);
  return IsDragging();
}

Placement ImagePreview::Drag(QPoint point) const {
  const int dx = std::clamp(point.x(), 0, control_->width()) - control_->width() / 2 - grab_.x();
  qCDebug(DragLog, "dx = %f ", static_cast<double>(dx));
  return DragHandle(placement_(), activeHandle_, point, grab_, Geometry());
}

void ImagePreview::EndDrag() {
  activeHandle_ = PlacementHandle::None;
  control_->setCursor(cursors_[0]);
}

void ImagePreview::UpdateCursor(QPoint point) {
  PlacementHandle handle = activeHandle_;
  if (handle == PlacementHandle::None && HasPicture()) handle = Layout().HandleAt(point);
  control_->setCursor(cursors_[static_cast<std::size_t>(handle)]);
}

}  // namespace vyn
