// The dwarf planets: where they are, and what they are.
//
// Frames and times as in bodies.h. Sources: Ceres, Haumea, Makemake and Eris from the elements that
// osculate at 2026 June 9.0 TDB (JD 2461200.5), Jet Propulsion Laboratory's Small-Body Database;
// Pluto from the mean elements of Standish, "Keplerian elements for approximate positions of the
// major planets" (JPL), made for the years 1800 to 2050.
// How far off: Ceres 0.01 degrees a year from that date, 1 degree eight years and 4 degrees sixty
// years away; Pluto 0.02 degrees in its years; the others 0.02 degrees six years away.
#pragma once

#include <array>
#include <string_view>

#include "engine/sky/kepler.h"
#include "engine/sky/magnitudes.h"

namespace vyn {

/// In the order of their dialog.
enum class DwarfPlanet { Ceres, Pluto, Haumea, Makemake, Eris };

inline constexpr int kDwarfPlanetCount = 5;
inline constexpr std::array kDwarfPlanets = {DwarfPlanet::Ceres, DwarfPlanet::Pluto,
                                             DwarfPlanet::Haumea, DwarfPlanet::Makemake,
                                             DwarfPlanet::Eris};

struct DwarfPlanetFacts {
  DwarfPlanet body;
  std::string_view name;
  double radiusKm;           ///< mean
  double massInSuns;         ///< with the satellites
  double absoluteMagnitude;  ///< H
  double slope;              ///< G
};

/// Radii: Ceres and Pluto Archinal et al. 2018, Haumea's the mean of Ragozzine and Brown 2009,
/// Makemake Ortiz et al. 2012, Eris Sicardy et al. 2011. Masses: from the satellites' orbits and,
/// for Ceres, Dawn; Makemake's is estimated. Magnitudes: the Small-Body Database, Pluto the
/// Astronomical Almanac.
const DwarfPlanetFacts& FactsOf(DwarfPlanet body);

/// The orbit about the Sun on which the body is taken to move at that moment.
OrbitElements OrbitOf(DwarfPlanet body, double jdTt);

/// Place and velocity relative to the Sun's centre.
StateVector HeliocentricState(DwarfPlanet body, double jdTt);

double MagnitudeOf(DwarfPlanet body, const Illumination& light);

}  // namespace vyn
