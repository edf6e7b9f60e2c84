// Where everything is at one moment, and as seen from where: what both views paint.
#pragma once

#include <array>
#include <span>
#include <vector>

#include <QString>

#include "engine/sky/bodies.h"
#include "host/body_table.h"
#include "host/satellite_display.h"
#include "host/scene_small_bodies.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {

class ReferenceEngine;
enum class ViewKind;

/// The Sun, the Moon, a planet or a dwarf planet. Vectors are in au, in the ecliptic of J2000.
struct SceneBody {
  SkyBody body = SkyBody::Sun;
  Vector3 heliocentric;
  Vector3 seen;  ///< from the observer, where light shows it
  double magnitude = 0.0;

  double RadiusAu() const { return RadiusKm(body) / kKmPerAu; }
  /// Half the angle under which the disk is seen.
  double RadiusRad() const;
};

/// A satellite that is switched on.
struct SceneSatellite {
  SatelliteDisplay display;
  /// From its body, in the same frame: in the sky as it is seen, from outside as it is.
  Vector3 fromBody;
  double magnitude = 0.0;  ///< NaN when not known
};

/// Where the observer stands.
struct Viewpoint {
  SkyBody body = SkyBody::Earth;
  Vector3 position;  ///< relative to the Sun
  Vector3 velocity;
  /// From the ecliptic of J2000 to the frame of the sky view, right-handed with z upwards. In
  /// horizontal coordinates x points north, so that the longitude is minus the azimuth; in ecliptic
  /// coordinates to the equinox of date.
  Matrix3 toView;
  Matrix3 toHorizon;      ///< the same for horizontal coordinates, whatever the view
  Matrix3 toEcliptic;     ///< and for ecliptic ones
  Vector3 celestialPole;  ///< north pole of the Earth's equator of date
};

struct Scene {
  double jdUt = 0.0;
  double jdTt = 0.0;
  Viewpoint viewpoint;
  std::array<SceneBody, kSkyBodyCount> bodies;
  std::vector<SceneSatellite> satellites;  ///< whose orbit is known, by their bodies
  std::vector<SceneSmallBody> comets;      ///< those that are shown
  MinorPlanetPoints minorPlanetPoints;
  std::vector<SceneSmallBody> minorPlanets;  ///< those of which more than a point is shown
  std::vector<SceneTrack> meteorites;        ///< those that are switched on
  std::vector<SceneTrack> dustTrails;        ///< likewise

  const SceneBody& Of(SkyBody body) const { return bodies[IndexOf(body)]; }
};

/// Reads the moment, the place and the small bodies of the engine.
Scene BuildScene(const ReferenceEngine& engine, ViewKind view);

/// When the light left that shows a body of the scene in this view; from outside everything is
/// shown where it is now.
double ShownJdTt(const Scene& scene, SkyBody body, ViewKind view);

/// Reckons the places of satellites as this view shows them, into the scene.
void AddSatellites(std::span<const SatelliteDisplay> displays, ViewKind view, Scene* scene);

}  // namespace vyn
