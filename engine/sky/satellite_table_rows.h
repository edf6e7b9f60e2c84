// The rows of the satellite table; for the satellite_table files alone.
#pragma once

#include <limits>

#include "engine/sky/satellite_table.h"

namespace vyn::satellite_rows {

inline constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();
inline constexpr MeanElements kNoOrbit{};
/// The ecliptic of J2000, and the equator, whose angles count from the equinox.
inline constexpr ReferencePlane kEcliptic{270.0, 90.0 - 84381.448 / 3600.0};
inline constexpr ReferencePlane kEarthEquator{270.0, 90.0};

inline constexpr int kEarthCount = 1;
inline constexpr int kMarsCount = 2;
inline constexpr int kJupiterCount = 115;
inline constexpr int kSaturnCount = 292;
inline constexpr int kUranusCount = 29;
inline constexpr int kNeptuneCount = 16;
inline constexpr int kPlutoCount = 5;
inline constexpr int kErisCount = 1;
inline constexpr int kMakemakeCount = 1;
inline constexpr int kHaumeaCount = 2;

extern const std::array<Satellite, kEarthCount> kEarth;
extern const std::array<Satellite, kMarsCount> kMars;
extern const std::array<Satellite, kJupiterCount> kJupiter;
extern const std::array<Satellite, kSaturnCount> kSaturn;
extern const std::array<Satellite, kUranusCount> kUranus;
extern const std::array<Satellite, kNeptuneCount> kNeptune;
extern const std::array<Satellite, kPlutoCount> kPluto;
extern const std::array<Satellite, kErisCount> kEris;
extern const std::array<Satellite, kMakemakeCount> kMakemake;
extern const std::array<Satellite, kHaumeaCount> kHaumea;

}  // namespace vyn::satellite_rows
