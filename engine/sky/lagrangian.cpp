#include "engine/sky/lagrangian.h"

#include <cmath>
#include <numbers>

namespace vyn {
namespace {

/// Coefficients from the constant term up.
using Quintic = std::array<double, 6>;

/// Newton's method from a start so close that a dozen steps are more than enough.
double Root(const Quintic& quintic, double start) {
  double x = start;
  for (int step = 0; step < 12; ++step) {
    double value = 0.0;
    double slope = 0.0;
    for (auto c = quintic.rbegin(); c != quintic.rend(); ++c) {
      slope = slope * x + value;
      value = value * x + *c;
    }
    x -= value / slope;
  }
  return x;
}

}  // namespace

CollinearDistances CollinearDistancesOf(double massFraction) {
  const double m = massFraction;
  const double hill = std::cbrt(m / 3.0);
  return {Root({-m, 2 * m, -m, 3 - 2 * m, -(3 - m), 1}, hill),
          Root({-m, -2 * m, -m, 3 - 2 * m, 3 - m, 1}, hill),
          Root({-(1 - m), -2 * (1 - m), -(1 - m), 1 + 2 * m, 2 + m, 1}, 1.0 - 7.0 * m / 12.0)};
}

LagrangianPoints LagrangianPointsOf(const StateVector& state, double massFraction) {
  const Vector3& body = state.position;
  const Vector3 pole = Normalized(Cross(body, state.velocity));
  const Vector3 ahead = Cross(pole, body);
  const auto [l1, l2, l3] = CollinearDistancesOf(massFraction);
  const double height = std::numbers::sqrt3 / 2.0;
  return {body * (1.0 - l1), body * (1.0 + l2), body * -l3, body * 0.5 + ahead * height,
          body * 0.5 - ahead * height};
}

LagrangianPoints LagrangianPointsOf(Body body, double jdTt) {
  if (body == Body::Sun) return {};
  const bool moon = body == Body::Moon;
  const double mass = FactsOf(body).massInSuns;
  const double centralMass = moon ? FactsOf(Body::Earth).massInSuns : 1.0;
  return LagrangianPointsOf(moon ? GeocentricMoon(jdTt) : HeliocentricState(body, jdTt),
                            mass / (mass + centralMass));
}

}  // namespace vyn
