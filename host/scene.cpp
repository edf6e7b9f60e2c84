#include "host/scene.h"

#include <algorithm>
#include <cmath>

#include "engine/reference_engine.h"
#include "engine/sky/disk_orientation.h"
#include "engine/sky/magnitudes.h"
#include "engine/sky/observer.h"
#include "engine/sky/satellites.h"
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
  ReadSmallBodies(engine, &scene);
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
