#include "engine/value_text.h"

#include <algorithm>
#include <cmath>

#include <QList>
#include <QLocale>

#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr double kJstHours = 9.0;
/// Late observations are written with hours up to 30 o'clock of the evening's date.
constexpr double kMaxHour = 47.0;

bool IsQuoted(QStringView text) {
  return text.size() >= 2 && text.front() == u'"' && text.back() == u'"';
}

/// What stands between the quotes; nothing when the text inside ends at a quote of its own.
std::optional<QString> Unquoted(QStringView text) {
  const QStringView inside = text.sliced(1, text.size() - 2);
  QString result;
  result.reserve(inside.size());
  for (qsizetype i = 0; i < inside.size(); ++i) {
    result += inside[i];
    if (inside[i] != u'"') continue;
    if (++i == inside.size() || inside[i] != u'"') return std::nullopt;
  }
  return result;
}

bool MustBeQuoted(QStringView text) {
  if (text.isEmpty() || text.front().isSpace() || text.back().isSpace()) return true;
  return std::any_of(text.begin(), text.end(), [](QChar c) {
    return c.unicode() < 0x20 || c == u'"' || c == u';' || c == u'(' || c == u')';
  });
}

QList<QStringView> Arguments(QStringView written, QStringView name) {
  QStringView inside = written.sliced(name.size()).trimmed().sliced(1).trimmed();
  if (inside.endsWith(u')')) inside.chop(1);
  QList<QStringView> arguments = inside.split(u',');
  for (QStringView& argument : arguments) argument = argument.trimmed();
  return arguments;
}

QList<double> Numbers(const QList<QStringView>& texts) {
  QList<double> numbers;
  for (const QStringView text : texts) {
    if (const auto number = ReadNumber(text)) numbers.append(*number);
  }
  return numbers;
}

bool IsTimeOfDay(double hour, double minute, double second) {
  return hour >= 0 && hour <= kMaxHour && minute >= 0 && minute < 60 && second >= 0 && second < 61;
}

}  // namespace

QString ReadValue(QStringView written) {
  if (IsQuoted(written)) return Unquoted(written).value_or(written.toString());
  if (written.endsWith(u')')) {
    const QStringView number = written.chopped(1).trimmed();
    if (ReadNumber(number)) return number.toString();
  }
  return written.toString();
}

QString WriteValue(QStringView text) {
  if (!MustBeQuoted(text)) return text.toString();
  return u'"' + text.toString().replace(u'"', "\"\""_L1) + u'"';
}

QString NumberText(double number) {
  return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

std::optional<double> ReadNumber(QStringView text) {
  bool valid = false;
  const double number = QLocale::c().toDouble(text, &valid);
  if (!valid || !std::isfinite(number) || text.contains(u',')) return std::nullopt;
  return number;
}

bool IsConstructor(QStringView written, QStringView name) {
  return written.startsWith(name, Qt::CaseInsensitive) &&
         written.sliced(name.size()).trimmed().startsWith(u'(');
}

std::optional<double> ReadJst(QStringView written) {
  if (!IsConstructor(written, u"jst")) return std::nullopt;
  const QList<QStringView> arguments = Arguments(written, u"jst");
  const QList<double> part = Numbers(arguments);
  if (arguments.size() != 6 || part.size() != 6) return std::nullopt;
  if (std::abs(part[0]) > 99999 || part[1] < 1 || part[1] >= 13) return std::nullopt;
  const int year = static_cast<int>(part[0]);
  const int month = static_cast<int>(part[1]);
  if (!CheckDate(year, month, part[2]) || !IsTimeOfDay(part[3], part[4], part[5])) {
    return std::nullopt;
  }
  return GetJd(year, month, static_cast<int>(part[2]), static_cast<int>(part[3]),
               static_cast<int>(part[4]), part[5], kJstHours);
}

std::optional<LocationText> ReadLocation(QStringView written) {
  if (!IsConstructor(written, u"location")) return std::nullopt;
  const QList<QStringView> arguments = Arguments(written, u"location");
  if (arguments.size() != 3 || Numbers(arguments).size() != 3) return std::nullopt;
  return LocationText{arguments[0], arguments[1], arguments[2]};
}

}  // namespace vyn
