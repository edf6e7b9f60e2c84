// Calendar dates and Julian dates.
//
// Dates up to 1582-10-04 are in the Julian calendar, dates from 1582-10-15 on in the Gregorian one.
// Years are numbered astronomically: the year before year 1 is year 0, the one before that -1.
#pragma once

namespace vyn {

/// A date with time of day and the time zone in which both are told.
struct CalendarDate {
  int year = 2000;
  int month = 1;               ///< 1 to 12
  int day = 1;                 ///< 1 to 31
  int hour = 0;                ///< 0 to 23
  int minute = 0;              ///< 0 to 59
  double second = 0.0;         ///< from 0 up to, never reaching, 60
  double timezoneHours = 0.0;  ///< local time minus universal time
};

/// The Julian date of a calendar date with a fractional day. A month outside 1 to 12 counts on into
/// the neighbouring years, a day outside the month into the neighbouring months; the ten days that
/// the reform left out are counted as days of the Julian calendar.
/// Sources: ERFA's eraCal2jd for the Gregorian calendar; for the Julian calendar, Meeus,
/// "Astronomical Algorithms" (2nd ed.), chapter 7.
double CalcJd(int year, int month, double day);

/// The Julian date in universal time of a date, time and zone. Hours, minutes and seconds beyond
/// their ranges count on.
double GetJd(const CalendarDate& date);
double GetJd(int year, int month, int day, int hour, int minute, double second,
             double timezoneHours);

/// The calendar date, with a fractional day, of a Julian date: the inverse of CalcJd.
/// Julian dates beyond a million years from now are taken as the nearest that is not.
void JdToDate(double jd, int* year, int* month, double* day);

/// The calendar date and time of a Julian date, in zone 0. The seconds are rounded to a multiple of
/// `secondStep`, and what is rounded up to 60 goes into the minute, the hour and the date: whoever
/// shows tenths passes 0.1, and never shows "60.0". A Julian date near today is itself good to
/// 0.00004 s.
CalendarDate JdToDate2(double jd, double secondStep = 0.001);

/// The same moment told in another time zone, to the nearest millisecond. What no zone is, such as
/// 1e300 hours, shifts the date by a million years at most.
CalendarDate ChangeTimezone(const CalendarDate& date, double timezoneHours);

/// Non-zero when the calendar has this day: the month is 1 to 12, the day, fraction aside, is one
/// of that month's and not one of those that the reform of 1582 left out.
int CheckDate(int year, int month, double day);

}  // namespace vyn
