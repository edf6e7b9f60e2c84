// Io, Europa, Ganymede and Callisto. Source: Lieske 1998, A&AS 129, 205 (theory E5) as given by
// Meeus, "Astronomical Algorithms" (2nd ed.), chapter 44, without terms below 0.005 degrees in
// longitude, 0.0001 in latitude and 0.0003 in distance.
#include <array>
#include <cmath>
#include <span>

#include "engine/sky/satellites_theory.h"
#include "siblings/astro/angles.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {
namespace {

/// The theory's unit of length, Jupiter's radius.
constexpr double kJupiterRadiusKm = 71398.0;
constexpr double kEpochJd = 2443000.5;

/// What the theory's terms depend on, in degrees: the mean longitudes l of the four, the longitudes
/// of their pericentres p and nodes o, the node of Jupiter's equator on its orbit, Jupiter's
/// perihelion and mean anomaly, and the phase of the longitudes' libration.
enum Argument {
  L1,
  L2,
  L3,
  L4,
  P1,
  P2,
  P3,
  P4,
  O1,
  O2,
  O3,
  O4,
  EquatorNode,
  Perihelion,
  Anomaly,
  Libration,
  kArgumentCount
};
using Arguments = std::array<double, kArgumentCount>;

struct Linear {
  double atEpochDeg;
  double ratePerDayDeg;
};

// clang-format off
constexpr Linear kArguments[kArgumentCount] = {
  {106.07719, 203.48895579},  {175.73161, 101.374724735},
  {120.55883, 50.317609207},  { 84.44459,  21.571071177},
  { 97.0881,   0.16138586},   {154.8663,    0.04726307},
  {188.184,    0.00712734},   {335.2868,    0.00184},
  {312.3346,  -0.13279386},   {100.4411,   -0.03263064},
  {119.1942,  -0.00717703},   {322.6186,   -0.00175934},
  {316.5182,  -0.00000208},   { 13.469942,  0.0},
  { 30.23756,  0.0830925701}, {199.6766,    0.1737919},
};

struct Term {
  double amplitude;
  std::array<signed char, kArgumentCount> multiples;
};

// Longitude in degrees, by the sine of the sum of   l          p           o        node Pi  G  Phi
constexpr Term kIoLongitude[] = {
  {   0.47259, { 2, -2,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {  -0.03478, { 0,  0,  0,  0,  0,  0,  1, -1,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.01081, { 0,  1, -2,  0,  0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.00738, { 0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  1}},
  {   0.00713, { 0,  1, -2,  0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {  -0.00674, { 0,  0,  0,  0,  1,  0,  1,  0,  0,  0,  0,  0,  0, -2, -2,  0}},
  {   0.00666, { 0,  1, -2,  0,  0,  0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0}},
};
constexpr Term kEuropaLongitude[] = {
  {   1.06476, { 0,  2, -2,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.04256, { 1, -2,  0,  0,  0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.03581, { 0,  1,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.02395, { 1, -2,  0,  0,  0,  0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.01984, { 0,  1,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0}},
  {  -0.01778, { 0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  1}},
  {   0.01654, { 0,  1,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.01334, { 0,  1, -2,  0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.01294, { 0,  0,  0,  0,  0,  0,  1, -1,  0,  0,  0,  0,  0,  0,  0,  0}},
  {  -0.01142, { 0,  1, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {  -0.01057, { 0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  1,  0}},
  {  -0.00775, { 0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  2, -2,  0,  0}},
  {   0.00524, { 2, -2,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
};
constexpr Term kGanymedeLongitude[] = {
  {   0.16490, { 0,  0,  1,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.09081, { 0,  0,  1,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0}},
  {  -0.06907, { 0,  1, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.03784, { 0,  0,  0,  0,  0,  0,  1, -1,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.01846, { 0,  0,  2, -2,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {  -0.01340, { 0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  1,  0}},
  {  -0.01014, { 0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  2, -2,  0,  0}},
  {   0.00704, { 0,  1, -2,  0,  0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {  -0.00620, { 0,  1, -2,  0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {  -0.00541, { 0,  0,  1, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
};
constexpr Term kCallistoLongitude[] = {
  {   0.84287, { 0,  0,  0,  1,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.03431, { 0,  0,  0,  0,  0,  0, -1,  1,  0,  0,  0,  0,  0,  0,  0,  0}},
  {  -0.03305, { 0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  2, -2,  0,  0}},
  {  -0.03211, { 0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  1,  0}},
  {  -0.01862, { 0,  0,  0,  1,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {   0.01186, { 0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0, -1,  1,  0,  0,  0}},
  {   0.00623, { 0,  0,  0,  1,  0,  0,  0,  1,  0,  0,  0,  0,  0, -2, -2,  0}},
};

// Tangent of the latitude, by the sine; here the l are the true longitudes.
constexpr Term kIoLatitude[] = {
  { 0.0006393, { 1,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0}},
  { 0.0001825, { 1,  0,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0}},
};
constexpr Term kEuropaLatitude[] = {
  { 0.0081004, { 0,  1,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0}},
  { 0.0004512, { 0,  1,  0,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0}},
  {-0.0003284, { 0,  1,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0}},
  { 0.0001160, { 0,  1,  0,  0,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0}},
};
constexpr Term kGanymedeLatitude[] = {
  { 0.0032402, { 0,  0,  1,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0}},
  {-0.0016911, { 0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0}},
  { 0.0006847, { 0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0}},
  {-0.0002797, { 0,  0,  1,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0}},
};
constexpr Term kCallistoLatitude[] = {
  {-0.0076579, { 0,  0,  0,  1,  0,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0}},
  { 0.0044134, { 0,  0,  0,  1,  0,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0}},
  {-0.0005112, { 0,  0,  0,  1,  0,  0,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0}},
};

// Distance as a part of the mean, by the cosine.
constexpr Term kIoDistance[] = {
  {-0.0041339, { 2, -2,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
};
constexpr Term kEuropaDistance[] = {
  { 0.0093848, { 1, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {-0.0003116, { 0,  1,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
};
constexpr Term kGanymedeDistance[] = {
  {-0.0014388, { 0,  0,  1,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
  {-0.0007917, { 0,  0,  1,  0,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0}},
  { 0.0006342, { 0,  1, -1,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0,  0}},
};
constexpr Term kCallistoDistance[] = {
  {-0.0073546, { 0,  0,  0,  1,  0,  0,  0, -1,  0,  0,  0,  0,  0,  0,  0,  0}},
};

struct Galilean {
  double meanDistance;  ///< in Jupiter's radii
  std::span<const Term> longitude;
  std::span<const Term> latitude;
  std::span<const Term> distance;
};

constexpr Galilean kGalileans[] = {
  { 5.90569, kIoLongitude,       kIoLatitude,       kIoDistance},
  { 9.39657, kEuropaLongitude,   kEuropaLatitude,   kEuropaDistance},
  {14.98832, kGanymedeLongitude, kGanymedeLatitude, kGanymedeDistance},
  {26.36273, kCallistoLongitude, kCallistoLatitude, kCallistoDistance},
};
// clang-format on

Arguments ArgumentsAt(double days) {
  Arguments arguments;
  for (int i = 0; i < kArgumentCount; ++i) {
    arguments[i] = kArguments[i].atEpochDeg + kArguments[i].ratePerDayDeg * days;
  }
  // Saturn's pull on Jupiter.
  arguments[Anomaly] +=
      0.33033 * SinDeg(163.679 + 0.0010512 * days) + 0.03439 * SinDeg(34.486 - 0.0161731 * days);
  return arguments;
}

double Sum(std::span<const Term> terms, const Arguments& arguments, double (*function)(double)) {
  double sum = 0.0;
  for (const Term& term : terms) {
    double angle = 0.0;
    for (int i = 0; i < kArgumentCount; ++i) angle += term.multiples[i] * arguments[i];
    sum += term.amplitude * function(angle);
  }
  return sum;
}

/// From Jupiter's equator, x towards its ascending node on Jupiter's orbit, to the ecliptic of
/// J2000. Orbit: Meeus, table 31.B.
Matrix3 EclipticFromEquator(double equatorNodeB1950Deg, double jdTt) {
  constexpr double kPrecessionFromB1950Deg = 0.69841;
  const double centuries = (jdTt - kJ2000) / 36525.0;
  const double orbitNode = 100.464407 + 0.1767232 * centuries;
  const double orbitInclination = 1.303267 - 0.0019877 * centuries;
  const double equatorInclination = 3.120262 + 0.0006 * (centuries + 1.0);
  const double equatorNode = equatorNodeB1950Deg + kPrecessionFromB1950Deg;
  return FromPlane(orbitNode, orbitInclination) *
         FromPlane(equatorNode - orbitNode, equatorInclination);
}

}  // namespace

Vector3 GalileanPositionKm(int number, double jdTt) {
  const Galilean& galilean = kGalileans[number - 1];
  const Arguments means = ArgumentsAt(jdTt - kEpochJd);
  Arguments trues = means;
  double& longitude = trues[L1 + number - 1];
  longitude += Sum(galilean.longitude, means, SinDeg);
  const double latitude = std::atan(Sum(galilean.latitude, trues, SinDeg)) * kDegPerRad;
  const double distance =
      galilean.meanDistance * (1.0 + Sum(galilean.distance, means, CosDeg)) * kJupiterRadiusKm;
  return EclipticFromEquator(means[EquatorNode], jdTt) *
         (AdToDc(longitude - means[EquatorNode], latitude) * distance);
}

}  // namespace vyn
