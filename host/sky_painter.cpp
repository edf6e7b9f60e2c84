#include "host/sky_painter.h"

#include "host/sky_background.h"
#include "host/sky_bodies.h"
#include "host/sky_canvas.h"
#include "host/sky_marks.h"
#include "host/sky_small_bodies.h"

namespace vyn {

void PaintSky(QPainter& painter, const Frame& frame) {
  SkyCanvas canvas(painter, frame);
  PaintSkyBackground(canvas);
  PaintSkyGrid(canvas);
  PaintSkyOrbits(canvas);
  PaintSkySmallBodies(canvas);
  PaintSkyBodies(canvas);
  PaintSkyMotion(canvas);
  PaintEarthShadow(canvas);
  PaintSkyLagrangianMarks(canvas);
  PaintGround(canvas);
  canvas.labels.Paint(painter);
}

}  // namespace vyn
