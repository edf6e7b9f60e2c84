// What of the sky is switched on and how it is to look, read from the core engine at once, so that
// painting needs no engine.
#pragma once

#include <array>

#include <QColor>
#include <QFont>
#include <QString>

#include "host/body_table.h"

namespace vyn {

class ReferenceEngine;

/// Colour and font of a kind of label. A label without a colour of its own takes that of what it
/// labels.
struct LabelStyle {
  QColor color;
  QFont font;
};

/// How the Sun, the Moon or a planet is drawn. Switches that a body does not have stay off.
struct BodyDisplay {
  bool isVisible = false;
  bool surface = false;
  bool outline = false;
  bool japaneseName = false;
  bool englishName = false;
  bool date = false;
  bool magnitude = false;
  bool halo = false;
  bool compass = false;
  bool grid = false;
  bool orbit = false;
  bool orbitInTheSky = false;
  bool lagrangianMarks = false;
  bool placeNames = false;
  bool leadLines = false;
  /// The disk's radius is at least so many pixels; below 1 it has its true size.
  double minimumSizePixels = 0.0;
  double multiplier = 1.0;  ///< of the disk's size
  LabelStyle nameStyle;
};

struct DisplayState {
  std::array<BodyDisplay, kBodyCount> bodies;
  LabelStyle cometStyle;
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

  const BodyDisplay& Of(Body body) const { return bodies[IndexOf(body)]; }
};

DisplayState ReadDisplayState(ReferenceEngine& engine);

}  // namespace vyn
