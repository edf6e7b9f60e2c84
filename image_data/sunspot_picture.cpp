#include "image_data/sunspot_picture.h"

#include <algorithm>
#include <array>

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QRadialGradient>

namespace vyn {
namespace {

constexpr int kHitDistance = 4;
constexpr int kGridStepDeg = 30;
constexpr std::array<int, 4> kSpotRadii{2, 3, 4, 5};
/// Room for the largest spot and its rim.
constexpr int kSpotMargin = 8;

/// Darker towards the limb, as the Sun is.
void DrawDisk(QPainter& painter, const SunDisk& disk) {
  QRadialGradient light(disk.Centre(), disk.Radius());
  light.setColorAt(0.0, QColor(255, 244, 200));
  light.setColorAt(0.7, QColor(255, 220, 140));
  light.setColorAt(1.0, QColor(214, 140, 50));
  painter.setPen(Qt::NoPen);
  painter.setBrush(light);
  painter.drawEllipse(disk.Centre(), disk.Radius(), disk.Radius());
}

/// A line of the heliographic grid, as far as it is on the near side.
template <class PointAt>
void DrawGridLine(QPainter& painter, int fromDeg, int toDeg, PointAt pointAt) {
  constexpr int kStepDeg = 5;
  QPainterPath path;
  bool isDown = false;
  for (int deg = fromDeg; deg <= toDeg; deg += kStepDeg) {
    const auto point = pointAt(deg);
    if (!point) {
      isDown = false;
      continue;
    }
    isDown ? path.lineTo(*point) : path.moveTo(*point);
    isDown = true;
  }
  painter.drawPath(path);
}

void DrawGrid(QPainter& painter, const SunDisk& disk) {
  painter.setPen(QColor(150, 90, 20, 110));
  painter.setBrush(Qt::NoBrush);
  for (int latitude = -60; latitude <= 60; latitude += kGridStepDeg) {
    DrawGridLine(painter, 0, 360, [&](int deg) { return disk.Project(deg, latitude); });
  }
  for (int longitude = 0; longitude < 360; longitude += kGridStepDeg) {
    DrawGridLine(painter, -90, 90, [&](int deg) { return disk.Project(longitude, deg); });
  }
}

/// A spot of this type in the middle of a picture of its own: a set may have a thousand.
QPixmap SpotPixmap(int type, bool isSelected, qreal pixelRatio) {
  QPixmap pixmap(QSize(2 * kSpotMargin, 2 * kSpotMargin) * pixelRatio);
  pixmap.setDevicePixelRatio(pixelRatio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(isSelected ? QColor(Qt::red) : QColor(110, 60, 20), 1.5));
  painter.setBrush(QColor(40, 20, 10));
  const int radius = kSpotRadii[type - 1];
  painter.drawEllipse(QPoint(kSpotMargin, kSpotMargin), radius, radius);
  return pixmap;
}

/// Draws spots; each kind of them is drawn once and copied from then on.
class SpotPainter {
 public:
  explicit SpotPainter(QPainter& painter) : painter_(painter) {}

  void Draw(const Sunspot& spot, bool isSelected) {
    const int type = std::clamp(spot.type, 1, 4);
    QPixmap& pixmap = pixmaps_[type - 1 + (isSelected ? 4 : 0)];
    if (pixmap.isNull()) {
      pixmap = SpotPixmap(type, isSelected, painter_.device()->devicePixelRatioF());
    }
    painter_.drawPixmap(spot.screenPoint - QPoint(kSpotMargin, kSpotMargin), pixmap);
  }

 private:
  QPainter& painter_;
  std::array<QPixmap, 8> pixmaps_;
};

}  // namespace

void SunspotPicture::SetOrientation(QSize preview, double centralLongitudeDeg,
                                    double centralLatitudeDeg) {
  disk_ = SunDisk(preview, centralLongitudeDeg, centralLatitudeDeg);
  RecalcSunSpotPt();
}

void SunspotPicture::RecalcSunSpotPt() {
  for (Sunspot& spot : spots_) spot.screenPoint = kNoPoint;
}

void SunspotPicture::Paint(QPainter& painter, int selectedSpot) {
  painter.setRenderHint(QPainter::Antialiasing);
  DrawDisk(painter, disk_);
  DrawGrid(painter, disk_);
  SpotPainter spotPainter(painter);
  for (std::size_t i = 0; i < spots_.size(); ++i) {
    Sunspot& spot = spots_[i];
    if (spot.screenPoint == kNoPoint) {
      spot.screenPoint = disk_.GetSunPoint(spot.longitudeDeg, spot.latitudeDeg).value_or(kNoPoint);
    }
    if (spot.screenPoint == kNoPoint) continue;
    spotPainter.Draw(spot, static_cast<int>(i) == selectedSpot);
  }
}

int SunspotPicture::SpotAt(QPoint point) const {
  const auto hit = std::ranges::find_if(spots_, [point](const Sunspot& spot) {
    const QPoint away = point - spot.screenPoint;
    return std::abs(away.x()) <= kHitDistance && std::abs(away.y()) <= kHitDistance;
  });
  return hit != spots_.end() ? static_cast<int>(hit - spots_.begin()) : -1;
}

}  // namespace vyn
