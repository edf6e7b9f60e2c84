// The larger places on bodies, by name: where they are and how large.
#pragma once

#include <span>

#include <QStringView>

#include "host/sky_body.h"

namespace vyn {

/// Longitude east in the frame fixed to the body (on the Moon towards Mare Crisium) and latitude of
/// the middle. What is long and narrow has its length as diameter.
struct SurfacePlace {
  QStringView japaneseName;
  QStringView englishName;  ///< on the Moon and Mars the Latin one
  double longitudeDeg;
  double latitudeDeg;
  double diameterKm;
};

/// Those of the Earth, the Moon and Mars, the larger ones first; of other bodies none. Sources: the
/// Gazetteer of Planetary Nomenclature (IAU), rounded; of the Earth the middles of lands and seas
/// as atlases label them, a city counting as 60 km large.
std::span<const SurfacePlace> PlacesOn(SkyBody body);

}  // namespace vyn
