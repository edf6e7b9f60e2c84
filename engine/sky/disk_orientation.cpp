#include "engine/sky/disk_orientation.h"

#include <cmath>

#include "engine/sky/observer.h"
#include "engine/sky/time_scales.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

constexpr double kJ2000 = 2451545.0;

/// Right ascension and declination of the north pole, and the angle from the node of the body's
/// equator on the J2000 equator to its prime meridian.
struct Rotation {
  double poleRaDeg;
  double poleDecDeg;
  double primeMeridianDeg;
};

/// Values at J2000 with their rates: of the pole in a Julian century, of the meridian in a day.
struct RotationRow {
  Body body;
  Rotation atJ2000;
  Rotation rate;
};

// clang-format off
constexpr RotationRow kRotations[] = {
  {Body::Sun,     {286.13,    63.87,     84.176},    {0.0,       0.0,      14.1844000}},
  {Body::Mercury, {281.0103,  61.4155,   329.5988},  {-0.0328,   -0.0049,  6.1385108}},
  {Body::Venus,   {272.76,    67.16,     160.20},    {0.0,       0.0,      -1.4813688}},
  {Body::Mars,    {317.68143, 52.88650,  176.630},   {-0.1061,   -0.0609,  350.89198226}},
  {Body::Jupiter, {268.056595, 64.495303, 284.95},   {-0.006499, 0.002413, 870.5360000}},
  {Body::Saturn,  {40.589,    83.537,    38.90},     {-0.036,    -0.004,   810.7939024}},
  {Body::Uranus,  {257.311,   -15.175,   203.81},    {0.0,       0.0,      -501.1600928}},
  {Body::Neptune, {299.36,    43.46,     249.978},   {0.0,       0.0,      541.1397757}},
  {Body::Moon,    {269.9949,  66.5392,   38.3213},   {0.0031,    0.0130,   13.17635815}},
};

/// A term of the Moon's rotation: an argument that grows with the days since J2000, and what its
/// sine adds to the right ascension, its cosine to the declination, its sine to the meridian.
struct LunarTerm {
  double atJ2000Deg;
  double ratePerDayDeg;
  double poleRaDeg;
  double poleDecDeg;
  double primeMeridianDeg;
};

constexpr LunarTerm kLunarTerms[] = {
  {125.045, -0.0529921, -3.8787,  1.5419,  3.5610},
  {250.089, -0.1059842, -0.1204,  0.0239,  0.1208},
  {260.008, 13.0120009,  0.0700, -0.0278, -0.0642},
  {176.625, 13.3407154, -0.0172,  0.0068,  0.0158},
  {357.529,  0.9856003,  0.0,     0.0,     0.0252},
  {311.589, 26.4057084,  0.0072, -0.0029, -0.0066},
  {134.963, 13.0649930,  0.0,     0.0009, -0.0047},
  {276.617,  0.3287146,  0.0,     0.0,    -0.0046},
  { 34.226,  1.7484877,  0.0,     0.0,     0.0028},
  { 15.134, -0.1589763, -0.0052,  0.0008,  0.0052},
  {119.743,  0.0036096,  0.0,     0.0,     0.0040},
  {239.961,  0.1643573,  0.0,     0.0,     0.0019},
  { 25.053, 12.9590088,  0.0043, -0.0009, -0.0044},
};
// clang-format on

void AddLunarTerms(Rotation& rotation, double days) {
  for (const LunarTerm& term : kLunarTerms) {
    const double argument = (term.atJ2000Deg + term.ratePerDayDeg * days) * kRadPerDeg;
    rotation.poleRaDeg += term.poleRaDeg * std::sin(argument);
    rotation.poleDecDeg += term.poleDecDeg * std::cos(argument);
    rotation.primeMeridianDeg += term.primeMeridianDeg * std::sin(argument);
  }
  rotation.primeMeridianDeg -= 1.4e-12 * days * days;
}

void AddNeptuneTerms(Rotation& rotation, double centuries) {
  const double n = (357.85 + 52.316 * centuries) * kRadPerDeg;
  rotation.poleRaDeg += 0.70 * std::sin(n);
  rotation.poleDecDeg -= 0.51 * std::cos(n);
  rotation.primeMeridianDeg -= 0.48 * std::sin(n);
}

Rotation RotationAt(Body body, double jdTt) {
  const double days = jdTt - kJ2000;
  const double centuries = days / 36525.0;
  Rotation rotation{};
  for (const auto& [rowBody, atJ2000, rate] : kRotations) {
    if (rowBody != body) continue;
    rotation = {atJ2000.poleRaDeg + rate.poleRaDeg * centuries,
                atJ2000.poleDecDeg + rate.poleDecDeg * centuries,
                degmal(atJ2000.primeMeridianDeg + rate.primeMeridianDeg * days)};
  }
  if (body == Body::Moon) AddLunarTerms(rotation, days);
  if (body == Body::Neptune) AddNeptuneTerms(rotation, centuries);
  return rotation;
}

}  // namespace

Matrix3 ToBodyFixed(Body body, double jdTt) {
  if (body == Body::Earth) return ToEarthFixed(UtFromTt(jdTt));
  const auto [poleRaDeg, poleDecDeg, primeMeridianDeg] = RotationAt(body, jdTt);
  return FrameRotationZ(primeMeridianDeg) * FrameRotationX(90.0 - poleDecDeg) *
         FrameRotationZ(90.0 + poleRaDeg) * EquatorFromEcliptic();
}

DiskOrientation OrientationOf(Body body, double jdTt, const Vector3& fromObserver,
                              const Vector3& north) {
  const Matrix3 toBody = ToBodyFixed(body, jdTt);
  const Spherical centre = DcToAd(toBody * -fromObserver);
  const Vector3 pole = Transposed(toBody) * Vector3{0.0, 0.0, 1.0};
  return {centre.longitudeDeg, centre.latitudeDeg, PositionAngleDeg(fromObserver, pole, north)};
}

}  // namespace vyn
