#include "core_link/reply.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace vyn::reply {
namespace {

/// The text from its first character that is not white space, without a leading plus sign
/// (which the C conversion takes and std::from_chars does not), as far as it is ASCII.
std::string NumberText(QStringView text) {
  while (!text.isEmpty() && text.front().isSpace()) text = text.sliced(1);
  if (text.size() > 1 && text.front() == u'+' && text.at(1) != u'-') text = text.sliced(1);
  std::string ascii;
  for (const QChar c : text) {
    if (c.unicode() > 0x7F) break;
    ascii.push_back(static_cast<char>(c.unicode()));
  }
  return ascii;
}

}  // namespace

bool ToBool(QStringView reply) { return reply.compare(u"TRUE", Qt::CaseInsensitive) == 0; }

double ToDouble(QStringView reply) {
  const std::string text = NumberText(reply);
  double value = 0.0;
  std::from_chars(text.data(), text.data() + text.size(), value);
  // Words such as "inf" are no numbers here.
  return std::isfinite(value) ? value : 0.0;
}

int ToInt(QStringView reply) {
  const std::string text = NumberText(reply);
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::result_out_of_range) {
    return text.front() == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
  }
  return value;
}

bool IsSolarSystem(QStringView projectionReply) {
  return projectionReply.first(std::min<qsizetype>(projectionReply.size(), 11))
             .compare(u"SolarSystem", Qt::CaseInsensitive) == 0;
}

}  // namespace vyn::reply
