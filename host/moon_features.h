// The Moon's larger features: their names, and dark plains as spots to paint.
#pragma once

#include <span>

#include <QStringView>

namespace vyn {

/// Selenographic longitude (east, towards Mare Crisium) and latitude of the middle, and diameter.
struct MoonFeature {
  QStringView japaneseName;
  QStringView latinName;
  double longitudeDeg;
  double latitudeDeg;
  double diameterKm;
};

/// A dark part of a plain: a circle on the Moon.
struct MoonSpot {
  double longitudeDeg;
  double latitudeDeg;
  double radiusDeg;
};

/// Source: Gazetteer of Planetary Nomenclature (IAU), rounded; the larger features first.
std::span<const MoonFeature> MoonFeatures();

/// Drawn after maps by eye, in circles: good for telling one plain from another, not for measuring.
std::span<const MoonSpot> MoonSpots();

}  // namespace vyn
