#include "host/sky_painter.h"

#include "host/sky_background.h"
#include "host/sky_bodies.h"
#include "host/sky_canvas.h"
#include "host/sky_marks.h"

namespace vyn {

void PaintSky(QPainter& painter, const Frame& frame) {
  SkyCanvas canvas(painter, frame);
  PaintSkyBackground(canvas);
  PaintSkyGrid(canvas);
  PaintSkyOrbits(canvas);
  PaintSkyComets(canvas);
  PaintSkyBodies(canvas);
  PaintSkyMotion(canvas);
  PaintEarthShadow(canvas);
  PaintSkyLagrangianMarks(canvas);
  PaintGround(canvas);
  canvas.labels.Paint(painter);
}

}  // namespace vyn
