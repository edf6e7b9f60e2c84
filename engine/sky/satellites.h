// Where the satellites of the planets and dwarf planets are.
//
// Places are relative to the centre of the body they go round, in au, in the ecliptic and equinox
// of J2000, at Julian dates in terrestrial time when the light leaves. Sources and how far each is
// off along its orbit:
//   Moon                       ERFA's eraMoon98; 10"
//   Phobos, Deimos             Sinclair 1989, A&A 220, 321; some 0.1 degrees
//   Io to Callisto             Lieske's theory E5 with its large terms, from Meeus, "Astronomical
//                              Algorithms" (2nd ed.), chapter 44; 0.05 degrees
//   Mimas to Iapetus           Dourneau's theory, from Meeus, chapter 46; some 0.01 degrees
//   the five large of Uranus, Triton, Charon and the inner ones
//                              mean elements (satellite_table.h); 0.5 degrees, and some degrees
//                              where two bodies tug at each other (Janus, Prometheus, Naiad ...)
//   the irregular ones         mean elements: the orbit's size, shape and plane. The Sun pulls them
//                              off by tens of degrees along it, within years for the faint ones
//   Namaka, Hi'iaka            after 2012 the plane only
#pragma once

#include <vector>

#include "engine/sky/bodies.h"
#include "engine/sky/magnitudes.h"
#include "engine/sky/satellite_table.h"

namespace vyn {

/// The place of satellite `number` of the body, counting from 1. NaN where there is no such
/// satellite or its orbit is not known.
Vector3 SatellitePosition(Primary primary, int number, double jdTt);

/// The orbit as it is at that moment: `count` points (at least 2), the last being the first.
/// Empty where SatellitePosition is NaN.
std::vector<Vector3> SatelliteOrbitPolyline(Primary primary, int number, double jdTt, int count);

/// The sidereal period in days; NaN where the orbit is not known.
double SatellitePeriodDays(const Satellite& satellite);

/// The magnitude at these distances, as if fully lit; NaN where it is not known.
double SatelliteMagnitude(const Satellite& satellite, const Illumination& light);

/// Place and velocity of the body itself relative to the Sun, whether planet or dwarf planet.
StateVector HeliocentricState(Primary primary, double jdTt);

}  // namespace vyn
