#include "siblings/astro/angles.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vyn {

double degmal(double angleDeg) {
  const double reduced = std::fmod(angleDeg, 360.0);
  const double positive = reduced < 0.0 ? reduced + 360.0 : reduced;
  // A tiny negative angle plus 360 rounds to 360 itself. The sum also turns -0 into 0.
  return positive >= 360.0 ? 0.0 : positive + 0.0;
}

SexagesimalAngle DegTo60(double angleDeg, double secondStep) {
  if (!std::isfinite(angleDeg)) return {};
  const double magnitudeDeg =
      std::min(std::abs(angleDeg), static_cast<double>(std::numeric_limits<int>::max()));
  double wholeDegrees = std::floor(magnitudeDeg);
  double seconds = std::round((magnitudeDeg - wholeDegrees) * 3600.0 / secondStep) * secondStep;
  if (seconds >= 3600.0) {
    seconds = 0.0;
    wholeDegrees += 1.0;
  }
  // Half a step is added before cutting, because 120 steps of 0.1 may add up to a hair below 12.
  const int minutes = static_cast<int>((seconds + secondStep / 2.0) / 60.0);
  return {angleDeg < 0.0 ? -1 : 1, static_cast<int>(wholeDegrees), minutes,
          std::max(0.0, seconds - minutes * 60.0)};
}

}  // namespace vyn
