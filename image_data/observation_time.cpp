#include "image_data/observation_time.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// Julian dates go to the core engine with six decimals, which keeps tenths of a second.
constexpr double kSecondStep = 0.1;

constexpr int kLastUnreadableYear = 1600;

bool IsLeapYear(int year) {
  if (year % 400 == 0) return true;
  return year % 100 != 0 && year % 4 == 0;
}

int DaysOf(int year, int month) {
  constexpr std::array kDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return month == 2 && IsLeapYear(year) ? 29 : kDays[month - 1];
}

bool IsWithin(double value, double minimum, double maximum) {
  return value >= minimum && value <= maximum;
}

/// A minute of 75 and an hour of 59 are let through, on purpose: what is stored already must stay
/// as it is.
bool IsSendable(const ObservationTime& time) {
  return time.year >= 1 && IsWithin(time.month, 1, 12) && IsWithin(time.day, 1, 31) &&
         IsWithin(time.hour, 0, 30) && time.minute >= 0 && time.hour <= 59 &&
         IsWithin(time.second, 0.0, 59.0);
}

QString Padded(int number) { return u"%1"_s.arg(number, 2, 10, QChar(u'0')); }

}  // namespace

int FixDayLimit(int year, int month, int day) {
  return std::clamp(day, 1, DaysOf(year, std::clamp(month, 1, 12)));
}

std::optional<double> JdToSend(const ObservationTime& time) {
  if (!IsSendable(time)) return std::nullopt;
  return GetJd(time.year, time.month, time.day, time.hour, time.minute, time.second, kJstHours);
}

std::optional<ObservationTime> ReadableTime(double jd) {
  if (JdToDate2(jd).year <= kLastUnreadableYear) return std::nullopt;
  const CalendarDate date = DateInZone(jd, kJstHours);
  return ObservationTime{date.year, date.month,  date.day,
                         date.hour, date.minute, std::round(date.second * 10.0) / 10.0};
}

CalendarDate DateInZone(double jd, double zoneHours) {
  return ChangeTimezone(JdToDate2(jd, kSecondStep), zoneHours);
}

QString PlainDateText(const CalendarDate& date) {
  return u"%1/%2/%3 %4:%5:%6"_s.arg(date.year)
      .arg(date.month)
      .arg(date.day)
      .arg(date.hour)
      .arg(date.minute)
      .arg(static_cast<int>(date.second));
}

QString PaddedDateText(const CalendarDate& date) {
  return u"%1/%2/%3 %4:%5:%6"_s.arg(QString::number(date.year), Padded(date.month),
                                    Padded(date.day), Padded(date.hour), Padded(date.minute),
                                    Padded(static_cast<int>(date.second)));
}

QString CompactDateText(const CalendarDate& date) {
  return QString::number(date.year) + Padded(date.month) + Padded(date.day) + Padded(date.hour) +
         Padded(date.minute) + Padded(static_cast<int>(date.second));
}

}  // namespace vyn
