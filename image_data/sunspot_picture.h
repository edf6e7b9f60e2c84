// The drawing of the Sun's disk with the spots of a set, and which spot is under the mouse.
#pragma once

#include <vector>

#include <QPoint>
#include <QSize>

#include "image_data/sun_disk.h"

class QPainter;

namespace vyn {

struct Sunspot {
  double longitudeDeg = 0.0;
  double latitudeDeg = 0.0;
  int type = 1;        ///< 1 to 4, the larger the bigger
  QPoint screenPoint;  ///< kNoPoint when not known, or on the far side
};

/// Stands for a point that is not known or not seen; outside of every preview.
inline constexpr QPoint kNoPoint(-100, -100);

class SunspotPicture {
 public:
  /// How the Sun stands, from now on; the spots' points are to be reckoned anew.
  void SetOrientation(QSize preview, double centralLongitudeDeg, double centralLatitudeDeg);

  const SunDisk& Disk() const { return disk_; }
  std::vector<Sunspot>& Spots() { return spots_; }
  const std::vector<Sunspot>& Spots() const { return spots_; }

  /// Forgets the spots' points, so that the next paint reckons them.
  void RecalcSunSpotPt();
  /// Draws disk and spots, the selected one marked; -1 for none.
  void Paint(QPainter& painter, int selectedSpot);

  /// The first spot within 4 pixels of the point, -1 when there is none.
  int SpotAt(QPoint point) const;

 private:
  SunDisk disk_{QSize(2, 2), 0.0, 0.0};
  std::vector<Sunspot> spots_;
};

}  // namespace vyn
