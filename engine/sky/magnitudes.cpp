#include "engine/sky/magnitudes.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "siblings/astro/angles.h"

namespace vyn {
namespace {

/// A polynomial in the phase angle in degrees, for phases up to a bound.
struct PhaseCurve {
  Body body;
  double upToDeg;
  std::array<double, 7> coefficients;
};

// clang-format off
/// Rows of one body in the order of their bounds.
constexpr PhaseCurve kPhaseCurves[] = {
  {Body::Mercury, 180.0, {-0.613, 6.3280e-2, -1.6336e-3, 3.3644e-5, -3.4265e-7, 1.6893e-9, -3.0334e-12}},
  {Body::Venus,   163.7, {-4.384, -1.044e-3, 3.687e-4, -2.814e-6, 8.938e-9}},
  {Body::Venus,   180.0, {236.05828, -2.81914, 8.39034e-3}},
  {Body::Earth,   180.0, {-3.99, -1.060e-3, 2.054e-4}},
  {Body::Mars,     50.0, {-1.601, 0.02267, -0.0001302}},
  {Body::Mars,    180.0, {-0.367, -0.02573, 0.0003445}},
  {Body::Jupiter,  12.0, {-9.395, -3.7e-4, 6.16e-4}},
  {Body::Saturn,    6.5, {-8.914, 0.026}},
  {Body::Saturn,  180.0, {-8.94, 2.446e-4, 2.672e-4, -1.505e-6, 4.767e-9}},
  {Body::Uranus,  180.0, {-7.110, 6.587e-3, 1.045e-4}},
  {Body::Moon,    180.0, {0.21, 0.026, 0.0, 0.0, 4e-9}},
};
// clang-format on

double OnCurve(Body body, double phaseDeg) {
  for (const PhaseCurve& curve : kPhaseCurves) {
    if (curve.body != body || !(phaseDeg <= curve.upToDeg)) continue;
    double sum = 0.0;
    for (auto c = curve.coefficients.rbegin(); c != curve.coefficients.rend(); ++c) {
      sum = sum * phaseDeg + *c;
    }
    return sum;
  }
  return std::nan("");
}

double JupiterFarFromOpposition(double phaseDeg) {
  const double x = phaseDeg / 180.0;
  return -9.428 -
         2.5 *
             std::log10(1.0 + x * (-1.507 + x * (-0.363 + x * (-0.062 + x * (2.809 - x * 1.876)))));
}

/// What the rings add; they are known only near opposition and up to the tilt that they reach.
double SaturnRings(double phaseDeg, double ringTiltDeg) {
  constexpr double kLargestTiltDeg = 27.0;
  constexpr double kLargestPhaseDeg = 6.5;
  if (phaseDeg > kLargestPhaseDeg) return 0.0;
  const double tilt = std::sin(std::min(std::abs(ringTiltDeg), kLargestTiltDeg) * kRadPerDeg);
  return -1.825 * tilt - 0.378 * tilt * std::exp(-2.25 * phaseDeg);
}

double NeptuneAt(double phaseDeg, double year) {
  const double brightened = std::clamp(year, 1980.0, 2000.0) - 1980.0;
  const double phasePart = phaseDeg > 1.9 ? phaseDeg * (7.944e-3 + phaseDeg * 9.617e-5) : 0.0;
  return -6.89 - 0.0055 * brightened + phasePart;
}

double Absolute(Body body, double phaseDeg, double ringTiltDeg, double year) {
  switch (body) {
    case Body::Sun:
      return -26.74;
    case Body::Jupiter:
      return phaseDeg > 12.0 ? JupiterFarFromOpposition(phaseDeg) : OnCurve(body, phaseDeg);
    case Body::Saturn:
      return OnCurve(body, phaseDeg) + SaturnRings(phaseDeg, ringTiltDeg);
    case Body::Neptune:
      return NeptuneAt(phaseDeg, year);
    default:
      return OnCurve(body, phaseDeg);
  }
}

}  // namespace

Illumination IlluminationOf(const Vector3& heliocentric, const Vector3& fromObserver) {
  return {Length(heliocentric), Length(fromObserver),
          AngleBetween(heliocentric, fromObserver) * kDegPerRad};
}

double IlluminatedFraction(double phaseAngleDeg) {
  return (1.0 + std::cos(phaseAngleDeg * kRadPerDeg)) / 2.0;
}

double MagnitudeOf(Body body, const Illumination& light, double ringTiltDeg, double year) {
  const double distances =
      light.observerDistanceAu * (body == Body::Sun ? 1.0 : light.sunDistanceAu);
  return Absolute(body, light.phaseAngleDeg, ringTiltDeg, year) + 5.0 * std::log10(distances);
}

double CometMagnitude(double absoluteMagnitude, double coefficient, const Illumination& light) {
  return absoluteMagnitude + 5.0 * std::log10(light.observerDistanceAu) +
         2.5 * coefficient * std::log10(light.sunDistanceAu);
}

double MinorPlanetMagnitude(double absoluteMagnitude, double slope, const Illumination& light) {
  const double tangent = std::tan(light.phaseAngleDeg * kRadPerDeg / 2.0);
  const double steep = std::exp(-3.33 * std::pow(tangent, 0.63));
  const double shallow = std::exp(-1.87 * std::pow(tangent, 1.22));
  return absoluteMagnitude + 5.0 * std::log10(light.sunDistanceAu * light.observerDistanceAu) -
         2.5 * std::log10((1.0 - slope) * steep + slope * shallow);
}

double ApparentDiameterDeg(double radiusKm, double distanceAu) {
  return 2.0 * std::asin(std::min(1.0, radiusKm / (distanceAu * kKmPerAu))) * kDegPerRad;
}

}  // namespace vyn
