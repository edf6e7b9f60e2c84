#include "engine/sky/dwarf_planets.h"

#include <cmath>

#include "siblings/astro/angles.h"

namespace vyn {
namespace {

constexpr double kJ2000 = 2451545.0;
constexpr double kEpochJd = 2461200.5;
constexpr double kDaysPerCentury = 36525.0;

/// Elements at an epoch with their changes in a Julian century. The mean longitude counts from the
/// equinox to the node and along the orbit, as does that of perihelion.
struct Elements {
  double semiMajorAxisAu;
  double eccentricity;
  double inclinationDeg;
  double longitudeDeg;
  double perihelionDeg;
  double nodeDeg;
};

struct Row {
  DwarfPlanetFacts facts;
  double epochJd;
  Elements atEpoch;
  Elements perCentury;
};

/// Elements that do not change, from a time of perihelion.
constexpr Elements Osculating(double semiMajorAxisAu, double eccentricity, double inclinationDeg,
                              double nodeDeg, double argumentDeg, double perihelionJd,
                              double motionDegPerDay) {
  const double perihelionDeg = nodeDeg + argumentDeg;
  return {semiMajorAxisAu, eccentricity,
          inclinationDeg,  perihelionDeg + motionDegPerDay * (kEpochJd - perihelionJd),
          perihelionDeg,   nodeDeg};
}
constexpr Elements Motion(double degPerDay) {
  return {0.0, 0.0, 0.0, degPerDay * kDaysPerCentury, 0.0, 0.0};
}

// clang-format off
constexpr Row kRows[kDwarfPlanetCount] = {
  {{DwarfPlanet::Ceres,    "Ceres",     469.7, 4.719e-10,  3.34, 0.12}, kEpochJd,
   Osculating(2.7655526,   0.079692295, 10.588028,  80.248627,  73.294215, 2461599.841467, 0.2143044506),
   Motion(0.2143044506)},
  {{DwarfPlanet::Pluto,    "Pluto",    1188.3, 7.350e-9,  -1.0,  0.15}, kJ2000,
   {39.48211675,   0.24882730, 17.14001206, 238.92903833, 224.06891629, 110.30393684},
   {-0.00031596,   0.00005170,  0.00004818, 145.20780515,  -0.04062942,  -0.01183482}},
  {{DwarfPlanet::Haumea,   "Haumea",    780.0, 2.015e-9,   0.2,  0.15}, kEpochJd,
   Osculating(43.06029024, 0.194443015, 28.208474, 121.786056, 240.690547, 2500416.599615, 0.0034880977),
   Motion(0.0034880977)},
  {{DwarfPlanet::Makemake, "Makemake",  715.0, 1.56e-9,   -0.2,  0.15}, kEpochJd,
   Osculating(45.57093317, 0.158888995, 29.027856,  79.294834, 297.092273, 2408158.694099, 0.0032038501),
   Motion(0.0032038501)},
  {{DwarfPlanet::Eris,     "Eris",     1163.0, 8.281e-9,  -1.1,  0.15}, kEpochJd,
   Osculating(67.93394688, 0.438238535, 43.925828,  36.00477,  150.794924, 2545407.716847, 0.0017602478),
   Motion(0.0017602478)},
};
// clang-format on

const Row& RowOf(DwarfPlanet body) { return kRows[static_cast<int>(body)]; }

}  // namespace

const DwarfPlanetFacts& FactsOf(DwarfPlanet body) { return RowOf(body).facts; }

OrbitElements OrbitOf(DwarfPlanet body, double jdTt) {
  const auto& [facts, epochJd, at, rate] = RowOf(body);
  const double centuries = (jdTt - epochJd) / kDaysPerCentury;
  const double a = at.semiMajorAxisAu + rate.semiMajorAxisAu * centuries;
  const double e = at.eccentricity + rate.eccentricity * centuries;
  const double perihelion = at.perihelionDeg + rate.perihelionDeg * centuries;
  const double node = at.nodeDeg + rate.nodeDeg * centuries;
  const double longitude = at.longitudeDeg + rate.longitudeDeg * centuries;
  const double motionDegPerDay = rate.longitudeDeg / kDaysPerCentury;
  return {.perihelionJd = jdTt - degmal(longitude - perihelion) / motionDegPerDay,
          .perihelionDistanceAu = a * (1.0 - e),
          .eccentricity = e,
          .argumentOfPerihelionDeg = perihelion - node,
          .ascendingNodeDeg = node,
          .inclinationDeg = at.inclinationDeg + rate.inclinationDeg * centuries,
          .gravity = std::pow(motionDegPerDay * kRadPerDeg, 2) * std::pow(a, 3)};
}

StateVector HeliocentricState(DwarfPlanet body, double jdTt) {
  return StateAt(OrbitOf(body, jdTt), jdTt);
}

double MagnitudeOf(DwarfPlanet body, const Illumination& light) {
  const DwarfPlanetFacts& facts = FactsOf(body);
  return MinorPlanetMagnitude(facts.absoluteMagnitude, facts.slope, light);
}

}  // namespace vyn
