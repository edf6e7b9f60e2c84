// The tails of comets as lines in space. Places are relative to the Sun, in au, in the ecliptic of
// J2000; times are terrestrial.
//
// Dust: each grain leaves the nucleus without speed of its own and then moves in the Sun's gravity
// lessened by the pressure of its light, mu (1 - beta). Grains of one beta lie on a syndyne, those
// that left at one moment on a synchrone. Source: Finson and Probstein 1968, ApJ 154, 327.
// Ions: the tail points where the solar wind blows as seen from the nucleus, nearly away from the
// Sun. Source: Biermann 1951, Z. Astrophys. 29, 274; Brandt 1968, ARA&A 6, 267 (400 km/s).
#pragma once

#include <vector>

#include "engine/sky/kepler.h"

namespace vyn {

/// Which grains make a dust tail up.
struct DustTailGrains {
  double emissionSpanDays = 30.0;  ///< the oldest left so long ago; 0 or greater
  double betaMin = 0.2;            ///< light pressure over gravity; 0 or greater
  double betaMax = 1.0;
};

/// Where the grain with this beta is that left the nucleus `ageDays` ago; any beta from 0 on.
Vector3 GrainPlace(const OrbitElements& orbit, double jdTt, double ageDays, double beta);

/// Rows of places, all equally long: the first row is the syndyne of betaMin, the last that of
/// betaMax; in each the first place is the nucleus, the last the oldest grain.
using TailSheet = std::vector<std::vector<Vector3>>;
TailSheet DustTail(const OrbitElements& orbit, double jdTt, const DustTailGrains& grains);

/// An ion tail: left edge, axis and right edge. Ions go 100 km/s (Brandt and Chapman 2004,
/// "Introduction to Comets"); the tail widens by 1.5 degrees to either side.
TailSheet IonTail(const OrbitElements& orbit, double jdTt, double emissionSpanDays);

/// The edge of a sheet: once round, back at the nucleus.
std::vector<Vector3> EdgeOf(const TailSheet& sheet);

/// A span meant for a comet at 1 au, adjusted to its distance from the Sun as the times of motion
/// about it are: by the 1.5th power.
double AdjustedSpanDays(double spanDays, double sunDistanceAu);

}  // namespace vyn
