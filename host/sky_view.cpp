#include "host/sky_view.h"

#include <array>
#include <cmath>

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "host/comet_picker.h"
#include "host/sky_canvas.h"

namespace vyn {
namespace {

constexpr double kWheelStep = 120.0;
constexpr double kZoomPerStep = 1.2;
constexpr double kDegPerPixel = 0.35;
constexpr double kKeyPixels = 40.0;

struct ArrowKey {
  Qt::Key key;
  QPointF by;  ///< how the picture moves
};

constexpr std::array<ArrowKey, 4> kArrowKeys{{{Qt::Key_Left, {kKeyPixels, 0.0}},
                                              {Qt::Key_Right, {-kKeyPixels, 0.0}},
                                              {Qt::Key_Up, {0.0, kKeyPixels}},
                                              {Qt::Key_Down, {0.0, -kKeyPixels}}}};

}  // namespace

SkyView::SkyView(ReferenceEngine& engine, Send send, QWidget* parent)
    : QWidget(parent), engine_(engine), send_(std::move(send)) {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::OpenHandCursor);
  setMinimumSize(320, 240);
}

void SkyView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintFrame(painter, ReadFrame(engine_, size()));
}

void SkyView::contextMenuEvent(QContextMenuEvent* event) {
  const QString comet = CometAt(ReadFrame(engine_, size()), event->pos());
  if (!comet.isEmpty()) Q_EMIT cometMenuRequested(comet, event->globalPos());
}

void SkyView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  dragged_ = event->position();
  setCursor(Qt::ClosedHandCursor);
}

void SkyView::mouseMoveEvent(QMouseEvent* event) {
  if (!dragged_) return;
  Drag(*dragged_, event->position());
  dragged_ = event->position();
}

void SkyView::mouseReleaseEvent(QMouseEvent*) {
  dragged_.reset();
  setCursor(Qt::OpenHandCursor);
}

void SkyView::wheelEvent(QWheelEvent* event) { Zoom(event->angleDelta().y() / kWheelStep); }

void SkyView::keyPressEvent(QKeyEvent* event) {
  for (const ArrowKey& arrow : kArrowKeys) {
    if (event->key() == arrow.key) return Drag(Middle(), Middle() + arrow.by);
  }
  QWidget::keyPressEvent(event);
}

void SkyView::Zoom(double steps) {
  if (steps == 0.0) return;
  const ViewState view = ReadViewState(engine_);
  const double factor = std::pow(kZoomPerStep, -steps);
  send_(view.kind == ViewKind::SolarSystem ? view_command::Distance(view.distanceAu * factor)
                                           : view_command::Angle(view.angleDeg * factor));
}

void SkyView::Drag(const QPointF& from, const QPointF& to) {
  if (from == to) return;
  if (ReadViewState(engine_).kind == ViewKind::SolarSystem) {
    DragSolarSystem(to - from);
  } else {
    DragSky(from, to);
  }
}

/// What was under the mouse before is under it after.
void SkyView::DragSky(const QPointF& from, const QPointF& to) {
  Frame frame;
  frame.size = size();
  frame.view = ReadViewState(engine_);
  // Only a view that follows a body has to know where it is.
  if (frame.view.isTracking) frame.scene = BuildScene(engine_, frame.view.kind);
  const Spherical middle = SkyMiddle(frame);
  const SkyProjection projection(middle, frame.view.angleDeg, frame.size);
  const Spherical before = DcToAd(projection.ToDirection(from));
  const Spherical after = DcToAd(projection.ToDirection(to));
  const double turn = std::remainder(before.longitudeDeg - after.longitudeDeg, 360.0);
  const double longitude = middle.longitudeDeg + turn;
  const double latitude = middle.latitudeDeg + before.latitudeDeg - after.latitudeDeg;
  const bool isHorizon = frame.view.kind == ViewKind::Horizon;
  send_(view_command::Look(frame.view.kind, {isHorizon ? -longitude : longitude, latitude}));
}

void SkyView::DragSolarSystem(const QPointF& by) {
  const Spherical outside = ReadViewState(engine_).outside;
  send_(view_command::GoOutside(
      {outside.longitudeDeg - by.x() * kDegPerPixel, outside.latitudeDeg + by.y() * kDegPerPixel}));
}

}  // namespace vyn
