#include "host/sky_body.h"

#include <cmath>

#include "engine/sky/disk_orientation.h"
#include "engine/sky/dwarf_planets.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

constexpr double kJ2000 = 2451545.0;
constexpr double kDaysPerYear = 365.25;

/// North pole on the J2000 equator and prime meridian, in degrees, with the turn in a day.
struct Rotation {
  DwarfPlanet body;
  double poleRightAscensionDeg;
  double poleDeclinationDeg;
  double meridianDeg;
  double degPerDay;
};

// clang-format off
constexpr Rotation kRotations[kDwarfPlanetCount] = {
  {DwarfPlanet::Ceres,    291.418,  66.764, 170.650,  952.1532},
  {DwarfPlanet::Pluto,    132.993,  -6.163, 302.695,   56.3625225},
  {DwarfPlanet::Haumea,   285.1,   -10.6,     0.0,   2206.70},
  {DwarfPlanet::Makemake, 270.0,    66.5607,  0.0,    378.50},
  {DwarfPlanet::Eris,      36.17,   44.51,    0.0,     22.8051630},
};
// clang-format on

Body Numbered(SkyBody body) { return static_cast<Body>(body); }

DwarfPlanet Dwarf(SkyBody body) {
  return static_cast<DwarfPlanet>(static_cast<int>(body) - static_cast<int>(SkyBody::Ceres));
}

}  // namespace

SkyBody BodyOf(Primary primary) {
  switch (primary) {
    case Primary::Ceres:
      return SkyBody::Ceres;
    case Primary::Pluto:
      return SkyBody::Pluto;
    case Primary::Haumea:
      return SkyBody::Haumea;
    case Primary::Makemake:
      return SkyBody::Makemake;
    case Primary::Eris:
      return SkyBody::Eris;
    default:
      // The planets stand in both lists in the same order.
      return static_cast<SkyBody>(static_cast<int>(SkyBody::Mercury) + static_cast<int>(primary));
  }
}

double RadiusKm(SkyBody body) {
  return IsDwarfPlanet(body) ? FactsOf(Dwarf(body)).radiusKm : FactsOf(Numbered(body)).radiusKm;
}

StateVector HeliocentricState(SkyBody body, double jdTt) {
  return IsDwarfPlanet(body) ? HeliocentricState(Dwarf(body), jdTt)
                             : HeliocentricState(Numbered(body), jdTt);
}

OrbitElements OrbitOf(SkyBody body, double jdTt) {
  return IsDwarfPlanet(body) ? OrbitOf(Dwarf(body), jdTt) : OrbitOf(Numbered(body), jdTt);
}

LagrangianPoints LagrangianPointsOf(SkyBody body, double jdTt) {
  if (!IsDwarfPlanet(body)) return LagrangianPointsOf(Numbered(body), jdTt);
  const double mass = FactsOf(Dwarf(body)).massInSuns;
  return LagrangianPointsOf(HeliocentricState(body, jdTt), mass / (1.0 + mass));
}

double MagnitudeOf(SkyBody body, const Illumination& light, const Vector3& towardsObserver,
                   double jdTt) {
  if (IsDwarfPlanet(body)) return MagnitudeOf(Dwarf(body), light);
  const double year = 2000.0 + (jdTt - kJ2000) / kDaysPerYear;
  return MagnitudeOf(Numbered(body), light, DcToAd(towardsObserver).latitudeDeg, year);
}

Matrix3 ToBodyFixed(SkyBody body, double jdTt) {
  if (!IsDwarfPlanet(body)) return ToBodyFixed(Numbered(body), jdTt);
  const Rotation& rotation = kRotations[static_cast<int>(Dwarf(body))];
  const double turnedDeg = degmal(rotation.meridianDeg + rotation.degPerDay * (jdTt - kJ2000));
  return FrameRotationZ(turnedDeg) * FrameRotationX(90.0 - rotation.poleDeclinationDeg) *
         FrameRotationZ(90.0 + rotation.poleRightAscensionDeg) * EquatorFromEcliptic();
}

}  // namespace vyn
