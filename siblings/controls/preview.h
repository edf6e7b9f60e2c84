// The preview: a framed picture that a dialog paints and on which the mouse works.
#pragma once

#include <functional>

#include <QWidget>

#include "core_link/export.h"

namespace vyn {

/// Tells where the mouse is pressed, moved and released, in its own pixels. While a button is held,
/// moves come from outside too, with points outside.
class VYN_EXPORT CVynPreview final : public QWidget {
  Q_OBJECT

 public:
  explicit CVynPreview(QWidget* parent = nullptr);

  /// Paints the picture within a frame of one pixel, in the preview's own pixels.
  void SetPainter(std::function<void(QPainter&)> painter) { painter_ = std::move(painter); }

 Q_SIGNALS:
  void pressed(QPoint point, Qt::MouseButton button);
  void moved(QPoint point);
  void released(QPoint point, Qt::MouseButton button);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  std::function<void(QPainter&)> painter_;
};

}  // namespace vyn
