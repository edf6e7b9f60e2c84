// Which satellites are switched on, and what is told of each.
#pragma once

#include <vector>

#include <QString>

#include "engine/sky/satellite_table.h"

namespace vyn {

class ReferenceEngine;

struct SatelliteDisplay {
  Primary primary = Primary::Jupiter;
  int number = 1;  ///< as in the sky model, from 1
  bool isVisible = false;
  bool japaneseName = false;
  bool englishName = false;
  bool hasNumber = false;
  bool orbit = false;

  const Satellite& Facts() const { return SatellitesOf(primary)[number - 1]; }
};

/// Those that are shown or whose orbit is. The Moon is not among them: it is drawn as a body of its
/// own. There are hundreds, so this costs some tenths of a millisecond.
std::vector<SatelliteDisplay> ReadSatelliteDisplay(const ReferenceEngine& engine);

/// The name in one language; where a satellite has no Japanese one, the English one.
QString NameOf(const Satellite& satellite, bool isJapanese);

/// The body's Japanese name with the satellite's Roman numeral, as in "木星IV"; empty for a
/// satellite that has no numeral yet.
QString NumberText(Primary primary, int number);

/// What the label says: the name and the number, as they are switched on.
QString LabelText(const SatelliteDisplay& display);

}  // namespace vyn
