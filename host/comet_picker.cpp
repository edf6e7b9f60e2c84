#include "host/comet_picker.h"

#include <QLineF>
#include <QPainter>

#include "host/sky_canvas.h"
#include "host/solar_canvas.h"

namespace vyn {
namespace {

constexpr double kReachPixels = 9.0;

/// `placeOf(comet)` tells where a comet is drawn.
template <class PlaceOf>
const SceneSmallBody* Nearest(const Frame& frame, const QPointF& point, PlaceOf placeOf) {
  const SceneSmallBody* nearest = nullptr;
  double reach = kReachPixels;
  for (const SceneSmallBody& comet : frame.scene.comets) {
    const std::optional<QPointF> at = placeOf(comet);
    const double distance = at ? QLineF(*at, point).length() : kReachPixels;
    if (distance >= reach) continue;
    nearest = &comet;
    reach = distance;
  }
  return nearest;
}

const SceneSmallBody* CometUnder(const Frame& frame, const QPointF& point) {
  QPainter unused;
  if (frame.view.kind == ViewKind::SolarSystem) {
    const SolarCanvas canvas(unused, frame);
    return Nearest(frame, point, [&canvas](const SceneSmallBody& comet) {
      return canvas.camera.ToPicture(comet.heliocentric);
    });
  }
  const SkyCanvas canvas(unused, frame);
  return Nearest(frame, point,
                 [&canvas](const SceneSmallBody& comet) { return canvas.At(comet.seen); });
}

}  // namespace

QString CometAt(const Frame& frame, const QPointF& point) {
  const SceneSmallBody* comet = CometUnder(frame, point);
  if (comet == nullptr) return {};
  return QStringLiteral("Solar.Comet.No") + QString::number(comet->object + 1);
}

}  // namespace vyn
