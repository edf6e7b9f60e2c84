#include "engine/sky/sky_snapshot.h"

#include <algorithm>
#include <atomic>
#include <thread>

#include "engine/sky/small_body_block.h"

namespace vyn {
namespace {

/// Calls `take(first, count, block)` for all blocks of the table, from several threads when there
/// are many. Each thread fetches the next blocks when it has done its last, so that a core that is
/// busy otherwise does not hold the others up.
template <typename Take>
void ForEachBlock(const ElementTable& table, double jdTt, const StateVector& observer, Take take) {
  constexpr int kFetched = 64 * SmallBodyBlock::kSize;
  std::atomic<int> next = 0;
  const auto work = [&] {
    SmallBodyBlock block;
    for (int first = next.fetch_add(kFetched); first < table.Count();
         first = next.fetch_add(kFetched)) {
      const int end = std::min(first + kFetched, table.Count());
      for (int at = first; at < end; at += SmallBodyBlock::kSize) {
        ReckonBlock(table, at, jdTt, observer, &block);
        take(at, std::min(SmallBodyBlock::kSize, end - at), block);
      }
    }
  };
  const int cores = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
  std::vector<std::jthread> threads;
  for (int i = 1; i < std::min(cores, table.Count() / kFetched + 1); ++i) {
    threads.emplace_back(work);
  }
  work();
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

std::vector<float> SmallBodyMagnitudes(const ElementTable& table, double jdTt,
                                       const StateVector& observer) {
  std::vector<float> magnitudes(table.Count());
  ForEachBlock(table, jdTt, observer, [&](int first, int count, const SmallBodyBlock& block) {
    std::copy_n(block.magnitude.begin(), count, magnitudes.begin() + first);
  });
  return magnitudes;
}

void SmallBodyPlaces::SetTable(const ElementTable& table) {
  table_ = &table;
  heliocentric_.resize(table.Count());
  fromSite_.resize(table.Count());
  magnitude_.resize(table.Count());
}

void SmallBodyPlaces::Update(double jdTt, const StateVector& observer) {
  if (table_ == nullptr) return;
  ForEachBlock(*table_, jdTt, observer, [this](int first, int count, const SmallBodyBlock& block) {
    for (int i = 0; i < count; ++i) {
      heliocentric_[first + i] = {static_cast<float>(block.x[i]), static_cast<float>(block.y[i]),
                                  static_cast<float>(block.z[i])};
      fromSite_[first + i] = {block.seenX[i], block.seenY[i], block.seenZ[i]};
    }
    std::copy_n(block.magnitude.begin(), count, magnitude_.begin() + first);
  });
}

}  // namespace vyn
