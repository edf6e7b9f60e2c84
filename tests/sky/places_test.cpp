// Places of bodies and frames of the observer against published positions.
#include <cmath>

#include <gtest/gtest.h>

#include "engine/sky/lagrangian.h"
#include "engine/sky/sky_snapshot.h"
#include "engine/sky/time_scales.h"
#include "siblings/astro/angles.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

constexpr Site kTokyo{139.7447, 35.6544, 40.0};

double DegDifference(double a, double b) { return degmal(a - b + 180.0) - 180.0; }

TEST(TimeScales, DeltaTIsThePublishedOneAndHasNoJump) {
  // Espenak and Meeus' table of historical values, and leap seconds.
  const double published[][3] = {{-500, 17190, 60},  {0, 10580, 30},    {1000, 1570, 10},
                                 {1600, 120, 2},     {1700, 9, 1},      {1800, 13.7, 0.5},
                                 {1900, -2.7, 0.3},  {1955, 31.1, 0.2}, {1990, 56.86, 0.7},
                                 {2024, 69.18, 0.05}};
  for (const auto& [year, seconds, tolerance] : published) {
    EXPECT_NEAR(DeltaTSeconds(CalcJd(static_cast<int>(year), 1, 1.5)), seconds, tolerance) << year;
  }
  double before = DeltaTSeconds(CalcJd(1700, 1, 1));
  for (double jd = CalcJd(1700, 1, 31); jd < CalcJd(2300, 1, 1); jd += 30.0) {
    const double deltaT = DeltaTSeconds(jd);
    ASSERT_NEAR(deltaT, before, 1.5) << jd;
    before = deltaT;
  }
  EXPECT_NEAR(UtFromTt(TtFromUt(2460000.25)), 2460000.25, 1e-9);
}

TEST(Places, PlanetsAreWhereMeeusFindsThem) {
  // Meeus, "Astronomical Algorithms" (2nd ed.): Venus on 1992 Dec 20.0 TT, apparent geocentric
  // place (example 33.a), and the Moon on 1992 Apr 12.0 TT (example 47.a).
  const double jdTt = 2448976.5;
  const Observer observer(UtFromTt(jdTt), {});
  const StateVector earth = HeliocentricState(Body::Earth, jdTt);
  const StateVector venus = HeliocentricState(Body::Venus, jdTt);
  const Vector3 apparent =
      ApparentPlace(venus.position - earth.position, venus.velocity - earth.velocity);
  const Spherical place = observer.Equatorial(apparent);
  EXPECT_NEAR(place.longitudeDeg, 316.17291, 0.003);
  EXPECT_NEAR(place.latitudeDeg, -18.88801, 0.003);

  const double moonJdTt = 2448724.5;
  const Observer moonObserver(UtFromTt(moonJdTt), {});
  const StateVector moon = GeocentricMoon(moonJdTt);
  const Spherical moonPlace = moonObserver.Ecliptic(moon.position);
  EXPECT_NEAR(moonPlace.longitudeDeg, 133.167265, 0.003);
  EXPECT_NEAR(moonPlace.latitudeDeg, -3.229127, 0.003);
  EXPECT_NEAR(Length(moon.position) * kKmPerAu, 368409.7, 30.0);
}

TEST(Places, SunsApparentPlaceIsThePublishedOne) {
  // Meeus, example 25.b: 1992 Oct 13.0 TT.
  const SkySnapshot sky(UtFromTt(2448908.5), {});
  const BodyPlace& sun = sky.Place(Body::Sun);
  const Spherical place = sky.GetObserver().Equatorial(sun.fromSite);
  EXPECT_NEAR(place.longitudeDeg, 198.378178, 0.004) << "with up to 9 arc seconds of parallax";
  EXPECT_NEAR(place.latitudeDeg, -7.783871, 0.004);
  EXPECT_NEAR(sun.light.observerDistanceAu, 0.99760775, 5e-5);
}

TEST(Places, HorizonFollowsSiderealTime) {
  // Meeus, examples 12.b and 13.b: Venus from Washington, 1987 Apr 10, 19:21:00 UT.
  const Site washington{-(77 + 3.0 / 60 + 56.0 / 3600), 38 + 55.0 / 60 + 17.0 / 3600, 0.0};
  const Observer observer(GetJd(1987, 4, 10, 19, 21, 0.0, 0.0), washington);
  EXPECT_NEAR(observer.SiderealTimeDeg(), 128.7378734 - 0.0009857 - 77.0655556, 1e-4);
  const Vector3 direction = Transposed(observer.ToEquatorOfDate()) * AdToDc(347.3193375, -6.719892);
  const Spherical horizontal = observer.Horizontal(direction);
  EXPECT_NEAR(horizontal.longitudeDeg, 68.0337 + 180.0, 5e-4);
  EXPECT_NEAR(horizontal.latitudeDeg, 15.1249, 5e-4);
  EXPECT_NEAR(AngleBetween(observer.Zenith(), observer.SitePosition()) * kDegPerRad, 0.188, 0.005)
      << "the vertical deviates from the Earth's centre";
}

TEST(Places, MoonStandsLowerFromTheGroundThanFromTheCentre) {
  const SkySnapshot sky(GetJd(2026, 1, 1, 21, 0, 0.0, 9.0), kTokyo);
  const Observer& observer = sky.GetObserver();
  const Spherical seen = observer.Horizontal(sky.Place(Body::Moon).fromSite);
  const Spherical fromCentre = observer.Horizontal(GeocentricMoon(sky.JdTt()).position);
  const double parallaxDeg = 0.998 * kEarthRadiusKm /
                             (sky.Place(Body::Moon).light.observerDistanceAu * kKmPerAu) *
                             std::cos(fromCentre.latitudeDeg * kRadPerDeg) * kDegPerRad;
  EXPECT_GT(seen.latitudeDeg, 0.0);
  EXPECT_NEAR(fromCentre.latitudeDeg - seen.latitudeDeg, parallaxDeg, 0.01);
}

TEST(Places, SiteMovesAsItsVelocitySays) {
  const double jd = 2460000.3;
  const double days = 1e-3;
  const Observer before(jd - days, kTokyo);
  const Observer after(jd + days, kTokyo);
  const Vector3 change = (after.SitePosition() - before.SitePosition()) / (2.0 * days);
  EXPECT_NEAR(Length(Observer(jd, kTokyo).SiteVelocity() - change) / Length(change), 0.0, 1e-4);
}

TEST(Places, RefractionIsThePublishedOneAndNeverNegative) {
  EXPECT_NEAR(RefractionDeg(0.0), 28.98 / 60.0, 0.01);
  EXPECT_NEAR(RefractionDeg(33.0 / 60.0), 24.62 / 60.0, 0.01) << "Meeus, example 16.a";
  EXPECT_NEAR(RefractionDeg(90.0), 0.0, 1e-4);
  for (double altitude = -90.0; altitude <= 90.0; altitude += 0.5) {
    EXPECT_GE(RefractionDeg(altitude), 0.0);
  }
}

TEST(Places, OrbitsPassThroughTheirBodies) {
  const double jdTt = 2460676.5;
  for (const Body planet : kPlanets) {
    const OrbitElements orbit = OrbitOf(planet, jdTt);
    const Vector3 there = HeliocentricState(planet, jdTt).position;
    EXPECT_NEAR(Length(PositionAt(orbit, jdTt) - there), 0.0, 5e-5) << FactsOf(planet).name;
  }
  const OrbitElements moon = OrbitOf(Body::Moon, jdTt);
  EXPECT_NEAR(PeriodDays(moon), 27.32, 1.0);
  EXPECT_NEAR(moon.inclinationDeg, 5.15, 0.2);
  EXPECT_NEAR(PeriodDays(OrbitOf(Body::Jupiter, jdTt)) / 365.25, 11.86, 0.05);
  EXPECT_NEAR(OrbitOf(Body::Earth, jdTt).eccentricity, 0.0167, 0.0005);
}

TEST(Places, LagrangianPointsAreAtRestInTheTurningFrame) {
  for (const Body body : {Body::Moon, Body::Mercury, Body::Earth, Body::Jupiter}) {
    SCOPED_TRACE(FactsOf(body).name);
    const double central = body == Body::Moon ? FactsOf(Body::Earth).massInSuns : 1.0;
    const double m = FactsOf(body).massInSuns / (FactsOf(body).massInSuns + central);
    const LagrangianPoints points = LagrangianPointsOf({{1, 0, 0}, {0, 1, 0}}, m);
    const Vector3 smaller{1.0, 0.0, 0.0};
    const Vector3 barycentre{m, 0.0, 0.0};
    for (const Vector3& point : points) {
      const Vector3 fromLarger = point;
      const Vector3 fromSmaller = point - smaller;
      const Vector3 force = (point - barycentre) -
                            fromLarger * ((1.0 - m) / std::pow(Length(fromLarger), 3)) -
                            fromSmaller * (m / std::pow(Length(fromSmaller), 3));
      EXPECT_NEAR(Length(force), 0.0, 1e-12);
    }
    EXPECT_GT(points[3].y, 0.0);
  }
  // Known distances: the Moon's L1 about 326,400 km from the Earth at its mean distance, the
  // Earth's L1 and L2 about 1.5 million km from it.
  const auto moon = CollinearDistancesOf(0.0121505856);
  EXPECT_NEAR((1.0 - moon.l1) * 384400.0, 326380.0, 100.0);
  const auto earth = CollinearDistancesOf(3.00349e-6);
  EXPECT_NEAR(earth.l1 * 1.495979e8, 1.4916e6, 1500.0);
  EXPECT_NEAR(earth.l2 * 1.495979e8, 1.5016e6, 1500.0);
}

TEST(SmallBodies, CometsAreWhereTheirElementsPutThem) {
  // Meeus, example 33.b: comet Encke, 1990 Oct 6.0 TT, astrometric place.
  const OrbitElements encke{.perihelionJd = CalcJd(1990, 10, 28.54502),
                            .perihelionDistanceAu = 2.2091404 * (1.0 - 0.8502196),
                            .eccentricity = 0.8502196,
                            .argumentOfPerihelionDeg = 186.23352,
                            .ascendingNodeDeg = 334.75006,
                            .inclinationDeg = 11.94524};
  const double jdTt = 2448170.5;
  const StateVector comet = StateAt(encke, jdTt);
  const Vector3 geocentric = comet.position - HeliocentricState(Body::Earth, jdTt).position;
  const Vector3 seen = ApparentPlace(geocentric, comet.velocity);
  const Spherical place = DcToAd(EquatorFromEcliptic() * seen);
  EXPECT_NEAR(place.longitudeDeg, 158.558965, 0.002);
  EXPECT_NEAR(place.latitudeDeg, 19.158496, 0.002);
  EXPECT_NEAR(Length(geocentric), 0.8243689, 2e-5);
}

TEST(SmallBodies, PlacesOfAFileAgreeWithThoseOfSingleObjects) {
  ElementTable table;
  ASSERT_TRUE(table.Load(QStringLiteral(VYN_DATA_DIR "/comets.eld")));
  const SkySnapshot sky(GetJd(1997, 4, 1, 10, 0, 0.0, 0.0), kTokyo);
  SmallBodyPlaces places;
  places.SetTable(table);
  places.Update(sky);
  ASSERT_EQ(places.Count(), table.Count());
  for (int i = 0; i < places.Count(); ++i) {
    const Vector3 alone = PositionAt(table.Body(i).orbit, sky.JdTt());
    ASSERT_NEAR(Length(places.Heliocentric(i) - alone), 0.0, 1e-7 * Length(alone));
    ASSERT_TRUE(std::isfinite(places.FromSite(i).x));
  }
  const int haleBopp = table.IndexOf(u"C/1995 O1");
  EXPECT_NEAR(Length(places.Heliocentric(haleBopp)), 0.915, 0.01) << "perihelion three days before";
  EXPECT_NEAR(places.Magnitude(haleBopp), -1.0, 0.8) << "it was of magnitude -1 then";
  const Spherical place = sky.GetObserver().Equatorial(places.FromSite(haleBopp));
  EXPECT_NEAR(DegDifference(place.longitudeDeg, 29.0), 0.0, 3.0) << "in Andromeda";
  EXPECT_NEAR(place.latitudeDeg, 45.0, 3.0);
}

}  // namespace
}  // namespace vyn
