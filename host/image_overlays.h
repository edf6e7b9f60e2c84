// The user's photographs and sunspots that lie over the disks of the Sun, Mars and Jupiter, read
// from the core engine.
#pragma once

#include <vector>

#include <QString>

#include "host/sky_body.h"
#include "image_data/placement.h"

namespace vyn {

class ReferenceEngine;

/// A photograph as it was taken. Its roll is the direction of north in it, from up clockwise:
/// celestial north, or for a surface layer the body's own.
struct ImageOverlay {
  QString path;
  Placement placement;  ///< of the body's disk in the image
  double opacity = 1.0;
};

/// A photograph that turns with the body.
struct SurfaceLayer {
  ImageOverlay image;
  double jdUt = 0.0;       ///< when it was taken
  double rangeDeg = 90.0;  ///< how far from the middle of its disk it is used
};

struct SunSpot {
  double longitudeDeg = 0.0;  ///< heliographic
  double latitudeDeg = 0.0;
  int type = 1;  ///< 1, the smallest, to 4
};

/// What is switched on for one body, in the order in which it is painted.
struct BodyOverlays {
  std::vector<SurfaceLayer> layers;
  std::vector<SunSpot> spots;
  std::vector<ImageOverlay> images;
};

struct Overlays {
  BodyOverlays sun;
  BodyOverlays mars;
  BodyOverlays jupiter;

  /// Null for the bodies that carry none.
  const BodyOverlays* Of(SkyBody body) const;
};

Overlays ReadOverlays(ReferenceEngine& engine);

}  // namespace vyn
