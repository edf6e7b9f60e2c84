// Angles in degrees: reduction to one turn and splitting into degrees, minutes and seconds.
#pragma once

#include <numbers>

namespace vyn {

inline constexpr double kRadPerDeg = std::numbers::pi / 180.0;
inline constexpr double kDegPerRad = 180.0 / std::numbers::pi;

/// An angle in sexagesimal parts. The sign stands apart, so that -0 deg 30 min can be told from
/// +0 deg 30 min.
struct SexagesimalAngle {
  int sign = 1;  ///< 1 or -1; an angle of zero has 1
  int degrees = 0;
  int minutes = 0;       ///< 0 to 59
  double seconds = 0.0;  ///< from 0 up to, never reaching, 60
};

/// Reduces an angle in degrees to [0, 360). What is not a finite number comes back as NaN.
double degmal(double angleDeg);

/// Splits an angle in degrees, whose size may be anything that fits an int. The seconds are rounded
/// to a multiple of `secondStep`, and what is rounded up to 60 goes into the minute: whoever shows
/// whole seconds passes 1.0 and never shows "60". What is not a finite number splits into zeros.
SexagesimalAngle DegTo60(double angleDeg, double secondStep = 0.001);

}  // namespace vyn
