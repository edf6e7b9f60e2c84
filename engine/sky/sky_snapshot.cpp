#include "engine/sky/sky_snapshot.h"

#include <algorithm>
#include <cmath>
#include <thread>

namespace vyn {
namespace {

/// What counts for a record that leaves the coefficient blank.
constexpr double kUsualCometCoefficient = 4.0;
constexpr double kUsualSlope = 0.15;

SmallBody BodyInColumns(const ElementColumns& columns, int row) {
  SmallBody body;
  body.orbit = {.perihelionJd = columns.perihelionJd[row],
                .perihelionDistanceAu = columns.perihelionDistanceAu[row],
                .eccentricity = columns.eccentricity[row],
                .argumentOfPerihelionDeg = columns.argumentOfPerihelionDeg[row],
                .ascendingNodeDeg = columns.ascendingNodeDeg[row],
                .inclinationDeg = columns.inclinationDeg[row]};
  body.absoluteMagnitude = columns.absoluteMagnitude[row];
  body.magnitudeCoefficient = columns.magnitudeCoefficient[row];
  return body;
}

double CoefficientOf(const SmallBody& body, bool comet) {
  if (!std::isnan(body.magnitudeCoefficient)) return body.magnitudeCoefficient;
  return comet ? kUsualCometCoefficient : kUsualSlope;
}

double YearOf(double jd) { return 2000.0 + (jd - 2451545.0) / 365.25; }

}  // namespace

SkySnapshot::SkySnapshot(double jdUt, const Site& site) : observer_(jdUt, site) {
  const StateVector earth = HeliocentricState(Body::Earth, JdTt());
  site_ = {earth.position + observer_.SitePosition(), earth.velocity + observer_.SiteVelocity()};
  for (int i = 0; i < kBodyCount; ++i) places_[i] = PlaceOf(static_cast<Body>(i));
}

BodyPlace SkySnapshot::PlaceOf(Body body) const {
  const StateVector state = HeliocentricState(body, JdTt());
  BodyPlace place;
  place.body = body;
  place.heliocentric = state.position;
  if (body == Body::Earth) return place;
  place.fromSite = ApparentPlace(state.position - site_.position, state.velocity - site_.velocity);
  const double lightDays = Length(place.fromSite) / kLightAuPerDay;
  const Vector3 pole = observer_.CelestialPole();
  place.disk = OrientationOf(body, JdTt() - lightDays, place.fromSite, pole);
  place.light = IlluminationOf(place.heliocentric, place.fromSite);
  place.magnitude = MagnitudeOf(body, place.light, place.disk.centralLatitudeDeg, YearOf(JdTt()));
  place.illuminatedFraction =
      body == Body::Sun ? 1.0 : IlluminatedFraction(place.light.phaseAngleDeg);
  place.apparentDiameterDeg =
      ApparentDiameterDeg(FactsOf(body).radiusKm, place.light.observerDistanceAu);
  place.brightLimbAngleDeg = PositionAngleDeg(place.fromSite, -site_.position, pole);
  return place;
}

double SmallBodyMagnitude(const ElementTable& table, int object, double jdTt,
                          const StateVector& observer) {
  const SmallBody body = table.PageCount(object) > 1 ? table.BodyAt(object, jdTt)
                                                     : BodyInColumns(table.Columns(), object);
  if (std::isnan(body.absoluteMagnitude)) return body.absoluteMagnitude;
  const bool comet = table.IsComet(object);
  const Vector3 place = PositionAt(body.orbit, jdTt);
  const auto magnitude = comet ? CometMagnitude : MinorPlanetMagnitude;
  return magnitude(body.absoluteMagnitude, CoefficientOf(body, comet),
                   IlluminationOf(place, place - observer.position));
}

SmallBodyPlaces::Fixed SmallBodyPlaces::FixedOf(const SmallBody& body, bool comet) {
  return {body.orbit, PlaneOf(body.orbit), static_cast<float>(body.absoluteMagnitude),
          static_cast<float>(CoefficientOf(body, comet)), comet};
}

void SmallBodyPlaces::SetTable(const ElementTable& table) {
  table_ = &table;
  const int count = table.Count();
  fixed_.clear();
  fixed_.reserve(count);
  for (int i = 0; i < count; ++i) {
    fixed_.push_back(FixedOf(BodyInColumns(table.Columns(), i), table.IsComet(i)));
  }
  heliocentric_.resize(count);
  fromSite_.resize(count);
  magnitude_.resize(count);
}

void SmallBodyPlaces::Update(double jdTt, const StateVector& observer) {
  constexpr int kWorthAThread = 20000;
  const int cores = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  const int parts = std::clamp(Count() / kWorthAThread, 1, cores);
  std::vector<std::jthread> threads;
  for (int part = 1; part < parts; ++part) {
    threads.emplace_back([this, jdTt, &observer, part, parts] {
      UpdateRange(jdTt, observer, static_cast<int>(std::int64_t{Count()} * part / parts),
                  static_cast<int>(std::int64_t{Count()} * (part + 1) / parts));
    });
  }
  UpdateRange(jdTt, observer, 0, Count() / parts);
  threads.clear();
  if (table_ == nullptr) return;
  for (const std::uint32_t object : table_->ObjectsWithPages()) {
    const int index = static_cast<int>(object);
    UpdateOne(jdTt, observer, FixedOf(table_->BodyAt(index, jdTt), table_->IsComet(index)), index);
  }
}

void SmallBodyPlaces::UpdateRange(double jdTt, const StateVector& observer, int from, int to) {
  for (int object = from; object < to; ++object) UpdateOne(jdTt, observer, fixed_[object], object);
}

void SmallBodyPlaces::UpdateOne(double jdTt, const StateVector& observer, const Fixed& fixed,
                                int object) {
  const StateVector state = StateAt(fixed.orbit, fixed.plane, jdTt);
  heliocentric_[object] = state.position;
  fromSite_[object] =
      ApparentPlace(state.position - observer.position, state.velocity - observer.velocity);
  if (std::isnan(fixed.absoluteMagnitude)) {
    magnitude_[object] = fixed.absoluteMagnitude;
    return;
  }
  const auto magnitude = fixed.comet ? CometMagnitude : MinorPlanetMagnitude;
  magnitude_[object] =
      static_cast<float>(magnitude(fixed.absoluteMagnitude, fixed.coefficient,
                                   IlluminationOf(heliocentric_[object], fromSite_[object])));
}

}  // namespace vyn
