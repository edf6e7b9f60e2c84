// How bright bodies are: visual magnitudes. NaN in, NaN out.
#pragma once

#include "engine/sky/bodies.h"

namespace vyn {

/// What a body's brightness depends on.
struct Illumination {
  double sunDistanceAu = 1.0;
  double observerDistanceAu = 1.0;
  double phaseAngleDeg = 0.0;  ///< Sun - body - observer, 0 to 180
};

/// Of a body at these places relative to the Sun and to the observer.
Illumination IlluminationOf(const Vector3& heliocentric, const Vector3& fromObserver);

/// The part of the disk that is lit, 0 to 1.
double IlluminatedFraction(double phaseAngleDeg);

/// The magnitude of a planet. `ringTiltDeg` is the latitude of the observer above Saturn's ring
/// plane (either sign); `year` matters to Neptune, which brightened until 2000.
/// Source: Mallama and Hilton 2018, Astronomy and Computing 25, 10; without the parts for Mars'
/// and Uranus' rotation and seasons, which are below 0.1. The Sun has -26.74 at 1 au; the Moon
/// Allen, "Astrophysical Quantities", paragraph 66.
double MagnitudeOf(Body body, const Illumination& light, double ringTiltDeg = 0.0,
                   double year = 2000.0);

/// A comet's total magnitude: m = H + 5 log(observer distance) + 2.5 K log(sun distance).
double CometMagnitude(double absoluteMagnitude, double coefficient, const Illumination& light);

/// A minor planet's magnitude in the H, G system. Source: Bowell et al. 1989, "Asteroids II".
double MinorPlanetMagnitude(double absoluteMagnitude, double slope, const Illumination& light);

/// The diameter of a disk in degrees.
double ApparentDiameterDeg(double radiusKm, double distanceAu);

}  // namespace vyn
