#include "host/scene.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "engine/element_table.h"
#include "engine/reference_engine.h"
#include "engine/sky/disk_orientation.h"
#include "engine/sky/magnitudes.h"
#include "engine/sky/observer.h"
#include "engine/sky/satellites.h"
#include "engine/sky/sky_snapshot.h"
#include "engine/sky/time_scales.h"
#include "host/view_state.h"

namespace vyn {
namespace {

constexpr double kMetersPerAu = kKmPerAu * 1000.0;

Site ReadSite(const ReferenceEngine& engine) {
  return {engine.Number(u"Location.Longitude"),
          std::clamp(engine.Number(u"Location.Latitude"), -90.0, 90.0),
          engine.Number(u"Location.Altitude")};
}

/// The horizon's frame with y to the west, so that it is right-handed.
Matrix3 WithWest(const Matrix3& horizon) {
  return Matrix3{{{{1.0, 0.0, 0.0}, {0.0, -1.0, 0.0}, {0.0, 0.0, 1.0}}}} * horizon;
}

Matrix3 FromRows(const Vector3& x, const Vector3& y, const Vector3& z) {
  return {{{{x.x, x.y, x.z}, {y.x, y.y, y.z}, {z.x, z.y, z.z}}}};
}

void StandOnEarth(const Observer& observer, Viewpoint* viewpoint) {
  viewpoint->position = viewpoint->position + observer.SitePosition();
  viewpoint->velocity = viewpoint->velocity + observer.SiteVelocity();
  viewpoint->toHorizon = WithWest(observer.ToHorizon());
}

/// On the Sun and on the Moon, taken as spheres.
void StandOnSphere(const Site& site, double jdTt, Viewpoint* viewpoint) {
  const Matrix3 toFixed = ToBodyFixed(viewpoint->body, jdTt);
  const Vector3 up = AdToDc(site.longitudeDeg, site.latitudeDeg);
  const Vector3 north = AdToDc(site.longitudeDeg, site.latitudeDeg + 90.0);
  const double radiusAu = RadiusKm(viewpoint->body) / kKmPerAu + site.heightM / kMetersPerAu;
  viewpoint->toHorizon = FromRows(north, Cross(up, north), up) * toFixed;
  viewpoint->position = viewpoint->position + Transposed(toFixed) * (radiusAu * up);
}

Viewpoint ViewpointOf(const ReferenceEngine& engine, ViewKind kind, const Scene& scene) {
  const Site site = ReadSite(engine);
  const Observer observer(scene.jdUt, site);
  Viewpoint viewpoint;
  const int number = engine.GetLocationObject();
  if (number == 0 || number == 1) viewpoint.body = static_cast<SkyBody>(number);
  const StateVector state = HeliocentricState(viewpoint.body, scene.jdTt);
  viewpoint.position = state.position;
  viewpoint.velocity = state.velocity;
  if (viewpoint.body == SkyBody::Earth) {
    StandOnEarth(observer, &viewpoint);
  } else {
    StandOnSphere(site, scene.jdTt, &viewpoint);
  }
  viewpoint.toEcliptic = observer.ToEclipticOfDate();
  viewpoint.toView = kind == ViewKind::Horizon ? viewpoint.toHorizon : viewpoint.toEcliptic;
  viewpoint.celestialPole = observer.CelestialPole();
  return viewpoint;
}

double Magnitude(const SceneBody& body, double jdTt) {
  return MagnitudeOf(body.body, IlluminationOf(body.heliocentric, body.seen),
                     ToBodyFixed(body.body, jdTt) * -body.seen, jdTt);
}

SceneBody SeenBody(SkyBody body, double jdTt, const Viewpoint& viewpoint) {
  const StateVector state = HeliocentricState(body, jdTt);
  SceneBody seen{body, state.position};
  seen.seen = body == viewpoint.body ? state.position - viewpoint.position
                                     : ApparentPlace(state.position - viewpoint.position,
                                                     state.velocity - viewpoint.velocity);
  seen.magnitude = Magnitude(seen, jdTt);
  return seen;
}

/// Which comets are there, and where.
class CometReader {
 public:
  explicit CometReader(const ReferenceEngine& engine)
      : engine_(engine), table_(engine.Elements(ElementKind::Comet)) {
    if (engine.IsOn(u"Solar.Comet.Brighter.Visible")) {
      faintest_ = engine.Number(u"Solar.Comet.Brighter.Magnitude");
    }
  }

  std::vector<SceneComet> Read(double jdTt, const Viewpoint& viewpoint) const {
    SmallBodyPlaces places;
    places.SetTable(table_);
    places.Update(jdTt, {viewpoint.position, viewpoint.velocity});
    std::vector<SceneComet> comets;
    comets.reserve(places.Count());
    for (int object = 0; object < places.Count(); ++object) {
      if (std::isfinite(places.FromSite(object).x) && IsThere(object, places.Magnitude(object))) {
        comets.push_back({object, places.Heliocentric(object), places.FromSite(object),
                          places.Magnitude(object), Name(object)});
      }
    }
    return comets;
  }

 private:
  bool IsThere(int object, double magnitude) const {
    return engine_.IsObjectShown(ElementKind::Comet, object) ||
           (faintest_ && magnitude <= *faintest_);
  }

  bool IsOn(int object, QStringView feature) const {
    return engine_.IsObjectOn(ElementKind::Comet, object, feature);
  }

  /// Few comets have a Japanese name; the others are called by their English one in both languages.
  QString Name(int object) const {
    const bool isJapanese = IsOn(object, u"JapaneseName.Visible");
    QString name = isJapanese ? table_.JapaneseName(object) : QString();
    if (!name.isEmpty()) return name;
    if (isJapanese || IsOn(object, u"EnglishName.Visible")) return table_.EnglishName(object);
    return IsOn(object, u"ID.Visible") ? table_.Identifier(object) : QString();
  }

  const ReferenceEngine& engine_;
  const ElementTable& table_;
  std::optional<double> faintest_;
};

}  // namespace

double SceneBody::RadiusRad() const { return std::asin(std::min(1.0, RadiusAu() / Length(seen))); }

Scene BuildScene(const ReferenceEngine& engine, ViewKind view) {
  Scene scene;
  scene.jdUt = engine.JulianDate();
  scene.jdTt = TtFromUt(scene.jdUt);
  scene.viewpoint = ViewpointOf(engine, view, scene);
  for (const BodyRow& row : kBodies) {
    scene.bodies[IndexOf(row.body)] = SeenBody(row.body, scene.jdTt, scene.viewpoint);
  }
  if (engine.IsOn(u"Solar.Comet.Visible")) {
    scene.comets = CometReader(engine).Read(scene.jdTt, scene.viewpoint);
  }
  return scene;
}

double ShownJdTt(const Scene& scene, SkyBody body, ViewKind view) {
  if (view == ViewKind::SolarSystem) return scene.jdTt;
  return scene.jdTt - Length(scene.Of(body).seen) / kLightAuPerDay;
}

void AddSatellites(std::span<const SatelliteDisplay> displays, ViewKind view, Scene* scene) {
  for (const SatelliteDisplay& display : displays) {
    if (!display.Facts().HasOrbit()) continue;
    const SceneBody& body = scene->Of(BodyOf(display.primary));
    SceneSatellite satellite{display};
    satellite.fromBody =
        SatellitePosition(display.primary, display.number, ShownJdTt(*scene, body.body, view));
    satellite.magnitude =
        SatelliteMagnitude(display.Facts(), IlluminationOf(body.heliocentric, body.seen));
    scene->satellites.push_back(satellite);
  }
}

}  // namespace vyn
