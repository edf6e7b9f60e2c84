// The Sun, the Moon and the planets: where they are, and what they are.
//
// Places and velocities are in au and au / day, in the mean ecliptic and equinox of J2000, at
// Julian dates in terrestrial time. Sources: planets Simon et al. 1994 (ERFA's eraPlan94, some
// arc seconds between the years 1000 and 3000), Earth eraEpv00, Moon Meeus 1998 (eraMoon98, 10").
#pragma once

#include <array>
#include <string_view>

#include "engine/sky/kepler.h"
#include "siblings/astro/vector3.h"

namespace vyn {

inline constexpr double kKmPerAu = 149597870.7;
inline constexpr double kEarthRadiusKm = 6378.137;
inline constexpr double kEarthFlattening = 1.0 / 298.257223563;
inline constexpr double kLightAuPerDay = 173.1446326846693;

/// The bodies by the numbers that the core engine gives them.
enum class Body {
  Sun = 0,
  Moon = 1,
  Mercury = 2,
  Venus = 3,
  Earth = 4,
  Mars = 5,
  Jupiter = 6,
  Saturn = 7,
  Uranus = 8,
  Neptune = 9,
};

inline constexpr int kBodyCount = 10;
inline constexpr std::array kPlanets = {Body::Mercury, Body::Venus,  Body::Earth,  Body::Mars,
                                        Body::Jupiter, Body::Saturn, Body::Uranus, Body::Neptune};

struct BodyFacts {
  Body body;
  std::string_view name;
  double radiusKm;    ///< equatorial
  double massInSuns;  ///< of a planet with its satellites, except the Earth's
  double flattening;
};

/// Radii: IAU working group on cartographic coordinates 2015 (Archinal et al. 2018). Masses: IAU
/// 2009 system of astronomical constants.
const BodyFacts& FactsOf(Body body);

/// Place and velocity relative to the Sun's centre.
StateVector HeliocentricState(Body body, double jdTt);

/// Place and velocity of the Moon relative to the Earth's centre.
StateVector GeocentricMoon(double jdTt);

/// The orbit on which the body moves at that moment: a planet's about the Sun (of the Earth, that
/// of the Earth-Moon barycentre), the Moon's about the Earth. The Sun has none: NaN.
OrbitElements OrbitOf(Body body, double jdTt);

/// Rotates a vector from the ecliptic to the mean equator of J2000, and back by its transpose.
/// Obliquity 84381.448".
const Matrix3& EquatorFromEcliptic();

/// The direction in which a body is seen: where light shows it, and turned by the observer's own
/// motion. Both vectors are of the body relative to the observer; the result keeps the distance
/// about, and is good to the square of the speed over that of light.
Vector3 ApparentPlace(const Vector3& position, const Vector3& velocity);

}  // namespace vyn
