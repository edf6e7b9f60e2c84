// The steps of spin buttons beside real numbers, and those of a motion vector's span or multiplier.
#pragma once

namespace vyn {

inline constexpr double kMinVectorValue = 0.01;
inline constexpr double kMaxVectorValue = 100.0;

/// The sum of decimal steps as it reads: rounded to the six decimals that commands carry, and never
/// a negative zero. So ten steps of 0.1 down from 1.0 pass through 0.1 and not just above it.
double RoundedStep(double value);

/// The value after one press, within 0.01 to 100. A negative delta (the up arrow) increases: by
/// 0.01 below 0.1, by 0.1 below 1.0, else by 1.0. Any other decreases: by 1.0 above 1.0, by 0.1
/// above 0.1, else by 0.01. So 1.0 goes up to 2.0 and down to 0.9.
double StepVectorValue(double value, int delta);

}  // namespace vyn
