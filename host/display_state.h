// What of the sky is switched on and how it is to look, read from the core engine at once, so that
// painting needs no engine.
#pragma once

#include <array>
#include <vector>

#include "host/body_table.h"
#include "host/label_style.h"
#include "host/satellite_display.h"

namespace vyn {

class ReferenceEngine;

/// How the Sun, the Moon, a planet or a dwarf planet is drawn. Switches that a body does not have
/// stay off.
struct BodyDisplay {
  bool isVisible = false;
  bool surface = false;
  bool outline = false;
  bool japaneseName = false;
  bool englishName = false;
  bool number = false;  ///< of the Moon among the Earth's satellites
  bool date = false;
  bool magnitude = false;
  bool halo = false;
  bool compass = false;
  bool grid = false;
  bool orbit = false;
  bool orbitInTheSky = false;
  bool perpendicular = false;  ///< from the orbit to the ecliptic
  bool orbitalPlane = false;
  bool eclipticPlane = false;
  bool lagrangianMarks = false;
  bool placeNames = false;
  bool leadLines = false;
  /// The disk's radius is at least so many pixels; below 1 it has its true size.
  double minimumSizePixels = 0.0;
  double multiplier = 1.0;  ///< of the disk's size
  /// How far the body moves in a time, told by an arrow that is lengthened so many times.
  bool hasVector = false;
  double vectorSpanDays = 1.0;
  double vectorMultiplier = 1.0;
  LabelStyle nameStyle;
};

/// How the comets or the minor planets are drawn.
struct SmallBodyDisplay {
  LabelStyle style;
  double vectorSpanDays = 1.0;
  double vectorMultiplier = 1.0;
  bool isSymbolic = false;  ///< by orbital type instead of by brightness
};

struct DisplayState {
  std::array<BodyDisplay, kSkyBodyCount> bodies;
  std::vector<SatelliteDisplay> satellites;  ///< those of which something is switched on
  LabelStyle satelliteStyle;
  SmallBodyDisplay comets;
  SmallBodyDisplay minorPlanets;
  LabelStyle meteoriteStyle;
  QColor dustTrailColor;
  bool lunarEclipseUmbra = false;
  bool lunarEclipsePenumbra = false;
  bool solarEclipseUmbra = false;
  bool solarEclipsePenumbra = false;
  bool solarEclipsePath = false;
  bool mainBelt = false;
  bool kuiperBelt = false;
  bool habitableZone = false;
  bool oortCloud = false;
  bool oortCloudFades = false;
  bool cosmicScale = false;
  bool zodiacalLight = false;
  bool counterGlow = false;
  LabelStyle regionStyle;

  const BodyDisplay& Of(SkyBody body) const { return bodies[IndexOf(body)]; }
};

DisplayState ReadDisplayState(ReferenceEngine& engine);

}  // namespace vyn
