#include "host/overlay_painter.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QPainterPath>

#include "engine/sky/observer.h"
#include "engine/sky/time_scales.h"
#include "host/line_builder.h"
#include "host/overlay_images.h"
#include "host/scene.h"
#include "siblings/astro/angles.h"
#include "siblings/astro/disk_frame.h"

namespace vyn {
namespace {

/// Smaller disks are points.
constexpr double kSmallestDisk = 3.0;

double ShorterSide(const QImage& image) { return std::min(image.width(), image.height()); }

/// Where the middle of the body's disk is in the image.
QPointF DiskCentre(const QImage& image, const Placement& placement) {
  const double unit = ShorterSide(image);
  return {image.width() / 2.0 + unit * placement.offsetX,
          image.height() / 2.0 + unit * placement.offsetY};
}

void PaintImage(QPainter& painter, const Disk& disk, const ImageOverlay& overlay) {
  const double side = disk.radius / overlay.placement.radius;
  const QImage image = OverlayImage(overlay.path, side);
  if (image.isNull()) return;
  const double northDeg = std::atan2(disk.north.x, disk.north.y) * kDegPerRad;
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setOpacity(overlay.opacity);
  painter.translate(disk.center);
  painter.rotate(northDeg - overlay.placement.rollDeg);
  painter.scale(side / ShorterSide(image), side / ShorterSide(image));
  painter.drawImage(-DiskCentre(image, overlay.placement), image);
  painter.restore();
}

/// From the frame fixed to the body to the disk as the Earth saw it, with the body's axis upright.
Matrix3 SeenFromEarth(SkyBody body, double jdUt) {
  const double jdTt = TtFromUt(jdUt);
  const Vector3 sight =
      HeliocentricState(body, jdTt).position - HeliocentricState(SkyBody::Earth, jdTt).position;
  const Matrix3 toBody = ToBodyFixed(body, jdTt - Length(sight) / kLightAuPerDay);
  const Spherical middle = DcToAd(toBody * -sight);
  return Transposed(BodyFromDisk(middle.longitudeDeg, middle.latitudeDeg));
}

/// Which pixel of a photograph shows a direction of the disk in the picture.
class LayerMap {
 public:
  LayerMap(SkyBody body, const Disk& disk, const SurfaceLayer& layer, const QImage& image)
      : fromDisk_(FrameRotationZ(layer.image.placement.rollDeg) *
                  (SeenFromEarth(body, layer.jdUt) * Transposed(disk.fromBody))),
        image_(image),
        centre_(DiskCentre(image, layer.image.placement)),
        radius_(ShorterSide(image) * layer.image.placement.radius),
        nearest_(std::cos(std::clamp(layer.rangeDeg, 0.0, 90.0) * kRadPerDeg)) {}

  /// Transparent where the photograph shows nothing.
  QRgb At(const Vector3& direction) const {
    const Vector3 seen = fromDisk_ * direction;
    if (seen.z < nearest_) return 0;
    const int x = static_cast<int>(std::floor(centre_.x() + radius_ * seen.x));
    const int y = static_cast<int>(std::floor(centre_.y() - radius_ * seen.y));
    if (!image_.valid(x, y)) return 0;
    return reinterpret_cast<const QRgb*>(image_.constScanLine(y))[x];
  }

 private:
  const Matrix3 fromDisk_;
  const QImage& image_;
  const QPointF centre_;
  const double radius_;
  const double nearest_;
};

/// The layer as it looks on the disk in an area of the picture.
QImage OnDisk(const LayerMap& map, const Disk& disk, const QRect& area) {
  QImage picture(area.size(), QImage::Format_ARGB32_Premultiplied);
  for (int row = 0; row < area.height(); ++row) {
    auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(row));
    const double y = (disk.center.y() - area.top() - row - 0.5) / disk.radius;
    for (int column = 0; column < area.width(); ++column) {
      const double x = (area.left() + column + 0.5 - disk.center.x()) / disk.radius;
      const double towards = 1.0 - x * x - y * y;
      pixels[column] = towards < 0.0 ? 0 : map.At({x, y, std::sqrt(towards)});
    }
  }
  return picture;
}

void PaintLayer(QPainter& painter, SkyBody body, const Disk& disk, const SurfaceLayer& layer) {
  const QImage image = OverlayImage(layer.image.path, disk.radius / layer.image.placement.radius);
  const QRect area = disk.Bounds().toAlignedRect() & painter.viewport();
  if (image.isNull() || area.isEmpty()) return;
  painter.save();
  painter.setClipPath(LitPart(disk));
  painter.setOpacity(layer.image.opacity);
  painter.drawImage(area.topLeft(), OnDisk(LayerMap(body, disk, layer, image), disk, area));
  painter.restore();
}

/// The shadow of a spot as large as its type tells, seen at a slant near the limb.
void PaintSpot(QPainter& painter, const Disk& disk, const SunSpot& spot) {
  constexpr double kRadiusDegPerType = 0.7;
  constexpr double kCoreOfPenumbra = 0.5;
  const Vector3 middle = AdToDc(spot.longitudeDeg, spot.latitudeDeg);
  if ((disk.fromBody * middle).z <= 0.0) return;
  const Vector3 east = AdToDc(spot.longitudeDeg + 90.0, 0.0);
  const Vector3 north = Cross(middle, east);
  const double radius = kRadiusDegPerType * std::clamp(spot.type, 1, 4) * kRadPerDeg;
  for (const auto& [part, color] : {std::pair{1.0, QColor(150, 96, 30, 190)},
                                    std::pair{kCoreOfPenumbra, QColor(40, 22, 8, 235)}}) {
    QPolygonF outline;
    const double size = radius * part;
    for (const Vector3& place : CirclePoints(middle, size * east, size * north, 24)) {
      outline << disk.At(disk.fromBody * place);
    }
    painter.setBrush(color);
    painter.drawPolygon(outline);
  }
}

}  // namespace

void PaintSurfaceOverlays(QPainter& painter, SkyBody body, const Disk& disk,
                          const BodyOverlays& overlays) {
  if (disk.radius < kSmallestDisk) return;
  for (const SurfaceLayer& layer : overlays.layers) PaintLayer(painter, body, disk, layer);
  painter.setPen(Qt::NoPen);
  for (const SunSpot& spot : overlays.spots) PaintSpot(painter, disk, spot);
}

void PaintImageOverlays(QPainter& painter, const Disk& disk, const BodyOverlays& overlays) {
  if (disk.radius < kSmallestDisk) return;
  for (const ImageOverlay& overlay : overlays.images) PaintImage(painter, disk, overlay);
}

}  // namespace vyn
