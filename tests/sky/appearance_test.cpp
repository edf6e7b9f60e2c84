// How bodies look: magnitudes, phases, orientation of disks, eclipses.
#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "engine/sky/eclipses.h"
#include "engine/sky/sky_snapshot.h"
#include "engine/sky/time_scales.h"
#include "siblings/astro/angles.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

TEST(Magnitudes, PlanetsAreAsBrightAsPublished) {
  // From the test cases published with Mallama and Hilton 2018; where it leaves out the parts for
  // rotation and seasons the tolerance says so.
  struct Case {
    Body body;
    double sunAu;
    double observerAu;
    double phaseDeg;
    double ringTiltDeg;
    double magnitude;
    double tolerance;
  };
  const Case cases[] = {
      {Body::Mercury, 0.310295423552, 1.32182643625754, 1.1677, 0, -2.477, 0.001},
      {Body::Mercury, 0.413629222334, 0.92644808718613, 90.1662, 0, 0.181, 0.001},
      {Body::Mercury, 0.448947624811, 0.56004973217883, 178.7284, 0, 7.167, 0.001},
      {Body::Venus, 0.722722540169, 1.71607489554051, 1.3232, 0, -3.917, 0.001},
      {Body::Venus, 0.721480714554, 0.37762511206278, 124.1348, 0, -4.916, 0.001},
      {Body::Venus, 0.726166592736, 0.28889582420642, 179.1845, 0, -3.090, 0.001},
      {Body::Jupiter, 5.446231815414, 6.44985867459088, 0.2446, 0, -1.667, 0.001},
      {Body::Jupiter, 4.957681473205, 3.95393078136013, 0.3431, 0, -2.934, 0.001},
      {Body::Jupiter, 5.227587855371, 5.23501920009381, 147.0989, 0, 0.790, 0.001},
      {Body::Mars, 1.38, 0.3727, 0.0, 0, -3.05, 0.1},
      {Body::Saturn, 9.014, 8.014, 0.1, 26.7, -0.55, 0.1},
      {Body::Neptune, 30.03, 29.03, 0.0, 0, 7.70, 0.02},
      {Body::Sun, 1.0, 1.0, 0.0, 0, -26.74, 1e-9},
      {Body::Moon, 1.0, 384400.0 / kKmPerAu, 0.0, 0, -12.74, 0.03},
  };
  for (const Case& c : cases) {
    EXPECT_NEAR(MagnitudeOf(c.body, {c.sunAu, c.observerAu, c.phaseDeg}, c.ringTiltDeg, 2010.0),
                c.magnitude, c.tolerance)
        << FactsOf(c.body).name << ' ' << c.phaseDeg;
  }
}

TEST(Magnitudes, SmallBodiesFollowTheirFormulas) {
  EXPECT_NEAR(CometMagnitude(6.0, 4.0, {2.0, 0.5, 30.0}), 6.0 - 1.50515 + 3.0103, 1e-5);
  EXPECT_NEAR(MinorPlanetMagnitude(3.34, 0.12, {1.0, 1.0, 0.0}), 3.34, 1e-12);
  // Ceres at opposition with phase 10: Phi1 and Phi2 of Bowell et al. in full.
  EXPECT_NEAR(MinorPlanetMagnitude(3.34, 0.15, {2.77, 1.80, 10.0}), 3.34 + 3.4888 + 0.6339, 0.02);
  EXPECT_TRUE(std::isnan(CometMagnitude(NAN, 4.0, {1.0, 1.0, 0.0})));
}

TEST(Phases, MoonIsLitAsPublished) {
  // Meeus, example 48.a: 1992 Apr 12.0 TT, from the Earth's centre.
  const double jdTt = 2448724.5;
  const Observer observer(UtFromTt(jdTt), {});
  const StateVector earth = HeliocentricState(Body::Earth, jdTt);
  const StateVector moon = GeocentricMoon(jdTt);
  const Illumination light = IlluminationOf(earth.position + moon.position, moon.position);
  EXPECT_NEAR(light.phaseAngleDeg, 69.0756, 0.01);
  EXPECT_NEAR(IlluminatedFraction(light.phaseAngleDeg), 0.6786, 2e-4);
  EXPECT_NEAR(PositionAngleDeg(moon.position, -earth.position, observer.CelestialPole()), 285.04,
              0.05);
  EXPECT_NEAR(ApparentDiameterDeg(FactsOf(Body::Moon).radiusKm, Length(moon.position)) * 60.0,
              2 * 16.21, 0.02);
}

TEST(DiskOrientation, SunAndMoonStandAsPublished) {
  // Meeus, example 29.a: the Sun on 1992 Oct 13.0 TT.
  const SkySnapshot sky(UtFromTt(2448908.5), {});
  const DiskOrientation& sun = sky.Place(Body::Sun).disk;
  EXPECT_NEAR(sun.axisAngleDeg, 26.27, 0.03);
  EXPECT_NEAR(sun.centralLatitudeDeg, 5.99, 0.03);
  EXPECT_NEAR(sun.centralLongitudeDeg, 238.63, 0.02);

  // Meeus, example 53.a: the Moon on 1992 Apr 12.0 TT, from the Earth's centre.
  const double jdTt = 2448724.5;
  const Observer observer(UtFromTt(jdTt), {});
  const DiskOrientation moon =
      OrientationOf(Body::Moon, jdTt, GeocentricMoon(jdTt).position, observer.CelestialPole());
  EXPECT_NEAR(moon.centralLongitudeDeg, 360.0 - 1.23, 0.05);
  EXPECT_NEAR(moon.centralLatitudeDeg, 4.20, 0.05);
  EXPECT_NEAR(moon.axisAngleDeg, 15.08, 0.05);
}

TEST(DiskOrientation, PlanetsStandAsPublished) {
  // Meeus, examples 43.a (Jupiter, 1992 Dec 16.0 UT: De -2.48, P 24.80) and 45.a (Saturn's rings,
  // 1992 Dec 16.0 TT: B 16.442, P 6.741).
  const SkySnapshot sky(2448972.5, {});
  EXPECT_NEAR(sky.Place(Body::Jupiter).disk.centralLatitudeDeg, -2.48, 0.02);
  EXPECT_NEAR(sky.Place(Body::Jupiter).disk.axisAngleDeg, 24.80, 0.05);
  EXPECT_NEAR(sky.Place(Body::Saturn).disk.centralLatitudeDeg, 16.442, 0.02);
  EXPECT_NEAR(sky.Place(Body::Saturn).disk.axisAngleDeg, 6.741, 0.05);
}

TEST(DiskOrientation, TheDiskOfSunspotsTurnsAsTheBodyDoes) {
  const double longitude = 238.63;
  const double latitude = 5.99;
  const Matrix3 toBody = BodyFromDisk(longitude, latitude);
  const Spherical middle = DcToAd(RotateDc(toBody, {0, 0, 1}));
  EXPECT_NEAR(middle.longitudeDeg, longitude, 1e-9);
  EXPECT_NEAR(middle.latitudeDeg, latitude, 1e-9);
  const Spherical right = DcToAd(RotateDc(toBody, {1, 0, 0}));
  EXPECT_NEAR(right.longitudeDeg, longitude + 90.0, 1e-9) << "longitudes grow to the right";
  const Vector3 pole = RotateDc(Transposed(toBody), {0, 0, 1});
  EXPECT_NEAR(pole.x, 0.0, 1e-12);
  EXPECT_NEAR(pole.z, std::sin(latitude * kRadPerDeg), 1e-12) << "the north pole leans to us";
}

struct SolarCase {
  int year;
  int month;
  int day;
  double hoursUt;  ///< of greatest eclipse
  EclipseKind kind;
  double gamma;
  double longitudeDeg;
  double latitudeDeg;
  double widthKm;
};

double KmBetween(const Spherical& a, const Spherical& b) {
  return AngleBetween(AdToDc(a.longitudeDeg, a.latitudeDeg),
                      AdToDc(b.longitudeDeg, b.latitudeDeg)) *
         6371.0;
}

/// The left edge is to the left of whoever goes along with the shadow.
void ExpectLeftOfTheWay(const std::vector<CentralPathPoint>& path, std::size_t at) {
  const auto direction = [](const Spherical& place) {
    return AdToDc(place.longitudeDeg, place.latitudeDeg);
  };
  const Vector3 up = direction(path[at].centre);
  const Vector3 forward = direction(path[at + 1].centre) - up;
  EXPECT_GT(Dot(Cross(up, forward), direction(*path[at].left) - direction(*path[at].right)), 0.0);
}

TEST(Eclipses, SolarEclipsesComeWhenAndWhereTheyDid) {
  // Espenak and Meeus, "Five Millennium Canon of Solar Eclipses": greatest eclipse.
  const SolarCase cases[] = {
      {2017, 8, 21, 18 + 25.53 / 60, EclipseKind::Total, 0.4367, 360 - 87.67, 36.97, 114.7},
      {2024, 4, 8, 18 + 17.30 / 60, EclipseKind::Total, 0.3431, 360 - 104.14, 25.29, 197.5},
      {2012, 5, 20, 23 + 52.80 / 60, EclipseKind::Annular, 0.4828, 176.3, 49.09, 236.9},
      {2009, 7, 22, 2 + 35.35 / 60, EclipseKind::Total, 0.0698, 144.12, 24.21, 258.4},
      {2019, 1, 6, 1 + 41.53 / 60, EclipseKind::Partial, 1.1417, 0, 0, 0},
      {2026, 7, 14, -1, EclipseKind::None, 0, 0, 0, 0},
  };
  for (const SolarCase& c : cases) {
    SCOPED_TRACE(testing::Message() << c.year << '-' << c.month);
    const double jd = CalcJd(c.year, c.month, c.day + std::max(0.0, c.hoursUt) / 24.0);
    const SolarEclipse eclipse = SolarEclipseNear(jd + 3.0);
    EXPECT_EQ(eclipse.kind, c.kind);
    if (c.kind == EclipseKind::None) continue;
    EXPECT_NEAR(eclipse.jdGreatestUt, jd, 40.0 / 86400.0);
    EXPECT_NEAR(eclipse.gamma, c.gamma, 0.006);
    const std::vector<CentralPathPoint> path = CentralPathNear(jd, 2.0);
    EXPECT_EQ(path.empty(), c.kind == EclipseKind::Partial);
    if (path.empty()) continue;
    const auto greatest = std::min_element(path.begin(), path.end(), [&](auto& a, auto& b) {
      return std::abs(a.jdUt - eclipse.jdGreatestUt) < std::abs(b.jdUt - eclipse.jdGreatestUt);
    });
    EXPECT_LT(KmBetween(greatest->centre, {c.longitudeDeg, c.latitudeDeg}), 60.0);
    EXPECT_EQ(greatest->total, c.kind == EclipseKind::Total);
    ASSERT_TRUE(greatest->left && greatest->right);
    EXPECT_NEAR(KmBetween(*greatest->left, *greatest->right), c.widthKm, 0.06 * c.widthKm);
    ExpectLeftOfTheWay(path, greatest - path.begin());
  }
}

TEST(Eclipses, ShadowsOnTheGroundSurroundTheirMiddle) {
  const double jd = CalcJd(2017, 8, 21 + (18 + 25.53 / 60) / 24.0);
  const auto umbra = ShadowOutline(jd, ShadowCone::Umbra, 36);
  const auto penumbra = ShadowOutline(jd, ShadowCone::Penumbra, 36);
  ASSERT_EQ(umbra.size(), 36U);
  const Spherical centre = CentralPathNear(jd, 1000.0).front().centre;
  for (const auto& point : umbra) {
    ASSERT_TRUE(point);
    EXPECT_LT(KmBetween(*point, centre), 120.0);
    EXPECT_GT(KmBetween(*point, centre), 40.0);
  }
  const auto onGround =
      std::count_if(penumbra.begin(), penumbra.end(), [](auto& p) { return !!p; });
  EXPECT_GT(onGround, 10);
  for (const auto& point : penumbra) {
    EXPECT_TRUE(!point || KmBetween(*point, centre) > 2500.0);
  }
  for (const auto& point : ShadowOutline(jd + 5.0, ShadowCone::Penumbra, 36)) EXPECT_FALSE(point);
}

TEST(Eclipses, NoDateKeepsTheSearchFromEnding) {
  for (const double jd : {-1e6, 0.0, 1e7, 1e12, double{NAN}, double{INFINITY}}) {
    SolarEclipseNear(jd);
    LunarEclipseNear(jd);
    EXPECT_EQ(SkySnapshot(jd, {}).Places().size(), std::size_t{kBodyCount});
  }
  EXPECT_TRUE(CentralPathNear(2457987.0, 0.0).empty());
}

TEST(Eclipses, LunarEclipsesComeWhenAndAsDeepAsTheyDid) {
  // Espenak and Meeus, "Five Millennium Canon of Lunar Eclipses".
  struct Case {
    int year;
    int month;
    double day;
    EclipseKind kind;
    double umbral;
    double penumbral;
  };
  const Case cases[] = {
      {2025, 9, 7 + (18 + 11.80 / 60) / 24, EclipseKind::Total, 1.3619, 2.3440},
      {2023, 10, 28 + (20 + 14.08 / 60) / 24, EclipseKind::Partial, 0.1220, 1.1181},
      {2024, 3, 25 + (7 + 12.83 / 60) / 24, EclipseKind::Penumbral, -0.1320, 0.9557},
      {2018, 7, 27 + (20 + 21.73 / 60) / 24, EclipseKind::Total, 1.6087, 2.6792},
      {2026, 5, 31 + (8 + 45.0 / 60) / 24, EclipseKind::None, -4.0, -3.0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.year << '-' << c.month);
    const double jd = CalcJd(c.year, c.month, c.day);
    const LunarEclipse eclipse = LunarEclipseNear(jd - 4.0);
    EXPECT_EQ(eclipse.kind, c.kind);
    if (c.kind == EclipseKind::None) continue;
    EXPECT_NEAR(eclipse.jdGreatestUt, jd, 60.0 / 86400.0);
    EXPECT_NEAR(eclipse.umbralMagnitude, c.umbral, 0.006);
    EXPECT_NEAR(eclipse.penumbralMagnitude, c.penumbral, 0.006);
  }
}

}  // namespace
}  // namespace vyn
