// When an image was taken: the date rules of the image dialogs and their way to Julian dates.
#pragma once

#include <optional>

#include <QString>

#include "siblings/astro/calendar.h"

namespace vyn {

/// The dialogs tell the times of images in Japan Standard Time.
inline constexpr double kJstHours = 9.0;

/// A moment as the six edits of a dialog show it, in Japan Standard Time. Hours up to 30 are those
/// of a late night that is told with the evening's date.
struct ObservationTime {
  int year = 2018;
  int month = 4;
  int day = 1;
  int hour = 0;
  int minute = 0;
  double second = 0.0;
};

/// The day put into the month: the month is taken within 1 to 12, the day is at least 1 and at most
/// the month's length in the Gregorian calendar, whatever the year.
int FixDayLimit(int year, int month, int day);

/// The Julian date in universal time; nothing for a moment that is not sent to the core engine: a
/// year below 1, a month outside 1 to 12, a day outside 1 to 31, hours outside 0 to 59, minutes
/// below 0, seconds outside 0 to 59.
std::optional<double> JdToSend(const ObservationTime& time);

/// The moment of a Julian date, to a tenth of a second; nothing up to the year 1600.
std::optional<ObservationTime> ReadableTime(double jd);

/// A Julian date told in a time zone, to the tenth of a second to which the core engine keeps it.
CalendarDate DateInZone(double jd, double zoneHours);

/// "2024/4/9 3:20:5": no leading zeros, seconds truncated.
QString PlainDateText(const CalendarDate& date);

/// "2024/04/09 03:20:05", seconds truncated; the year is not padded.
QString PaddedDateText(const CalendarDate& date);

/// "20240409032005", seconds truncated, for the names of files.
QString CompactDateText(const CalendarDate& date);

}  // namespace vyn
