// Everything that a view of the sky draws of the solar system at one moment, from one site.
#pragma once

#include <array>
#include <vector>

#include "engine/element_table.h"
#include "engine/sky/bodies.h"
#include "engine/sky/disk_orientation.h"
#include "engine/sky/magnitudes.h"
#include "engine/sky/observer.h"

namespace vyn {

/// One body as it is and as it is seen. Vectors are in the ecliptic of J2000, in au.
struct BodyPlace {
  Body body = Body::Sun;
  Vector3 heliocentric;  ///< where it is
  Vector3 fromSite;      ///< where it is seen: light time and aberration are in it
  Illumination light;
  double magnitude = 0.0;
  double illuminatedFraction = 1.0;
  double apparentDiameterDeg = 0.0;
  /// From celestial north eastwards to the middle of the bright limb; of the Sun without meaning.
  double brightLimbAngleDeg = 0.0;
  DiskOrientation disk;  ///< its axis angle counts from celestial north
};

/// The Sun, the Moon and the planets at a moment, seen from a site. Costs about 0.1 ms.
class SkySnapshot {
 public:
  SkySnapshot(double jdUt, const Site& site);

  const Observer& GetObserver() const { return observer_; }
  double JdUt() const { return observer_.JdUt(); }
  double JdTt() const { return observer_.JdTt(); }

  /// The Earth's own entry tells its place only: it is not seen.
  const BodyPlace& Place(Body body) const { return places_[static_cast<int>(body)]; }
  const std::array<BodyPlace, kBodyCount>& Places() const { return places_; }

  /// The site's place and velocity relative to the Sun.
  const StateVector& SiteState() const { return site_; }

 private:
  BodyPlace PlaceOf(Body body) const;

  Observer observer_;
  StateVector site_;
  std::array<BodyPlace, kBodyCount> places_;
};

/// The magnitudes of all comets or minor planets of an element file, by the records valid then; NaN
/// for one without absolute magnitude. The observer's place is told relative to the Sun.
std::vector<float> SmallBodyMagnitudes(const ElementTable& table, double jdTt,
                                       const StateVector& observer);

/// The places of all comets or minor planets of an element file; 40 bytes an object.
class SmallBodyPlaces {
 public:
  /// To be called again whenever the table's content has changed.
  void SetTable(const ElementTable& table);

  /// Reckons all places for the snapshot's moment and site. Objects that have continuation records
  /// use the one valid then. Large tables are shared between threads.
  void Update(const SkySnapshot& sky) { Update(sky.JdTt(), sky.SiteState()); }
  /// The same for any observer, whose place and velocity are told relative to the Sun.
  void Update(double jdTt, const StateVector& observer);

  int Count() const { return static_cast<int>(heliocentric_.size()); }
  /// NaN for an object whose elements cannot be used. Kept in single precision: 9 km at 1 au, far
  /// less than a point of any picture from outside.
  Vector3 Heliocentric(int object) const {
    const auto& [x, y, z] = heliocentric_[object];
    return {x, y, z};
  }
  /// Where it is seen from the site: light time and aberration are in it. Kept in double precision,
  /// for the sky may be seen through a telescope.
  const Vector3& FromSite(int object) const { return fromSite_[object]; }
  /// NaN for an object without absolute magnitude.
  float Magnitude(int object) const { return magnitude_[object]; }

 private:
  const ElementTable* table_ = nullptr;
  std::vector<std::array<float, 3>> heliocentric_;
  std::vector<Vector3> fromSite_;
  std::vector<float> magnitude_;
};

}  // namespace vyn
