// The table of satellites: complete, each once, and with orbits that obey Kepler.
#include <cmath>
#include <map>
#include <numbers>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "engine/sky/dwarf_planets.h"
#include "engine/sky/satellites.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

TEST(SatelliteTable, HoldsAllThatAreKnown) {
  const std::map<Primary, std::size_t> counts{
      {Primary::Mercury, 0}, {Primary::Venus, 0},     {Primary::Earth, 1},
      {Primary::Mars, 2},    {Primary::Jupiter, 115}, {Primary::Saturn, 292},
      {Primary::Uranus, 29}, {Primary::Neptune, 16},  {Primary::Pluto, 5},
      {Primary::Eris, 1},    {Primary::Ceres, 0},     {Primary::Makemake, 1},
      {Primary::Haumea, 2}};
  std::set<std::string_view> names;
  std::set<std::u16string_view> japaneseNames;
  std::size_t total = 0;
  for (const Primary primary : kPrimaries) {
    EXPECT_EQ(SatellitesOf(primary).size(), counts.at(primary)) << static_cast<int>(primary);
    for (const Satellite& satellite : SatellitesOf(primary)) {
      ++total;
      EXPECT_FALSE(satellite.name.empty());
      EXPECT_TRUE(names.insert(satellite.name).second) << satellite.name;
      if (satellite.japaneseName.empty()) continue;
      EXPECT_TRUE(japaneseNames.insert(satellite.japaneseName).second) << satellite.name;
    }
  }
  EXPECT_EQ(total, names.size());
}

TEST(SatelliteTable, NumbersWithRomanNumeralsFirst) {
  const auto named = [](Primary primary, int number) {
    return SatelliteNumeral(primary, number) + " " +
           std::string(SatellitesOf(primary)[number - 1].name);
  };
  EXPECT_EQ(named(Primary::Mars, 2), "II Deimos");
  EXPECT_EQ(named(Primary::Jupiter, 5), "V Amalthea");
  EXPECT_EQ(named(Primary::Jupiter, 49), "XLIX Kore");
  EXPECT_EQ(named(Primary::Jupiter, 62), "LXII Valetudo");
  EXPECT_EQ(named(Primary::Jupiter, 72), "LXXII S/2011 J 1");
  EXPECT_EQ(named(Primary::Saturn, 9), "IX Phoebe");
  EXPECT_EQ(named(Primary::Saturn, 18), "XVIII Pan");
  EXPECT_EQ(named(Primary::Saturn, 66), "LXVI Geirrod");
  EXPECT_EQ(named(Primary::Uranus, 27), "XXVII Cupid");
  EXPECT_EQ(named(Primary::Neptune, 14), "XIV Hippocamp");
  EXPECT_EQ(named(Primary::Haumea, 2), "II Namaka");
  EXPECT_EQ(named(Primary::Saturn, 67), " S/2004 S 31");
  EXPECT_EQ(named(Primary::Makemake, 1), " S/2015 (136472) 1");
  EXPECT_EQ(SatelliteNumeral(Primary::Mars, 0) + SatelliteNumeral(Primary::Venus, 1), "");
}

/// The gravity of a body with its satellites in km^3 / day^2.
double GravityOf(Primary primary) {
  const auto fromMass = [](double massInSuns) {
    return massInSuns * kSunGravity * std::pow(kKmPerAu, 3);
  };
  switch (primary) {
    case Primary::Pluto:
      return fromMass(FactsOf(DwarfPlanet::Pluto).massInSuns);
    case Primary::Eris:
      return fromMass(FactsOf(DwarfPlanet::Eris).massInSuns);
    case Primary::Haumea:
      return fromMass(FactsOf(DwarfPlanet::Haumea).massInSuns);
    case Primary::Earth:
      return fromMass(FactsOf(Body::Earth).massInSuns + FactsOf(Body::Moon).massInSuns);
    default:
      return fromMass(FactsOf(kPlanets[static_cast<int>(primary)]).massInSuns);
  }
}

TEST(SatelliteTable, ObeysKeplersThirdLaw) {
  int orbits = 0;
  for (const Primary primary : kPrimaries) {
    for (const Satellite& satellite : SatellitesOf(primary)) {
      if (!satellite.HasOrbit()) continue;
      ++orbits;
      const MeanElements& mean = satellite.mean;
      const double motion = mean.motionDegPerDay * kRadPerDeg;
      const double ratio = motion * motion * std::pow(mean.semiMajorAxisKm, 3) / GravityOf(primary);
      // The Sun and the resonance with Titan stretch some mean orbits.
      const bool pulled = mean.inclinationDeg > 25.0 || satellite.name == "Hyperion";
      EXPECT_NEAR(ratio, 1.0, pulled ? 0.07 : 0.02) << satellite.name;
    }
  }
  EXPECT_EQ(orbits, 461);
}

TEST(SatelliteTable, KeepsElementsInTheirRanges) {
  for (const Primary primary : kPrimaries) {
    for (const Satellite& satellite : SatellitesOf(primary)) {
      const MeanElements& mean = satellite.mean;
      EXPECT_LT(mean.eccentricity, 0.8) << satellite.name;
      EXPECT_LE(mean.inclinationDeg, 180.0) << satellite.name;
      for (const double angle :
           {mean.ascendingNodeDeg, mean.argumentOfPericentreDeg, mean.meanAnomalyDeg}) {
        EXPECT_TRUE(angle >= 0.0 && angle < 360.0) << satellite.name;
      }
      if (std::isnan(satellite.absoluteMagnitude) || std::isnan(satellite.radiusKm)) continue;
      // What reflects between 1 and 160 % of the light that falls on it.
      const double albedo = std::pow(1329.0 / (2.0 * satellite.radiusKm), 2) *
                            std::pow(10.0, -0.4 * satellite.absoluteMagnitude);
      EXPECT_TRUE(albedo > 0.01 && albedo < 1.6) << satellite.name << " " << albedo;
    }
  }
}

}  // namespace
}  // namespace vyn
