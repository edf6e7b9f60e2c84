// The brightness of the zodiacal light and of the counterglow, and its picture.
#pragma once

#include <QImage>

#include "host/sky_projection.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {

/// The two parts of the light that interplanetary dust scatters, in stars of tenth magnitude to the
/// square degree. Their sum is the brightness observed.
struct DustLight {
  double zodiacalLight = 0.0;
  double counterGlow = 0.0;  ///< what the sky gains again opposite to the Sun
};

/// Of a direction so far from the Sun along the ecliptic and so far from the ecliptic, in degrees
/// of either sign. Nearer to the Sun than the table reaches its nearest value is taken. Source:
/// Leinert et al. 1998, A&AS 127, 1, table 16, interpolated; the counterglow is what rises above
/// the darkest sky on the way from the Sun to the point opposite.
DustLight DustLightAt(double fromSunLongitudeDeg, double latitudeDeg);

/// Both glows (as switched) as a picture to be drawn over the whole sky. It is coarse, because the
/// light is smooth. `toEcliptic` leads from the frame of the view to the ecliptic.
QImage DustLightImage(const SkyProjection& projection, const Matrix3& toEcliptic,
                      double sunLongitudeDeg, bool zodiacalLight, bool counterGlow);

}  // namespace vyn
