// The known natural satellites: their names, numbers, sizes and mean orbits.
//
// Orbits and absolute magnitudes are those of the Jet Propulsion Laboratory's tables "Planetary
// Satellite Mean Elements" and "Planetary Satellite Physical Parameters" (ssd.jpl.nasa.gov/sats):
// the edition of 2021 for what was known then, that of 2026 for the later discoveries. Charon's
// reference plane is that of the IAU working group on cartographic coordinates 2009; Haumea's
// satellites are from Ragozzine and Brown 2009 (AJ 137, 4766), Dysnomia from Holler et al. 2021
// (Icarus 355, 114130). Of S/2009 S 1 and Makemake's satellite no complete orbit is published, and
// the one tabulated for S/2023 S 38 (eccentricity 0.909, the angles of the row above it) cannot be
// right: these three have none here.
#pragma once

#include <array>
#include <cmath>
#include <span>
#include <string>
#include <string_view>

namespace vyn {

/// The bodies that may have satellites, in the order in which they are listed to the user.
enum class Primary {
  Mercury,
  Venus,
  Earth,
  Mars,
  Jupiter,
  Saturn,
  Uranus,
  Neptune,
  Pluto,
  Eris,
  Ceres,
  Makemake,
  Haumea,
};

inline constexpr std::array kPrimaries = {
    Primary::Mercury, Primary::Venus,    Primary::Earth,   Primary::Mars,  Primary::Jupiter,
    Primary::Saturn,  Primary::Uranus,   Primary::Neptune, Primary::Pluto, Primary::Eris,
    Primary::Ceres,   Primary::Makemake, Primary::Haumea};

/// A plane by its pole on the J2000 equator. Angles in it count from where it crosses that equator
/// northwards, 90 degrees ahead of the pole's right ascension.
struct ReferencePlane {
  double poleRightAscensionDeg = 0.0;
  double poleDeclinationDeg = 0.0;
};

/// An ellipse that turns evenly in its plane, and whose plane turns evenly about the pole of the
/// reference plane. The pericentre goes ahead along the orbit; the node goes back for a direct
/// orbit and ahead for a retrograde one.
struct MeanElements {
  double semiMajorAxisKm = 0.0;  ///< 0 for an orbit that is not known
  double eccentricity = 0.0;
  double inclinationDeg = 0.0;
  double ascendingNodeDeg = 0.0;
  double argumentOfPericentreDeg = 0.0;
  double meanAnomalyDeg = 0.0;
  double motionDegPerDay = 0.0;  ///< of the mean longitude: a turn is a sidereal period
  double pericentreDegPerYear = 0.0;
  double nodeDegPerYear = 0.0;  ///< without sign
  ReferencePlane plane;
  double epochJd = 0.0;  ///< in terrestrial time
};

struct Satellite {
  std::string_view name;             ///< or the designation of one without name
  std::u16string_view japaneseName;  ///< empty where none is established
  double absoluteMagnitude = 0.0;    ///< at 1 au from Sun and observer, fully lit; NaN if not known
  double radiusKm = 0.0;             ///< mean; NaN if not known
  MeanElements mean;

  bool HasOrbit() const { return mean.semiMajorAxisKm > 0.0; }
};

/// The satellites of a body by number, number 1 first: those with a Roman numeral in its order,
/// then the others.
std::span<const Satellite> SatellitesOf(Primary primary);

/// The Roman numeral of a satellite by its number from 1; empty for one that has none yet.
std::string SatelliteNumeral(Primary primary, int number);

}  // namespace vyn
