#include "host/moments.h"

#include <QDateTime>
#include <QRegularExpression>

#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr double kJapanHours = 9.0;
constexpr double kUnixEpochJd = 2440587.5;
constexpr double kMillisecondsPerDay = 86400000.0;

double DaysOf(TimeUnit unit) {
  switch (unit) {
    case TimeUnit::Minute:
      return 1.0 / 1440.0;
    case TimeUnit::Hour:
      return 1.0 / 24.0;
    default:
      return 1.0;
  }
}

CalendarDate InJapan(double jdUt) { return ChangeTimezone(JdToDate2(jdUt), kJapanHours); }

double SteppedByMonths(double jdUt, int months) {
  CalendarDate date = InJapan(jdUt);
  const int month = date.year * 12 + date.month - 1 + months;
  date.year = month >= 0 ? month / 12 : -((11 - month) / 12);
  date.month = month - date.year * 12 + 1;
  while (date.day > 28 && CheckDate(date.year, date.month, date.day) == 0) --date.day;
  return GetJd(date);
}

}  // namespace

double Stepped(double jdUt, TimeUnit unit, int count) {
  switch (unit) {
    case TimeUnit::Month:
      return SteppedByMonths(jdUt, count);
    case TimeUnit::Year:
      return SteppedByMonths(jdUt, 12 * count);
    default:
      return jdUt + count * DaysOf(unit);
  }
}

QString TimeStatement(double jdUt) {
  const CalendarDate date = InJapan(jdUt);
  return u"time = jst(%1, %2, %3, %4, %5, %6);"_s.arg(date.year)
      .arg(date.month)
      .arg(date.day)
      .arg(date.hour)
      .arg(date.minute)
      .arg(date.second, 0, 'f', 6);
}

std::optional<double> ReadMoment(const QString& text) {
  static const QRegularExpression form(
      u"^(-?\\d{1,5})-(\\d{1,2})-(\\d{1,2})[T ](\\d{1,2}):(\\d{2})(?::(\\d{2}))?$"_s);
  const QRegularExpressionMatch match = form.match(text.trimmed());
  if (!match.hasMatch()) return std::nullopt;
  const auto part = [&match](int number) { return match.captured(number).toInt(); };
  const bool isTime = part(4) < 24 && part(5) < 60 && part(6) < 60;
  if (!isTime || CheckDate(part(1), part(2), part(3)) == 0) return std::nullopt;
  return GetJd(part(1), part(2), part(3), part(4), part(5), part(6), kJapanHours);
}

double CurrentMoment() {
  return kUnixEpochJd +
         static_cast<double>(QDateTime::currentMSecsSinceEpoch()) / kMillisecondsPerDay;
}

}  // namespace vyn
