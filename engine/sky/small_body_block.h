// Places and magnitudes of comets and minor planets, a block of objects at a time.
//
// The loops run over columns and without branches, so that compilers make them work on several
// objects at once. Kepler's equation is solved by a fixed number of Halley's steps (Danby,
// "Fundamentals of Celestial Mechanics", 2nd ed., chapter 6.6); the remainder tells the orbits for
// which that was not enough: near-parabolic and open ones, which PositionAt's equation takes over.
#pragma once

#include <array>

#include "engine/element_table.h"

namespace vyn {

struct SmallBodyBlock {
  static constexpr int kSize = 128;
  using Numbers = std::array<double, kSize>;

  // Relative to the Sun, au, in the ecliptic of J2000; NaN for elements that cannot be used.
  // Within 1e-11 of the distance of what PositionAt tells.
  Numbers x;
  Numbers y;
  Numbers z;
  // Where it is seen from the observer: light time and aberration are in it.
  Numbers seenX;
  Numbers seenY;
  Numbers seenZ;
  // In single precision, within 0.001; NaN without absolute magnitude.
  std::array<float, kSize> magnitude;
};

/// Reckons the objects from `first` on, at most kSize and as far as the table goes. Objects that
/// have continuation records use the one valid then. The observer is told relative to the Sun.
void ReckonBlock(const ElementTable& table, int first, double jdTt, const StateVector& observer,
                 SmallBodyBlock* block);

}  // namespace vyn
