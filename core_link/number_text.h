// Numbers as edits show them and commands carry them, independent of the locale.
#pragma once

#include <QString>

namespace vyn {

/// The shortest text that keeps the value's hundredths (or so many decimals), without needless
/// zeros: "1", "0.5", "0.01". Decimals are given up where the text would be longer than `maxChars`.
QString ShortNumberText(double value, int maxChars, int maxDecimals = 2);

/// As printf writes it: a value halfway between two texts takes the even digit, and a zero keeps
/// its sign. The toolkit's own conversion does neither.
QString FixedText(double value, int decimals);

/// printf's "%f".
QString SixDecimals(double value);

}  // namespace vyn
