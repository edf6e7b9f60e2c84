// Dwarf planets against published places and elements of other epochs.
#include <cmath>

#include <gtest/gtest.h>

#include "engine/sky/bodies.h"
#include "engine/sky/dwarf_planets.h"
#include "siblings/astro/angles.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {
namespace {

double DegreesApart(const Vector3& a, const Vector3& b) { return AngleBetween(a, b) * kDegPerRad; }

/// The Sun relative to the centre of mass of the solar system, in au.
Vector3 BarycentricSun(double jdTt) {
  Vector3 sum{};
  double mass = 1.0;
  for (const Body body : kPlanets) {
    sum = sum + HeliocentricState(body, jdTt).position * FactsOf(body).massInSuns;
    mass += FactsOf(body).massInSuns;
  }
  return sum / -mass;
}

TEST(DwarfPlanets, CeresIsWhereTheEphemerisHasIt) {
  // Jet Propulsion Laboratory, Horizons: relative to the barycentre, ecliptic of J2000, in km and
  // in au.
  const double recentJd = 2460958.91281493;
  const Vector3 recent =
      Vector3{424332817.0158925, 79871614.93275928, -75698149.9787237} / kKmPerAu -
      BarycentricSun(recentJd);
  const Vector3 place = HeliocentricState(DwarfPlanet::Ceres, recentJd).position;
  EXPECT_LT(DegreesApart(place, recent), 0.01);
  EXPECT_NEAR(Length(place), Length(recent), 0.001);

  const double earlyJd = 2440418.5;  // 1969 July 16
  const Vector3 early =
      Vector3{1.592773884234155, -2.463766259162856, -0.3653478442536497} - BarycentricSun(earlyJd);
  EXPECT_LT(DegreesApart(HeliocentricState(DwarfPlanet::Ceres, earlyJd).position, early), 4.0);
}

TEST(DwarfPlanets, PlutoIsWhereMeeusFindsIt) {
  // "Astronomical Algorithms" (2nd ed.), example 37.a: 1992 Oct 13.0 TT.
  const Vector3 place = HeliocentricState(DwarfPlanet::Pluto, 2448908.5).position;
  EXPECT_LT(DegreesApart(place, AdToDc(232.74071, 14.58782)), 0.02);
  EXPECT_NEAR(Length(place), 29.711111, 0.02);
}

TEST(DwarfPlanets, AgreeWithElementsOfAnotherEpoch) {
  struct Published {
    DwarfPlanet body;
    double epochJd;
    double semiMajorAxisAu;
    double eccentricity;
    double inclinationDeg;
    double nodeDeg;
    double argumentDeg;
    double meanAnomalyDeg;
  };
  // The Small-Body Database in 2020 and, for Ceres, the Minor Planet Center in 2025.
  const Published rows[] = {
      {DwarfPlanet::Ceres, 2461000.5, 2.7656157, 0.0795764, 10.58789, 80.24964, 73.29974,
       231.53974},
      {DwarfPlanet::Haumea, 2459200.5, 43.116, 0.19642, 28.2137, 122.167, 239.041, 218.205},
      {DwarfPlanet::Makemake, 2459000.5, 45.430, 0.16126, 28.9835, 79.620, 294.834, 165.514},
      {DwarfPlanet::Eris, 2459000.5, 67.864, 0.43607, 44.040, 35.951, 151.639, 205.989}};
  for (const Published& row : rows) {
    const double motion = std::sqrt(kSunGravity / std::pow(row.semiMajorAxisAu, 3));
    const Vector3 published =
        PositionAt({.perihelionJd = row.epochJd - row.meanAnomalyDeg * kRadPerDeg / motion,
                    .perihelionDistanceAu = row.semiMajorAxisAu * (1.0 - row.eccentricity),
                    .eccentricity = row.eccentricity,
                    .argumentOfPerihelionDeg = row.argumentDeg,
                    .ascendingNodeDeg = row.nodeDeg,
                    .inclinationDeg = row.inclinationDeg},
                   row.epochJd);
    const Vector3 place = HeliocentricState(row.body, row.epochJd).position;
    EXPECT_LT(DegreesApart(place, published), 0.05) << FactsOf(row.body).name;
    EXPECT_NEAR(Length(place), Length(published), 0.05) << FactsOf(row.body).name;
  }
}

TEST(DwarfPlanets, AreAsBrightAsTheyAppear) {
  // At opposition in 2025.
  const std::pair<DwarfPlanet, std::pair<double, double>> published[] = {
      {DwarfPlanet::Ceres, {2.97, 7.6}},
      {DwarfPlanet::Pluto, {35.3, 14.4}},
      {DwarfPlanet::Haumea, {50.0, 17.3}},
      {DwarfPlanet::Makemake, {52.8, 17.1}},
      {DwarfPlanet::Eris, {95.6, 18.7}}};
  for (const auto& [body, seen] : published) {
    const auto& [distanceAu, magnitude] = seen;
    EXPECT_NEAR(MagnitudeOf(body, {distanceAu, distanceAu - 1.0, 0.3}), magnitude, 0.4)
        << FactsOf(body).name;
  }
}

TEST(DwarfPlanets, OrbitsCloseAroundThem) {
  for (const DwarfPlanet body : kDwarfPlanets) {
    EXPECT_EQ(FactsOf(body).body, body);
    const auto line = OrbitPolyline(OrbitOf(body, 2461042.0), 721, 200.0);
    ASSERT_EQ(line.size(), 721U);
    const Vector3 place = HeliocentricState(body, 2461042.0).position;
    double nearest = 1000.0;
    for (const Vector3& point : line) nearest = std::min(nearest, Length(point - place));
    EXPECT_LT(nearest, 0.01 * Length(place)) << FactsOf(body).name;
  }
}

}  // namespace
}  // namespace vyn
