// How the demo planetarium looks at the sky: what is kept of it in the core engine, read at once.
#pragma once

#include <optional>

#include <QString>

#include "host/body_table.h"
#include "siblings/astro/direction_cosines.h"

namespace vyn {

class ReferenceEngine;

enum class ViewKind { Horizon, Ecliptic, SolarSystem };

inline constexpr double kMinAngleDeg = 0.05;
inline constexpr double kMaxAngleDeg = 220.0;
inline constexpr double kMinDistanceAu = 1e-4;
inline constexpr double kMaxDistanceAu = 1e6;

struct ViewState {
  ViewKind kind = ViewKind::Horizon;
  /// The middle of the sky view: azimuth (from north through east) and altitude, or ecliptic
  /// longitude and latitude.
  Spherical direction;
  double angleDeg = 100.0;  ///< of the sky along the picture's shorter side
  /// Where the camera stands outside the solar system, as ecliptic longitude and latitude seen from
  /// the centre, and how far away.
  Spherical outside;
  double distanceAu = 60.0;
  SkyBody center = SkyBody::Sun;
  /// The sky view keeps the centre in its middle.
  bool isTracking = false;
};

/// Reads "View" of the engine; what is not set has the values above and a southward look.
ViewState ReadViewState(ReferenceEngine& engine);

/// The commands by which the view is moved; each redraws.
namespace view_command {

/// Looks to another place of the sky, and lets go of a centre that was kept.
QString Look(ViewKind kind, const Spherical& direction);
QString Angle(double angleDeg);
QString GoOutside(const Spherical& outside);
QString Distance(double distanceAu);

}  // namespace view_command
}  // namespace vyn
