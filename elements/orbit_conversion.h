// Turns the two ways of giving an orbit's size (q, a) and its timing (T, epoch and M) into one
// another, on the texts that a person types, with as many decimals as were typed.
//
// Two-body motion about the Sun with the Gaussian gravitational constant. A field that is blank or
// no number counts as 0.
#pragma once

#include <optional>

#include <QString>

#include "elements/element_input.h"

namespace vyn {

/// Up to this eccentricity an orbit may be timed by epoch and M.
inline constexpr double kLargestEccentricityOfM = 0.95;

/// The number of the message "a number is expected".
inline constexpr int kNumberExpected = 13334;

bool IsBlankField(QStringView text);

/// The number that a text begins with; 0 when there is none.
double NumberOf(const QString& text);

/// The number of decimals typed in a text.
int GetPrecision(QStringView text);

/// The Julian date of a date's texts.
double JdOf(const ElementInput& input, const DateFields& date);

/// q = (1 - e) a in au; empty for a parabola and where e or a is blank.
QString AxisToPerihelionDistance(const ElementInput& input);

/// a = q / (1 - e) in au; empty for a parabola, a hyperbola, an orbit too wide to be given by its
/// axis (999.9999995 au and more), and where e or q is blank.
QString PerihelionDistanceToAxis(const ElementInput& input);

/// The period in years from Kepler's third law: "0.410", "5.46", "75.3", "248", ">1000"; empty for
/// an orbit that does not close or whose size is blank.
QString GetPeriodString(const ElementInput& input);

/// Puts T, derived from epoch, M, e, q and a, into `input`. Returns 0, or the number of the message
/// that tells why it cannot be done; T is then as it was.
int EpochToT(ElementInput& input);

/// Puts M at the epoch, derived from T, into `input`. False, with M as it was, when a date is not
/// given or the orbit is not one of those for which epoch and M are allowed.
bool TToEpoch(ElementInput& input);

}  // namespace vyn
