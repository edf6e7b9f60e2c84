#include "core_link/number_text.h"

#include <array>
#include <charconv>

namespace vyn {

QString ShortNumberText(double value, int maxChars, int maxDecimals) {
  QString text;
  for (int decimals = maxDecimals; decimals >= 0; --decimals) {
    text = QString::number(value, 'f', decimals);
    while (text.contains(QLatin1Char('.')) &&
           (text.endsWith(QLatin1Char('0')) || text.endsWith(QLatin1Char('.')))) {
      text.chop(1);
    }
    if (text.size() <= maxChars) break;
  }
  return text;
}

QString FixedText(double value, int decimals) {
  std::array<char, 400> text{};
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value,
                                          std::chars_format::fixed, decimals);
  return QString::fromLatin1(text.data(), end - text.data());
}

QString SixDecimals(double value) { return FixedText(value, 6); }

}  // namespace vyn
