#include "host/disk_painter.h"

#include <cmath>

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include "engine/sky/disk_orientation.h"
#include "host/line_builder.h"
#include "host/moon_features.h"
#include "host/scene.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

const QColor kPlainColor(92, 94, 102, 96);
constexpr double kSmallestDetailedMoon = 60.0;
const QColor kNightColor(6, 8, 16, 215);

Matrix3 DiskFrame(const Vector3& lineOfSight, const PictureAxes& axes) {
  const Vector3 z = -Normalized(lineOfSight);
  const auto& [right, up] = axes;
  return {{{{right.x, right.y, right.z}, {up.x, up.y, up.z}, {z.x, z.y, z.z}}}};
}

/// The visible part of a circle on the body, given by its middle and angular radius.
QPolygonF VisibleSpot(const Disk& disk, const MoonSpot& spot, double enlargement) {
  const double radius = spot.radiusDeg * enlargement * kRadPerDeg;
  const Vector3 middle = AdToDc(spot.longitudeDeg, spot.latitudeDeg);
  const Vector3 east = AdToDc(spot.longitudeDeg + 90.0, 0.0);
  const double size = std::sin(radius);
  QPolygonF polygon;
  for (const Vector3& place :
       CirclePoints(std::cos(radius) * middle, size * east, size * Cross(middle, east), 24)) {
    Vector3 point = disk.fromBody * place;
    // What lies beyond the limb is drawn in to it.
    if (point.z < 0.0) point = Normalized({point.x, point.y, 0.0});
    polygon << disk.At(point);
  }
  return polygon;
}

/// All dark plains of the near side as one area.
QPainterPath Plains(const Disk& disk, double enlargement) {
  QPainterPath plains;
  plains.setFillRule(Qt::WindingFill);
  for (const MoonSpot& spot : MoonSpots()) {
    if ((disk.fromBody * AdToDc(spot.longitudeDeg, spot.latitudeDeg)).z > -0.1) {
      plains.addPolygon(VisibleSpot(disk, spot, enlargement));
    }
  }
  return plains;
}

/// Bright rings for the craters that have a name.
void PaintCraters(QPainter& painter, const Disk& disk) {
  constexpr double kLargestCraterKm = 235.0;
  painter.setBrush(QColor(255, 252, 240, 70));
  painter.setPen(QPen(QColor(255, 252, 240, 150), 1.0));
  for (const SurfacePlace& feature : MoonFeatures()) {
    if (feature.diameterKm > kLargestCraterKm) continue;
    if (!disk.AtPlace(feature.longitudeDeg, feature.latitudeDeg)) continue;
    const double radiusDeg = feature.diameterKm / 2.0 / RadiusKm(SkyBody::Moon) * kDegPerRad;
    painter.drawPolygon(
        VisibleSpot(disk, {feature.longitudeDeg, feature.latitudeDeg, radiusDeg}, 1.0));
  }
  painter.setPen(Qt::NoPen);
}

/// What can be seen on a large disk only: the plains' soft edges and the craters.
void PaintDetails(QPainter& painter, const Disk& disk) {
  painter.drawPath(Plains(disk, 1.14));
  painter.drawPath(Plains(disk, 0.95));
  PaintCraters(painter, disk);
}

/// A circle of the body as a line, its far side left out.
void AddVisibleCircle(const Disk& disk, std::span<const Vector3> places, QPainterPath* path) {
  bool isDrawing = false;
  for (const Vector3& place : places) {
    const Vector3 point = disk.fromBody * place;
    if (point.z >= 0.0) {
      const QPointF at = disk.At(point);
      isDrawing ? path->lineTo(at) : path->moveTo(at);
    }
    isDrawing = point.z >= 0.0;
  }
}

/// Dark on light disks, light on dark ones.
QColor GridColor(const QColor& surface) {
  return surface.lightness() > 150 ? QColor(50, 110, 220, 190) : QColor(190, 220, 255, 150);
}

int GridStepDeg(double radius) {
  if (radius < 25.0) return 45;
  return radius < 80.0 ? 30 : radius < 400.0 ? 15 : 10;
}

}  // namespace

QPointF Disk::At(const Vector3& direction) const {
  return center + QPointF(direction.x, -direction.y) * radius;
}

std::optional<QPointF> Disk::AtPlace(double longitudeDeg, double latitudeDeg) const {
  const Vector3 direction = fromBody * AdToDc(longitudeDeg, latitudeDeg);
  if (direction.z <= 0.0) return std::nullopt;
  return At(direction);
}

Disk LitDisk(const Vector3& heliocentric, const Vector3& lineOfSight, const PictureAxes& axes,
             const QColor& color) {
  Disk disk;
  disk.light = DiskFrame(lineOfSight, axes) * Normalized(-heliocentric);
  disk.color = color;
  return disk;
}

Disk DiskOf(const SceneBody& body, double jdTt, const Vector3& lineOfSight, const PictureAxes& axes,
            const Vector3& celestialPole) {
  const Matrix3 frame = DiskFrame(lineOfSight, axes);
  Disk disk =
      LitDisk(body.heliocentric, lineOfSight, axes, QColor::fromRgb(RowOf(body.body).color));
  disk.fromBody = frame * Transposed(ToBodyFixed(body.body, jdTt));
  disk.north = frame * celestialPole;
  return disk;
}

double BrightLimbAngleDeg(const Disk& disk) {
  return degmal(std::atan2(-disk.light.x, disk.light.y) * kDegPerRad);
}

/// Half a circle towards the light, closed by the terminator: half an ellipse whose axis along the
/// light is as long as the cosine of the phase angle.
QPainterPath LitPart(const Disk& disk) {
  constexpr int kSteps = 48;
  const double along = std::hypot(disk.light.x, disk.light.y);
  const Vector3 towards =
      along > 0.0 ? Vector3{disk.light.x / along, disk.light.y / along, 0.0} : Vector3{1.0};
  const Vector3 across{-towards.y, towards.x, 0.0};
  QPolygonF area;
  for (int i = 0; i <= 2 * kSteps; ++i) {
    const double angle = (i - kSteps / 2.0) * std::numbers::pi / kSteps;
    const double x = std::cos(angle) * (i <= kSteps ? 1.0 : disk.light.z);
    area << disk.At(x * towards + std::sin(angle) * across);
  }
  QPainterPath path;
  path.addPolygon(area);
  path.closeSubpath();
  return path;
}

void PaintSun(QPainter& painter, const Disk& disk) {
  QRadialGradient shine(disk.center, disk.radius);
  shine.setColorAt(0.0, QColor(255, 255, 240));
  shine.setColorAt(0.75, disk.color);
  shine.setColorAt(1.0, QColor(255, 196, 84));
  painter.setPen(Qt::NoPen);
  painter.setBrush(shine);
  painter.drawEllipse(disk.center, disk.radius, disk.radius);
}

void PaintLitSurface(QPainter& painter, const Disk& disk) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(disk.color.darker(600));
  painter.drawEllipse(disk.center, disk.radius, disk.radius);
  painter.setBrush(disk.color.darker(130));
  painter.drawPath(LitPart(disk));
}

void PaintMoonSurface(QPainter& painter, const Disk& disk) {
  painter.save();
  painter.setPen(Qt::NoPen);
  painter.setBrush(disk.color);
  painter.drawEllipse(disk.center, disk.radius, disk.radius);
  painter.setBrush(kPlainColor);
  painter.drawPath(Plains(disk, 1.05));
  if (disk.radius > kSmallestDetailedMoon) PaintDetails(painter, disk);
  QPainterPath limb;
  limb.addEllipse(disk.center, disk.radius + 0.5, disk.radius + 0.5);
  painter.setBrush(kNightColor);
  painter.drawPath(limb.subtracted(LitPart(disk)));
  painter.restore();
}

void PaintOutline(QPainter& painter, const Disk& disk, bool hasTerminator) {
  painter.setPen(QPen(disk.color, 1.3));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(disk.Bounds());
  if (!hasTerminator) return;
  painter.setPen(QPen(disk.color, 1.0));
  painter.drawPath(LitPart(disk));
}

void PaintHalo(QPainter& painter, const Disk& disk) {
  const double radius = 4.0 * disk.radius + 24.0;
  QRadialGradient glow(disk.center, radius);
  glow.setColorAt(0.0, QColor(255, 244, 200, 210));
  glow.setColorAt(disk.radius / radius, QColor(255, 230, 150, 150));
  glow.setColorAt(0.45, QColor(255, 214, 120, 50));
  glow.setColorAt(1.0, QColor(255, 200, 100, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(glow);
  painter.drawEllipse(disk.center, radius, radius);
}

void PaintGrid(QPainter& painter, const Disk& disk) {
  constexpr double kSmallestPixels = 4.0;
  if (disk.radius < kSmallestPixels) return;
  constexpr int kPointsPerCircle = 96;
  const int stepDeg = GridStepDeg(disk.radius);
  QPainterPath path;
  for (int longitude = 0; longitude < 180; longitude += stepDeg) {
    AddVisibleCircle(
        disk, CirclePoints({}, AdToDc(longitude, 0.0), {0.0, 0.0, 1.0}, kPointsPerCircle), &path);
  }
  for (int latitude = -90 + stepDeg; latitude < 90; latitude += stepDeg) {
    const double size = std::cos(latitude * kRadPerDeg);
    AddVisibleCircle(disk,
                     CirclePoints({0.0, 0.0, std::sin(latitude * kRadPerDeg)}, {size, 0.0, 0.0},
                                  {0.0, size, 0.0}, kPointsPerCircle),
                     &path);
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(GridColor(disk.color), 1.0));
  painter.drawPath(path);
}

void PaintCompass(QPainter& painter, const Disk& disk, LabelLayer& labels) {
  static const char16_t* const kNames[] = {u"北", u"東", u"南", u"西"};
  const double northAngle = std::atan2(disk.north.y, disk.north.x);
  const LabelStyle style{QColor(140, 220, 160), LabelFont(9)};
  painter.setPen(QPen(style.color, 1.2));
  for (int i = 0; i < 4; ++i) {
    const double angle = northAngle + i * std::numbers::pi / 2.0;
    const Vector3 direction{std::cos(angle), std::sin(angle), 0.0};
    const auto at = [&](double pixels) {
      return disk.At(direction * ((disk.radius + pixels) / disk.radius));
    };
    painter.drawLine(at(2.0), at(8.0));
    labels.Add({at(15.0), 0.0, QString::fromUtf16(kNames[i]), style, LabelRank::Always, true});
  }
}

}  // namespace vyn
