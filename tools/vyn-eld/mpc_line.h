// Turns one line of the Minor Planet Center's one-line formats into an element record.
// Sources: Minor Planet Center, "Export Format for Minor-Planet Orbits" and "Ephemerides and
// Orbital Elements Format: Comets".
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "elements/element_record.h"

namespace vyn::eld {

/// Why a line cannot be converted.
struct LineProblem {
  int column;  ///< of the line, from 1
  std::string reason;
};

/// A record that is built, with its CR LF.
using RecordBytes = std::array<char, kElementRecordSize>;

/// Both return nothing when the line was converted. The line is without its end.
///
/// A comet's record has the line's elements as they stand, and the tails of a new comet.
std::optional<LineProblem> ConvertComet(std::string_view line, RecordBytes& record);

/// A minor planet's record has q = a (1 - e) and the passage of perihelion that is nearest to the
/// epoch: T = epoch - M / n, with M between -180 and 180 degrees and n = k / a^1.5, k being the
/// Gaussian gravitational constant. The way round the Sun may take longer than the years that a
/// record can hold, so no other passage would do.
std::optional<LineProblem> ConvertMinorPlanet(std::string_view line, RecordBytes& record);

/// Whether a line is one of elements at all, well-formed or not, rather than one of a heading.
bool LooksLikeElements(std::string_view line);

/// Whether a line stands between sections: blank, or nothing but dashes.
bool IsSeparator(std::string_view line);

}  // namespace vyn::eld
