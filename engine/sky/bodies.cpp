#include "engine/sky/bodies.h"

#include <limits>

#include <erfa.h>

#include "siblings/astro/direction_cosines.h"

namespace vyn {
namespace {

constexpr double kObliquityJ2000Deg = 84381.448 / 3600.0;
constexpr double kEarthMassInSuns = 1.0 / 332946.0487;
constexpr double kMoonMassInSuns = kEarthMassInSuns * 0.0123000371;
constexpr int kErfaEarthMoonBarycentre = 3;

// clang-format off
constexpr BodyFacts kFacts[kBodyCount] = {
  // body          name       radius     mass in Suns       flattening
  {Body::Sun,     "Sun",     695700.0,  1.0,               0.0},
  {Body::Moon,    "Moon",      1737.4,  kMoonMassInSuns,   0.0},
  {Body::Mercury, "Mercury",   2440.53, 1.0 / 6023600.0,   0.0009},
  {Body::Venus,   "Venus",     6051.8,  1.0 / 408523.719,  0.0},
  {Body::Earth,   "Earth",   kEarthRadiusKm, kEarthMassInSuns, kEarthFlattening},
  {Body::Mars,    "Mars",      3396.19, 1.0 / 3098703.59,  0.00589},
  {Body::Jupiter, "Jupiter",  71492.0,  1.0 / 1047.348644, 0.06487},
  {Body::Saturn,  "Saturn",   60268.0,  1.0 / 3497.9018,   0.09796},
  {Body::Uranus,  "Uranus",   25559.0,  1.0 / 22902.98,    0.02293},
  {Body::Neptune, "Neptune",  24764.0,  1.0 / 19412.26,    0.01708},
};
// clang-format on

StateVector InEcliptic(const double equatorial[2][3]) {
  const Matrix3 toEcliptic = Transposed(EquatorFromEcliptic());
  const auto vector = [](const double v[3]) { return Vector3{v[0], v[1], v[2]}; };
  return {toEcliptic * vector(equatorial[0]), toEcliptic * vector(equatorial[1])};
}

StateVector PlanetState(int erfaNumber, double jdTt) {
  double state[2][3];
  eraPlan94(jdTt, 0.0, erfaNumber, state);
  return InEcliptic(state);
}

StateVector EarthState(double jdTt) {
  double heliocentric[2][3];
  double barycentric[2][3];
  eraEpv00(jdTt, 0.0, heliocentric, barycentric);
  return InEcliptic(heliocentric);
}

}  // namespace

const BodyFacts& FactsOf(Body body) { return kFacts[static_cast<int>(body)]; }

const Matrix3& EquatorFromEcliptic() {
  static const Matrix3 rotation = FrameRotationX(-kObliquityJ2000Deg);
  return rotation;
}

StateVector GeocentricMoon(double jdTt) {
  double state[2][3];
  eraMoon98(jdTt, 0.0, state);
  return InEcliptic(state);
}

StateVector HeliocentricState(Body body, double jdTt) {
  switch (body) {
    case Body::Sun:
      return {};
    case Body::Earth:
      return EarthState(jdTt);
    case Body::Moon: {
      const StateVector earth = EarthState(jdTt);
      const StateVector moon = GeocentricMoon(jdTt);
      return {earth.position + moon.position, earth.velocity + moon.velocity};
    }
    default:
      return PlanetState(static_cast<int>(body) - 1, jdTt);
  }
}

OrbitElements OrbitOf(Body body, double jdTt) {
  const double mass = FactsOf(body).massInSuns;
  switch (body) {
    case Body::Sun:
      return {.perihelionJd = std::numeric_limits<double>::quiet_NaN()};
    case Body::Moon:
      return OsculatingElements(GeocentricMoon(jdTt), jdTt,
                                kSunGravity * (kEarthMassInSuns + kMoonMassInSuns));
    case Body::Earth:
      return OsculatingElements(PlanetState(kErfaEarthMoonBarycentre, jdTt), jdTt,
                                kSunGravity * (1.0 + kEarthMassInSuns + kMoonMassInSuns));
    default:
      return OsculatingElements(HeliocentricState(body, jdTt), jdTt, kSunGravity * (1.0 + mass));
  }
}

Vector3 ApparentPlace(const Vector3& position, const Vector3& velocity) {
  return position - velocity * (Length(position) / kLightAuPerDay);
}

}  // namespace vyn
