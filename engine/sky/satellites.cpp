#include "engine/sky/satellites.h"

#include <cmath>
#include <limits>
#include <optional>

#include "engine/sky/dwarf_planets.h"
#include "engine/sky/satellites_theory.h"
#include "siblings/astro/angles.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {
namespace {

constexpr double kNotKnown = std::numeric_limits<double>::quiet_NaN();
constexpr int kMartians = 2;
constexpr int kGalileans = 4;
constexpr int kSaturniansOfTheory = 8;

const Satellite* FindSatellite(Primary primary, int number) {
  const auto satellites = SatellitesOf(primary);
  if (number < 1 || number > static_cast<int>(satellites.size())) return nullptr;
  const Satellite& satellite = satellites[number - 1];
  return satellite.HasOrbit() ? &satellite : nullptr;
}

bool IsGalilean(Primary primary, int number) {
  return primary == Primary::Jupiter && number <= kGalileans;
}

/// The ellipse of the moment; not for the Moon and the Galilean satellites, whose places come
/// otherwise.
OrbitInPlane OrbitAt(Primary primary, int number, const Satellite& satellite, double jdTt) {
  if (primary == Primary::Mars && number <= kMartians) return MartianOrbitAt(number, jdTt);
  if (primary == Primary::Saturn && number <= kSaturniansOfTheory) {
    return SaturnianOrbitAt(number, jdTt);
  }
  return MeanOrbitAt(satellite.mean, jdTt);
}

std::vector<Vector3> Rotated(std::vector<Vector3> points, const Matrix3& rotation) {
  for (Vector3& point : points) point = rotation * point;
  return points;
}

/// Places throughout the turn around a moment.
std::vector<Vector3> SampledTurn(int number, double periodDays, double jdTt, int count) {
  std::vector<Vector3> points(count);
  for (int i = 0; i < count; ++i) {
    const double part = static_cast<double>(i) / (count - 1) - 0.5;
    points[i] = GalileanPositionKm(number, jdTt + part * periodDays) / kKmPerAu;
  }
  points.back() = points.front();
  return points;
}

}  // namespace

double SinDeg(double angleDeg) { return std::sin(angleDeg * kRadPerDeg); }
double CosDeg(double angleDeg) { return std::cos(angleDeg * kRadPerDeg); }

Matrix3 FromPlane(double ascendingNodeDeg, double inclinationDeg) {
  return FrameRotationZ(-ascendingNodeDeg) * FrameRotationX(-inclinationDeg);
}

OrbitElements EllipseAt(double jdTt, double semiMajorAxisKm, const EllipseAngles& angles,
                        double motionDegPerDay) {
  const double semiMajorAxisAu = semiMajorAxisKm / kKmPerAu;
  const double motion = motionDegPerDay * kRadPerDeg;
  return {.perihelionJd = jdTt - degmal(angles.meanAnomalyDeg) / motionDegPerDay,
          .perihelionDistanceAu = semiMajorAxisAu * (1.0 - angles.eccentricity),
          .eccentricity = angles.eccentricity,
          .argumentOfPerihelionDeg = angles.argumentOfPericentreDeg,
          .ascendingNodeDeg = angles.ascendingNodeDeg,
          .inclinationDeg = angles.inclinationDeg,
          .gravity = motion * motion * std::pow(semiMajorAxisAu, 3)};
}

OrbitInPlane MeanOrbitAt(const MeanElements& mean, double jdTt) {
  const double days = jdTt - mean.epochJd;
  const double pericentreMoved = mean.pericentreDegPerYear * days / kDaysPerYear;
  const double nodeMoved = mean.nodeDegPerYear * days / kDaysPerYear;
  const bool retrograde = mean.inclinationDeg > 90.0;
  // The mean longitude counts along the node in the sense of the motion, so that in both senses the
  // node's way is added to the anomaly and the pericentre's is taken off.
  const EllipseAngles angles{
      mean.eccentricity, mean.inclinationDeg,
      mean.ascendingNodeDeg + (retrograde ? nodeMoved : -nodeMoved),
      mean.argumentOfPericentreDeg + pericentreMoved,
      mean.meanAnomalyDeg + mean.motionDegPerDay * days - pericentreMoved + nodeMoved};
  const auto& [poleRaDeg, poleDecDeg] = mean.plane;
  return {EllipseAt(jdTt, mean.semiMajorAxisKm, angles, mean.motionDegPerDay),
          Transposed(EquatorFromEcliptic()) * FromPlane(90.0 + poleRaDeg, 90.0 - poleDecDeg)};
}

Vector3 SatellitePosition(Primary primary, int number, double jdTt) {
  const Satellite* satellite = FindSatellite(primary, number);
  if (satellite == nullptr) return {kNotKnown, kNotKnown, kNotKnown};
  if (primary == Primary::Earth) return GeocentricMoon(jdTt).position;
  if (IsGalilean(primary, number)) return GalileanPositionKm(number, jdTt) / kKmPerAu;
  return OrbitAt(primary, number, *satellite, jdTt).PositionAt(jdTt);
}

std::vector<Vector3> SatelliteOrbitPolyline(Primary primary, int number, double jdTt, int count) {
  const Satellite* satellite = FindSatellite(primary, number);
  if (satellite == nullptr || count < 2) return {};
  constexpr double kFarthestAu = 10.0;  // beyond every satellite
  if (primary == Primary::Earth) {
    return OrbitPolyline(OrbitOf(Body::Moon, jdTt), count, kFarthestAu);
  }
  if (IsGalilean(primary, number)) {
    return SampledTurn(number, SatellitePeriodDays(*satellite), jdTt, count);
  }
  const OrbitInPlane orbit = OrbitAt(primary, number, *satellite, jdTt);
  return Rotated(OrbitPolyline(orbit.orbit, count, kFarthestAu), orbit.toEcliptic);
}

double SatellitePeriodDays(const Satellite& satellite) {
  return satellite.HasOrbit() ? 360.0 / satellite.mean.motionDegPerDay : kNotKnown;
}

double SatelliteMagnitude(const Satellite& satellite, const Illumination& light) {
  return satellite.absoluteMagnitude +
         5.0 * std::log10(light.sunDistanceAu * light.observerDistanceAu);
}

StateVector HeliocentricState(Primary primary, double jdTt) {
  switch (primary) {
    case Primary::Pluto:
      return HeliocentricState(DwarfPlanet::Pluto, jdTt);
    case Primary::Eris:
      return HeliocentricState(DwarfPlanet::Eris, jdTt);
    case Primary::Ceres:
      return HeliocentricState(DwarfPlanet::Ceres, jdTt);
    case Primary::Makemake:
      return HeliocentricState(DwarfPlanet::Makemake, jdTt);
    case Primary::Haumea:
      return HeliocentricState(DwarfPlanet::Haumea, jdTt);
    default:
      // The planets stand in both lists in the same order.
      return HeliocentricState(kPlanets[static_cast<int>(primary)], jdTt);
  }
}

}  // namespace vyn
