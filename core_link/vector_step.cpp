#include "core_link/vector_step.h"

#include <algorithm>

namespace vyn {
namespace {

double StepUp(double value) { return value < 0.1 ? 0.01 : value < 1.0 ? 0.1 : 1.0; }
double StepDown(double value) { return value > 1.0 ? 1.0 : value > 0.1 ? 0.1 : 0.01; }

}  // namespace

double StepVectorValue(double value, int delta) {
  const double stepped = delta < 0 ? value + StepUp(value) : value - StepDown(value);
  return std::clamp(stepped, kMinVectorValue, kMaxVectorValue);
}

}  // namespace vyn
