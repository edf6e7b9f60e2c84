// The bodies that the demo planetarium draws one by one, whatever the sky model keeps them under:
// the Sun, the Moon, the planets and the dwarf planets.
//
// Frames, units and times as in engine/sky/bodies.h.
#pragma once

#include <array>
#include <optional>

#include "engine/sky/bodies.h"
#include "engine/sky/lagrangian.h"
#include "engine/sky/magnitudes.h"
#include "engine/sky/satellite_table.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {

/// Those with a number of the core engine have it here too.
enum class SkyBody {
  Sun,
  Moon,
  Mercury,
  Venus,
  Earth,
  Mars,
  Jupiter,
  Saturn,
  Uranus,
  Neptune,
  Ceres,
  Pluto,
  Haumea,
  Makemake,
  Eris,
};

inline constexpr int kSkyBodyCount = 15;

/// What the dialogs of planets and dwarf planets govern: all that go round the Sun by themselves.
inline constexpr std::array kSunCircling = {
    SkyBody::Mercury, SkyBody::Venus,    SkyBody::Earth,   SkyBody::Mars,  SkyBody::Jupiter,
    SkyBody::Saturn,  SkyBody::Uranus,   SkyBody::Neptune, SkyBody::Ceres, SkyBody::Pluto,
    SkyBody::Haumea,  SkyBody::Makemake, SkyBody::Eris};

constexpr bool IsDwarfPlanet(SkyBody body) { return body >= SkyBody::Ceres; }
constexpr bool IsSunCircling(SkyBody body) { return body >= SkyBody::Mercury; }

/// The body whose satellites the sky model keeps under this name.
SkyBody BodyOf(Primary primary);

/// The shape with the two axes of the equator taken as one.
double RadiusKm(SkyBody body);

/// Place and velocity relative to the Sun's centre.
StateVector HeliocentricState(SkyBody body, double jdTt);

/// As of Body; the dwarf planets go round the Sun.
OrbitElements OrbitOf(SkyBody body, double jdTt);
LagrangianPoints LagrangianPointsOf(SkyBody body, double jdTt);

/// `towardsObserver` is told in the frame fixed to the body (Saturn's rings brighten it).
double MagnitudeOf(SkyBody body, const Illumination& light, const Vector3& towardsObserver,
                   double jdTt);

/// As of Body. Sources for the dwarf planets: Ceres and Pluto Archinal et al. 2018; Haumea's axis
/// Ortiz et al. 2017 (Nature 550, 219); Eris' is taken as that of Dysnomia's orbit. Makemake's is
/// not known: that of the ecliptic. The longitudes of these three count from a meridian of no
/// meaning.
Matrix3 ToBodyFixed(SkyBody body, double jdTt);

}  // namespace vyn
