// The comets, minor planets, meteorites and dust trails of a scene.
#pragma once

#include <optional>
#include <vector>

#include <QColor>
#include <QString>

#include "engine/sky/comet_tails.h"
#include "engine/sky/kepler.h"

namespace vyn {

class ReferenceEngine;
class SmallBodyPlaces;
struct Scene;

/// What is drawn of a small body besides its point and name.
struct SmallBodyAids {
  bool magnitude = false;
  bool date = false;
  bool vector = false;
  bool orbit = false;
  bool orbitInTheSky = false;
  bool perpendicular = false;
  bool orbitalPlane = false;
  bool eclipticPlane = false;

  bool operator==(const SmallBodyAids&) const = default;
};

struct IonTailSpan {
  double emissionSpanDays = 3.0;
};

/// A tail that is switched on; the outline and the surface may both be drawn.
template <typename Facts>
struct SceneTail {
  Facts facts;
  bool outline = false;
  bool surface = false;
};

struct SceneSmallBody {
  int object = 0;  ///< in the loaded element file
  Vector3 heliocentric;
  Vector3 seen;
  double magnitude = 0.0;  ///< NaN when not known
  QString name;            ///< as it is to be shown; empty when no name is
  SmallBodyAids aids;
  OrbitElements orbit;  ///< told of a body with aids or tails
  std::optional<SceneTail<DustTailGrains>> dustTail;
  std::optional<SceneTail<IonTailSpan>> ionTail;
};

/// All minor planets that are shown, as points. What they refer to is valid until the engine's
/// moment, place or elements change.
struct MinorPlanetPoints {
  const SmallBodyPlaces* places = nullptr;  ///< null while there are none
  std::vector<int> shown;
  std::vector<QRgb> symbols;  ///< of each of them; empty unless they are shown symbolically
};

/// A meteorite's or a dust trail's way about the Sun.
struct SceneTrack {
  QString name;  ///< empty when it is not to be shown
  OrbitElements orbit;
  bool hasOrbit = false;
  Vector3 heliocentric;  ///< of a meteorite: where it is, from its fall on where it met the Earth
};

/// Reads what is switched on of them, into a scene whose moment and viewpoint are set. Names and
/// the like of minor planets are read of the first 1000 that have some.
void ReadSmallBodies(const ReferenceEngine& engine, Scene* scene);

}  // namespace vyn
