#include "siblings/astro/calendar.h"

#include <algorithm>
#include <cmath>

#include <erfa.h>

namespace vyn {
namespace {

/// The day that begins at noon of 1582-10-15, the first of the Gregorian calendar.
constexpr long long kFirstGregorianDay = 2299161;
constexpr double kFarthestJd = 3.65e8;
constexpr long long kMillisecondsPerDay = 86400000;

struct MonthOfYear {
  int year;
  int month;
};

constexpr long long FloorDivide(long long dividend, long long divisor) {
  const long long quotient = dividend / divisor;
  return quotient - (dividend % divisor < 0 ? 1 : 0);
}

MonthOfYear Normalized(int year, int month) {
  const long long months = FloorDivide(month - 1, 12);
  return {static_cast<int>(year + months), static_cast<int>(month - months * 12)};
}

bool IsGregorian(int year, int month, double day) {
  if (year != 1582) return year > 1582;
  return month > 10 || (month == 10 && day >= 15.0);
}

/// The number of the day that begins at noon of the first of the month.
long long FirstDayOfMonth(MonthOfYear date, bool gregorian) {
  if (gregorian) {
    double zero = 0.0;
    double modifiedJd = 0.0;
    eraCal2jd(date.year, date.month, 1, &zero, &modifiedJd);
    return std::llround(zero + modifiedJd + 0.5);
  }
  // Years are taken to begin in March, so that the leap day is the last of its year.
  const bool early = date.month <= 2;
  const long long year = early ? date.year - 1LL : date.year;
  const long long month = early ? date.month + 12 : date.month;
  return FloorDivide(1461 * (year + 4716), 4) + FloorDivide(306001 * (month + 1), 10000) + 1 - 1524;
}

long long DayNumber(int year, int month, int day) {
  const MonthOfYear date = Normalized(year, month);
  return FirstDayOfMonth(date, IsGregorian(date.year, date.month, day)) + day - 1;
}

struct CivilDay {
  int year;
  int month;
  int day;
};

CivilDay JulianCivilDay(long long dayNumber) {
  const long long b = dayNumber + 1524;
  const long long c = FloorDivide(100 * b - 12210, 36525);
  const long long d = FloorDivide(1461 * c, 4);
  const long long e = FloorDivide((b - d) * 10000, 306001);
  const int day = static_cast<int>(b - d - FloorDivide(306001 * e, 10000));
  const int month = static_cast<int>(e < 14 ? e - 1 : e - 13);
  return {static_cast<int>(month > 2 ? c - 4716 : c - 4715), month, day};
}

CivilDay CivilDayOf(long long dayNumber) {
  if (dayNumber < kFirstGregorianDay) return JulianCivilDay(dayNumber);
  CivilDay date{};
  double fraction = 0.0;
  eraJd2cal(static_cast<double>(dayNumber), 0.0, &date.year, &date.month, &date.day, &fraction);
  return date;
}

/// A Julian date as the number of the civil day and the fraction of it that has gone by.
struct SplitJd {
  long long dayNumber;
  double fraction;
};

SplitJd Split(double jd) {
  const double bounded = std::isnan(jd) ? 0.0 : std::clamp(jd, -kFarthestJd, kFarthestJd);
  const double whole = std::floor(bounded);
  const double rest = bounded - whole;
  // A civil day begins at midnight, half a day before the day of the same number.
  if (rest >= 0.5) return {static_cast<long long>(whole) + 1, rest - 0.5};
  return {static_cast<long long>(whole), rest + 0.5};
}

CalendarDate DateAndTime(long long dayNumber, int secondOfDay, double fractionOfSecond,
                         double timezoneHours) {
  const CivilDay date = CivilDayOf(dayNumber);
  return {date.year,
          date.month,
          date.day,
          secondOfDay / 3600,
          secondOfDay / 60 % 60,
          secondOfDay % 60 + fractionOfSecond,
          timezoneHours};
}

}  // namespace

double CalcJd(int year, int month, double day) {
  const MonthOfYear date = Normalized(year, month);
  const bool gregorian = IsGregorian(date.year, date.month, day);
  return static_cast<double>(FirstDayOfMonth(date, gregorian)) - 0.5 + (day - 1.0);
}

double GetJd(const CalendarDate& date) {
  const double seconds =
      (date.hour - date.timezoneHours) * 3600.0 + date.minute * 60.0 + date.second;
  return static_cast<double>(DayNumber(date.year, date.month, date.day)) - 0.5 + seconds / 86400.0;
}

double GetJd(int year, int month, int day, int hour, int minute, double second,
             double timezoneHours) {
  return GetJd({year, month, day, hour, minute, second, timezoneHours});
}

void JdToDate(double jd, int* year, int* month, double* day) {
  const SplitJd split = Split(jd);
  const CivilDay date = CivilDayOf(split.dayNumber);
  *year = date.year;
  *month = date.month;
  *day = date.day + split.fraction;
}

CalendarDate JdToDate2(double jd, double secondStep) {
  SplitJd split = Split(jd);
  const double steps = std::round(split.fraction * 86400.0 / secondStep);
  const double seconds = steps * secondStep;
  // 599 steps of 0.1 may multiply to a hair beyond 59.9; the whole second is cut with a margin.
  int wholeSeconds = static_cast<int>(seconds + secondStep * 1e-3);
  double fraction = std::max(0.0, seconds - wholeSeconds);
  if (wholeSeconds >= 86400) {
    wholeSeconds = 0;
    fraction = 0.0;
    ++split.dayNumber;
  }
  return DateAndTime(split.dayNumber, wholeSeconds, fraction, 0.0);
}

CalendarDate ChangeTimezone(const CalendarDate& date, double timezoneHours) {
  const double shiftSeconds = (timezoneHours - date.timezoneHours) * 3600.0;
  const double seconds = date.hour * 3600.0 + date.minute * 60.0 + date.second + shiftSeconds;
  constexpr double kMostSeconds = kFarthestJd * 86400.0;
  const long long milliseconds =
      std::llround(std::clamp(seconds, -kMostSeconds, kMostSeconds) * 1000.0);
  const long long days = FloorDivide(milliseconds, kMillisecondsPerDay);
  const int rest = static_cast<int>(milliseconds - days * kMillisecondsPerDay);
  return DateAndTime(DayNumber(date.year, date.month, date.day) + days, rest / 1000,
                     rest % 1000 / 1000.0, timezoneHours);
}

int CheckDate(int year, int month, double day) {
  if (month < 1 || month > 12 || !(day >= 1.0 && day < 32.0)) return 0;
  const int wholeDay = static_cast<int>(day);
  const CivilDay found = CivilDayOf(DayNumber(year, month, wholeDay));
  return found.year == year && found.month == month && found.day == wholeDay ? 1 : 0;
}

}  // namespace vyn
