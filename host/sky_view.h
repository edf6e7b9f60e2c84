// The widget that shows the sky or the solar system and lets the mouse move the view.
#pragma once

#include <functional>
#include <optional>

#include <QWidget>

#include "host/frame.h"

namespace vyn {

/// Paints from the engine's state alone. Dragging pans the sky or turns the solar system, the wheel
/// zooms; both are told to the engine by commands.
class SkyView final : public QWidget {
  Q_OBJECT

 public:
  using Send = std::function<void(const QString& command)>;

  SkyView(ReferenceEngine& engine, Send send, QWidget* parent = nullptr);

  QSize sizeHint() const override { return {1280, 800}; }

  /// Zooms in (positive) or out by steps of the wheel.
  void Zoom(double steps);
  /// Moves the view as a drag by so many pixels does.
  void Drag(const QPointF& from, const QPointF& to);

 Q_SIGNALS:
  /// A menu was asked for on a comet, by its path in the core engine.
  void cometMenuRequested(const QString& objectPath, const QPoint& globalPosition);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void DragSky(const QPointF& from, const QPointF& to);
  void DragSolarSystem(const QPointF& by);
  QPointF Middle() const { return {width() / 2.0, height() / 2.0}; }

  ReferenceEngine& engine_;
  Send send_;
  std::optional<QPointF> dragged_;
};

}  // namespace vyn
