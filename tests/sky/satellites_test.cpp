// Places of satellites against worked examples, against how the satellites turn, and as orbits.
#include <cmath>

#include <gtest/gtest.h>

#include "engine/sky/disk_orientation.h"
#include "engine/sky/satellites.h"
#include "siblings/astro/angles.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {
namespace {

constexpr double kJ2000 = 2451545.0;
constexpr double kVoyagerAtUranusJd = 2446450.0;

Vector3 NorthPole(Body body, double jdTt) {
  return Transposed(ToBodyFixed(body, jdTt)) * Vector3{0.0, 0.0, 1.0};
}

/// As seen from the Earth's centre beside the planet, in the planet's radii.
struct Apparent {
  double west;
  double north;  ///< along the planet's axis
};

Apparent SeenFromEarth(Primary primary, int number, double jdTt, const Vector3& pole,
                       double radiusKm) {
  const StateVector earth = HeliocentricState(Body::Earth, jdTt);
  const StateVector planet = HeliocentricState(primary, jdTt);
  const double lightDays = Length(planet.position - earth.position) / kLightAuPerDay;
  const Vector3 way = planet.position - planet.velocity * lightDays - earth.position;
  const Vector3 sight = Normalized(way);
  const Vector3 north = Normalized(pole - sight * Dot(pole, sight));
  const Vector3 place = SatellitePosition(primary, number, jdTt - lightDays);
  const double nearer = Length(way) / (Length(way) + Dot(place, sight));
  const Vector3 seen = place * (nearer * kKmPerAu / radiusKm);
  return {Dot(seen, Cross(sight, north)), Dot(seen, north)};
}

TEST(Satellites, GalileansAreWhereMeeusFindsThem) {
  // "Astronomical Algorithms" (2nd ed.), example 44.b, the same moment as 44.a: 1992 Dec 16.0 UT.
  const double jdTt = 2448972.50068;
  const Apparent published[] = {
      {-3.4502, 0.2137}, {7.4418, 0.2753}, {1.2011, 0.5900}, {7.0720, 1.0290}};
  for (int number = 1; number <= 4; ++number) {
    const auto [west, north] =
        SeenFromEarth(Primary::Jupiter, number, jdTt, NorthPole(Body::Jupiter, jdTt), 71398.0);
    EXPECT_NEAR(west, published[number - 1].west, 0.006) << number;
    EXPECT_NEAR(north, published[number - 1].north, 0.006) << number;
  }
}

TEST(Satellites, SaturniansAreWhereMeeusFindsThem) {
  // Example 46.a, in the radii that the theory uses.
  const double jdTt = 2451439.50074;
  const Apparent published[] = {{3.102, -0.204},   {3.823, 0.318},   {4.027, -1.061},
                                {-5.365, -1.148},  {-0.972, -3.136}, {14.568, 4.738},
                                {-18.001, -5.328}, {-48.760, 4.137}};
  for (int number = 1; number <= 8; ++number) {
    const auto [west, north] =
        SeenFromEarth(Primary::Saturn, number, jdTt, NorthPole(Body::Saturn, jdTt), 60440.0);
    EXPECT_NEAR(west, published[number - 1].west, 0.01) << number;
    EXPECT_NEAR(north, published[number - 1].north, 0.01) << number;
  }
}

/// How a satellite turns that keeps one side to its planet: its pole, its prime meridian at J2000
/// and the meridian's rate.
struct BoundRotation {
  Primary primary;
  int number;
  double poleRaDeg;
  double poleDecDeg;
  double meridianDeg;
  double meridianDegPerDay;
  double jd;
  double toleranceDeg;
};

// The IAU working group on cartographic coordinates, 2009. The tolerance leaves room for what
// swings the place about its mean, which the rotation does not follow, and for meridians that are
// fixed by a crater (Ganymede). The inner satellites of
// Uranus are compared when they were found; their rates have been corrected since.
// clang-format off
constexpr BoundRotation kBoundRotations[] = {
  {Primary::Mars,     1, 317.68,  52.90,  35.06,   1128.8445850, kJ2000, 1.5},
  {Primary::Mars,     2, 316.65,  53.52,  79.41,    285.1618970, kJ2000, 2.0},
  {Primary::Jupiter,  1, 268.05,  64.50, 200.39,    203.4889538, kJ2000, 1.0},
  {Primary::Jupiter,  2, 268.08,  64.51,  36.022,   101.3747235, kJ2000, 2.0},
  {Primary::Jupiter,  3, 268.20,  64.57,  44.064,    50.3176081, kJ2000, 3.0},
  {Primary::Jupiter,  4, 268.72,  64.83, 259.51,     21.5710715, kJ2000, 2.0},
  {Primary::Jupiter,  5, 268.05,  64.49, 231.67,    722.6314560, kJ2000, 2.0},
  {Primary::Jupiter, 14, 268.05,  64.49,   8.56,    533.7004100, kJ2000, 1.0},
  {Primary::Jupiter, 16, 268.05,  64.49, 346.09,   1221.2547301, kJ2000, 1.0},
  {Primary::Saturn,   2,  40.66,  83.52,   6.32,    262.7318996, kJ2000, 4.0},
  {Primary::Saturn,   4,  40.66,  83.52, 357.6,     131.5349316, kJ2000, 1.0},
  {Primary::Saturn,  13,  50.51,  84.06,  56.88,    190.6979332, kJ2000, 2.0},
  {Primary::Saturn,  17,  40.58,  83.53, 162.92,    572.7891000, kJ2000, 4.0},
  {Primary::Uranus,   1, 257.43, -15.10, 156.22,   -142.8356681, kJ2000, 1.0},
  {Primary::Uranus,   2, 257.43, -15.10, 108.05,    -86.8688923, kJ2000, 1.5},
  {Primary::Uranus,   3, 257.43, -15.10,  77.74,    -41.3514316, kJ2000, 1.0},
  {Primary::Uranus,   4, 257.43, -15.10,   6.77,    -26.7394932, kJ2000, 1.0},
  {Primary::Uranus,   5, 257.43, -15.08,  30.70,   -254.6906892, kJ2000, 4.5},
  {Primary::Uranus,   6, 257.31, -15.18, 127.69,  -1074.5205730, kVoyagerAtUranusJd, 0.5},
  {Primary::Uranus,  11, 257.31, -15.18, 302.56,   -730.1253660, kVoyagerAtUranusJd, 0.5},
  {Primary::Uranus,  15, 257.31, -15.18,  91.24,   -472.5450690, kVoyagerAtUranusJd, 0.5},
  {Primary::Neptune,  3, 299.36,  43.36, 254.06,   1222.8441209, kJ2000, 4.8},
  {Primary::Neptune,  5, 299.36,  43.45, 306.51,   1075.7341562, kJ2000, 2.0},
  {Primary::Neptune,  8, 299.27,  42.91,  93.38,    320.7654228, kJ2000, 1.0},
  {Primary::Pluto,    1, 132.993, -6.163, 122.695,   56.3625225, kJ2000, 1.5},
};
// clang-format on

TEST(Satellites, StandWhereTheirPrimeMeridianPoints) {
  for (const BoundRotation& r : kBoundRotations) {
    const double meridianDeg = r.meridianDeg + r.meridianDegPerDay * (r.jd - kJ2000);
    const Matrix3 toSatellite = FrameRotationZ(meridianDeg) * FrameRotationX(90.0 - r.poleDecDeg) *
                                FrameRotationZ(90.0 + r.poleRaDeg) * EquatorFromEcliptic();
    const Vector3 towardsPlanet = toSatellite * -SatellitePosition(r.primary, r.number, r.jd);
    EXPECT_LT(AngleBetween(towardsPlanet, {1.0, 0.0, 0.0}) * kDegPerRad, r.toleranceDeg)
        << SatellitesOf(r.primary)[r.number - 1].name;
  }
}

TEST(Satellites, TritonFollowsItsTurningPole) {
  // The same report.
  for (const double jd : {2447763.5, kJ2000, 2461042.0}) {
    const double n7 = (177.85 + 52.316 * (jd - kJ2000) / 36525.0) * kRadPerDeg;
    const double raTerms[] = {-32.35, -6.28, -2.08, -0.74, -0.28, -0.11, -0.07};
    const double decTerms[] = {22.55, 2.10, 0.55, 0.16, 0.05, 0.02, 0.01};
    double ra = 299.36;
    double dec = 41.17;
    for (int k = 0; k < 7; ++k) {
      ra += raTerms[k] * std::sin((k + 1) * n7);
      dec += decTerms[k] * std::cos((k + 1) * n7);
    }
    const Vector3 retrogradePole =
        EquatorFromEcliptic() * Cross(SatellitePosition(Primary::Neptune, 1, jd + 1.0),
                                      SatellitePosition(Primary::Neptune, 1, jd));
    EXPECT_LT(AngleBetween(retrogradePole, AdToDc(ra, dec)) * kDegPerRad, 0.1) << jd;
  }
}

TEST(Satellites, TritonIsWhereTheEphemerisHasIt) {
  // Jet Propulsion Laboratory, Horizons: node, inclination and argument of latitude at J2000 on
  // Neptune's equator.
  const Matrix3 toEquator = FrameRotationX(90.0 - 42.950) * FrameRotationZ(90.0 + 299.334);
  const Matrix3 toOrbit = FrameRotationX(156.82788715) * FrameRotationZ(177.86692346);
  const Vector3 place =
      toOrbit * toEquator * EquatorFromEcliptic() * SatellitePosition(Primary::Neptune, 1, kJ2000);
  EXPECT_LT(AngleBetween(place, AdToDc(236.46267052 - 177.86692346, 0.0)) * kDegPerRad, 0.5);
}

/// How many turns the satellite makes in the time about its planet's pole; against the pole's
/// sense negative.
double TurnsIn(Primary primary, int number, const Vector3& pole, double days) {
  constexpr int kStepsPerDay = 8;
  double angle = 0.0;
  Vector3 before = SatellitePosition(primary, number, kJ2000);
  for (int step = 1; step <= days * kStepsPerDay; ++step) {
    const double jd = kJ2000 + static_cast<double>(step) / kStepsPerDay;
    const Vector3 place = SatellitePosition(primary, number, jd);
    angle += std::copysign(AngleBetween(before, place), Dot(Cross(before, place), pole));
    before = place;
  }
  return angle * kDegPerRad / 360.0;
}

TEST(Satellites, TitanAndTritonKeepTheirPeriods) {
  const double days = 400.0;
  EXPECT_NEAR(TurnsIn(Primary::Saturn, 6, NorthPole(Body::Saturn, kJ2000), days), days / 15.945421,
              0.02);
  EXPECT_NEAR(TurnsIn(Primary::Neptune, 1, NorthPole(Body::Neptune, kJ2000), days),
              -days / 5.876854, 0.02);
}

TEST(Satellites, LieOnTheirOrbitLines) {
  const double jd = 2461042.0;
  for (const Primary primary : kPrimaries) {
    const auto satellites = SatellitesOf(primary);
    for (int number = 1; number <= static_cast<int>(satellites.size()); ++number) {
      if (!satellites[number - 1].HasOrbit()) continue;
      const double semiMajorAxisAu = satellites[number - 1].mean.semiMajorAxisKm / kKmPerAu;
      const Vector3 place = SatellitePosition(primary, number, jd);
      const auto line = SatelliteOrbitPolyline(primary, number, jd, 361);
      ASSERT_EQ(line.size(), 361U);
      EXPECT_EQ(line.front(), line.back());
      double nearest = 10.0;
      for (const Vector3& point : line) nearest = std::min(nearest, Length(point - place));
      EXPECT_LT(nearest, 0.01 * semiMajorAxisAu) << satellites[number - 1].name;
    }
  }
}

TEST(Satellites, WithoutOrbitHaveNoPlace) {
  const int propeller = static_cast<int>(SatellitesOf(Primary::Saturn).size());
  ASSERT_EQ(SatellitesOf(Primary::Saturn)[propeller - 1].name, "S/2009 S 1");
  const std::pair<Primary, int> placeless[] = {{Primary::Saturn, propeller},
                                               {Primary::Makemake, 1},
                                               {Primary::Venus, 1},
                                               {Primary::Mars, 0},
                                               {Primary::Mars, 3}};
  for (const auto& [primary, number] : placeless) {
    EXPECT_TRUE(std::isnan(SatellitePosition(primary, number, kJ2000).x));
    EXPECT_TRUE(SatelliteOrbitPolyline(primary, number, kJ2000, 10).empty());
  }
}

TEST(Satellites, AreAsBrightAsInTheAlmanac) {
  const auto atOpposition = [](Primary primary, int number, double sunDistanceAu) {
    return SatelliteMagnitude(SatellitesOf(primary)[number - 1],
                              {sunDistanceAu, sunDistanceAu - 1.0, 0.0});
  };
  EXPECT_NEAR(atOpposition(Primary::Jupiter, 3, 5.20), 4.6, 0.1);
  EXPECT_NEAR(atOpposition(Primary::Saturn, 6, 9.54), 8.4, 0.1);
  EXPECT_NEAR(atOpposition(Primary::Neptune, 1, 30.1), 13.5, 0.1);
  EXPECT_TRUE(std::isnan(atOpposition(Primary::Haumea, 1, 50.0)));
}

}  // namespace
}  // namespace vyn
