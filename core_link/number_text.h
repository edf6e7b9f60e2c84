// Numbers as edits show them, independent of the locale.
#pragma once

#include <QString>

namespace vyn {

/// The shortest text that keeps the value's hundredths (or so many decimals), without needless
/// zeros: "1", "0.5", "0.01". Decimals are given up where the text would be longer than `maxChars`.
QString ShortNumberText(double value, int maxChars, int maxDecimals = 2);

}  // namespace vyn
