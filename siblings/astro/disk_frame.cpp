#include "siblings/astro/disk_frame.h"

#include "siblings/astro/direction_cosines.h"

namespace vyn {

Matrix3 BodyFromDisk(double centralLongitudeDeg, double centralLatitudeDeg) {
  // Disk z, x, y become the body frame's x, y, z before the two turns.
  const Matrix3 axes{{{{0.0, 0.0, 1.0}, {1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}}}};
  return FrameRotationZ(-centralLongitudeDeg) * FrameRotationY(centralLatitudeDeg) * axes;
}

}  // namespace vyn
