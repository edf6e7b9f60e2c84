#include "core_link/number_text.h"

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

}  // namespace vyn
