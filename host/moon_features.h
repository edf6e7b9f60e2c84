// The Moon's larger features, and its dark plains as spots to paint.
#pragma once

#include <span>

#include "host/surface_places.h"

namespace vyn {

/// A dark part of a plain: a circle on the Moon.
struct MoonSpot {
  double longitudeDeg;
  double latitudeDeg;
  double radiusDeg;
};

/// Source: Gazetteer of Planetary Nomenclature (IAU), rounded; the larger features first.
std::span<const SurfacePlace> MoonFeatures();

/// Drawn after maps by eye, in circles: good for telling one plain from another, not for measuring.
std::span<const MoonSpot> MoonSpots();

}  // namespace vyn
