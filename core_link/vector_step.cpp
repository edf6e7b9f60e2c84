#include "core_link/vector_step.h"

#include <algorithm>
#include <cmath>

namespace vyn {
namespace {

double StepUp(double value) { return value < 0.1 ? 0.01 : value < 1.0 ? 0.1 : 1.0; }
double StepDown(double value) { return value > 1.0 ? 1.0 : value > 0.1 ? 0.1 : 0.01; }

}  // namespace

double RoundedStep(double value) { return std::round(value * 1e6) / 1e6 + 0.0; }

double StepVectorValue(double value, int delta) {
  const double stepped = delta < 0 ? value + StepUp(value) : value - StepDown(value);
  return std::clamp(RoundedStep(stepped), kMinVectorValue, kMaxVectorValue);
}

}  // namespace vyn
