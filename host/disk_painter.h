// Paints a sphere's disk: its lit surface, outline, grid and compass.
#pragma once

#include <optional>

#include <QColor>
#include <QPointF>
#include <QRectF>

#include "host/labels.h"
#include "host/sky_projection.h"
#include "siblings/astro/direction_cosines.h"

class QPainter;
class QPainterPath;

namespace vyn {

struct SceneBody;

/// A disk in the picture. Directions "in the disk" are told with x to the right, y up and z towards
/// the observer.
struct Disk {
  QPointF center;
  double radius = 0.0;  ///< pixels
  Matrix3 fromBody;     ///< from the frame fixed to the body to the disk
  Vector3 light;        ///< towards the Sun, in the disk
  Vector3 north;        ///< towards the celestial pole, in the disk
  QColor color;

  QRectF Bounds() const {
    return {center.x() - radius, center.y() - radius, 2 * radius, 2 * radius};
  }
  /// Where a direction in the disk is shown.
  QPointF At(const Vector3& direction) const;
  /// Where a place on the body is shown; nothing for one on the far side.
  std::optional<QPointF> AtPlace(double longitudeDeg, double latitudeDeg) const;
};

/// The disk of a body seen along `lineOfSight` (any length), with the axes of the picture there.
/// All in the ecliptic of J2000. `center` and `radius` are left to the caller.
Disk DiskOf(const SceneBody& body, double jdTt, const Vector3& lineOfSight, const PictureAxes& axes,
            const Vector3& celestialPole);

/// The same of a body of which no more is known: how it turns is left out.
Disk LitDisk(const Vector3& heliocentric, const Vector3& lineOfSight, const PictureAxes& axes,
             const QColor& color);

/// The position angle of the bright limb's middle in the picture: from up to the left, in degrees,
/// [0, 360).
double BrightLimbAngleDeg(const Disk& disk);

/// The lit part of the disk as an area of the picture.
QPainterPath LitPart(const Disk& disk);

/// A surface that shines by itself.
void PaintSun(QPainter& painter, const Disk& disk);
/// A surface that the Sun lights; the night side stays faintly visible.
void PaintLitSurface(QPainter& painter, const Disk& disk);
/// The same with the Moon's dark plains.
void PaintMoonSurface(QPainter& painter, const Disk& disk);
/// Limb and, for a body that is lit, the terminator.
void PaintOutline(QPainter& painter, const Disk& disk, bool hasTerminator);
/// Light around the Sun's disk.
void PaintHalo(QPainter& painter, const Disk& disk);
/// Meridians and parallels of the body; as many as the disk has room for, on a tiny one none.
void PaintGrid(QPainter& painter, const Disk& disk);
/// The directions of the sky around the disk.
void PaintCompass(QPainter& painter, const Disk& disk, LabelLayer& labels);

}  // namespace vyn
