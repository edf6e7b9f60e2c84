#include "host/solar_painter.h"

#include "host/solar_bodies.h"
#include "host/solar_canvas.h"
#include "host/solar_lines.h"
#include "host/solar_planes.h"
#include "host/solar_regions.h"
#include "host/solar_satellites.h"
#include "host/solar_small_bodies.h"
#include "host/vector_registers.h"

namespace vyn {

void PaintSolarSystem(QPainter& painter, const Frame& frame) {
  SolarCanvas canvas(painter, frame);
  painter.fillRect(QRectF(QPointF(), frame.size), QColor(4, 6, 14));
  ClearVectorRegisters();
  PaintEclipticGrid(canvas);
  PaintSolarRegions(canvas);
  PaintCosmicScale(canvas);
  PaintOrbitalPlanes(canvas);
  PaintSolarOrbits(canvas);
  PaintSolarSatelliteOrbits(canvas);
  PaintSolarSmallBodies(canvas);
  PaintSolarBodies(canvas);
  PaintSolarMotion(canvas);
  PaintSolarLagrangianMarks(canvas);
  canvas.labels.Paint(painter);
}

}  // namespace vyn
