// Calendar dates and Julian dates against published pairs, and there and back over many centuries.
#include "siblings/astro/calendar.h"

#include <cmath>

#include <gtest/gtest.h>

namespace vyn {
namespace {

struct PublishedDate {
  int year;
  int month;
  double day;
  double jd = 0.0;
};

/// Meeus, "Astronomical Algorithms" (2nd ed.), pages 61 and 62.
constexpr PublishedDate kPublishedDates[] = {
    {2000, 1, 1.5, 2451545.0},    {1999, 1, 1.0, 2451179.5},   {1987, 1, 27.0, 2446822.5},
    {1988, 6, 19.5, 2447332.0},   {1900, 1, 1.0, 2415020.5},   {1600, 12, 31.0, 2305812.5},
    {1957, 10, 4.81, 2436116.31}, {837, 4, 10.3, 2026871.8},   {333, 1, 27.5, 1842713.0},
    {-123, 12, 31.0, 1676496.5},  {-122, 1, 1.0, 1676497.5},   {-1000, 7, 12.5, 1356001.0},
    {-1000, 2, 29.0, 1355866.5},  {-1001, 8, 17.9, 1355671.4}, {-4712, 1, 1.5, 0.0},
    {1582, 10, 4.0, 2299159.5},   {1582, 10, 15.0, 2299160.5},
};

TEST(Calendar, JulianDatesAreThePublishedOnesBothWays) {
  for (const auto& [year, month, day, jd] : kPublishedDates) {
    SCOPED_TRACE(jd);
    EXPECT_NEAR(CalcJd(year, month, day), jd, 1e-9);
    int foundYear = 0;
    int foundMonth = 0;
    double foundDay = 0.0;
    JdToDate(jd, &foundYear, &foundMonth, &foundDay);
    EXPECT_EQ(foundYear, year);
    EXPECT_EQ(foundMonth, month);
    EXPECT_NEAR(foundDay, day, 1e-8);
  }
}

TEST(Calendar, EveryDayOfTwelveThousandYearsComesBackAndFollowsTheOneBefore) {
  CalendarDate before = JdToDate2(-1.0e6 + 0.5);
  for (double jd = -1.0e6 + 1.5; jd < 3.4e6; jd += 1.0) {
    const CalendarDate date = JdToDate2(jd);
    ASSERT_EQ(GetJd(date), jd);
    ASSERT_NE(CheckDate(date.year, date.month, date.day), 0) << jd;
    const bool nextDay = date.day == before.day + 1 && date.month == before.month;
    const bool nextMonth = date.day == 1 && date.month == before.month % 12 + 1;
    const bool reform = date.year == 1582 && before.day == 4 && date.day == 15;
    ASSERT_TRUE(nextDay || nextMonth || reform) << jd;
    before = date;
  }
}

TEST(Calendar, SecondsNeverReachSixty) {
  for (const double step : {1.0, 0.1, 0.001}) {
    for (int i = -2000; i < 2000; ++i) {
      const double jd = 2460676.5 + i * 1e-6;
      const CalendarDate date = JdToDate2(jd, step);
      const double shown = std::round(date.second / step) * step;
      ASSERT_LT(shown, 60.0 - step / 2) << jd << ' ' << step;
      ASSERT_NEAR(GetJd(date), jd, (step / 2 + 1e-4) / 86400.0);
    }
  }
  const CalendarDate turnOfYear = JdToDate2(2460676.5 - 1e-9);
  EXPECT_EQ(turnOfYear.year, 2025);
  EXPECT_EQ(turnOfYear.day, 1);
  EXPECT_EQ(turnOfYear.hour + turnOfYear.minute + turnOfYear.second, 0.0);
}

TEST(Calendar, TimezonesShiftTheDateAndKeepTheMoment) {
  const CalendarDate utc{2025, 12, 31, 15, 30, 59.999, 0.0};
  const CalendarDate japan = ChangeTimezone(utc, 9.0);
  EXPECT_EQ(japan.year, 2026);
  EXPECT_EQ(japan.month, 1);
  EXPECT_EQ(japan.day, 1);
  EXPECT_EQ(japan.hour, 0);
  EXPECT_EQ(japan.minute, 30);
  EXPECT_DOUBLE_EQ(japan.second, 59.999);
  EXPECT_EQ(japan.timezoneHours, 9.0);
  EXPECT_DOUBLE_EQ(GetJd(japan), GetJd(utc));

  const CalendarDate back = ChangeTimezone(ChangeTimezone(japan, -3.5), 0.0);
  EXPECT_EQ(back.day, utc.day);
  EXPECT_EQ(back.hour, utc.hour);
  EXPECT_DOUBLE_EQ(back.second, utc.second);

  const CalendarDate overTheReform = ChangeTimezone({1582, 10, 4, 20, 0, 0.0, 0.0}, 9.0);
  EXPECT_EQ(overTheReform.day, 15);
  const CalendarDate roundedUp = ChangeTimezone({2024, 2, 28, 23, 59, 59.9996, 0.0}, 0.0);
  EXPECT_EQ(roundedUp.day, 29);
  EXPECT_EQ(roundedUp.second, 0.0);
  EXPECT_EQ(ChangeTimezone(utc, 1e300).year, ChangeTimezone(utc, 1e20).year);
  EXPECT_LT(ChangeTimezone(utc, -1e300).year, -990'000);
}

TEST(Calendar, HoursAndMonthsBeyondTheirRangeCountOn) {
  EXPECT_DOUBLE_EQ(GetJd(2018, 4, 1, 30, 0, 0.0, 9.0), GetJd(2018, 4, 2, 6, 0, 0.0, 9.0));
  EXPECT_DOUBLE_EQ(CalcJd(2018, 13, 1.0), CalcJd(2019, 1, 1.0));
  EXPECT_DOUBLE_EQ(CalcJd(2018, 0, 1.0), CalcJd(2017, 12, 1.0));
}

TEST(Calendar, CheckDateKnowsBothCalendars) {
  const PublishedDate valid[] = {{2024, 2, 29.9}, {1500, 2, 29},  {0, 2, 29},     {-4, 2, 29},
                                 {1582, 10, 4},   {1582, 10, 15}, {-999, 12, 31}, {99999, 1, 1}};
  for (const auto& date : valid)
    EXPECT_NE(CheckDate(date.year, date.month, date.day), 0) << date.year;
  const PublishedDate invalid[] = {{2023, 2, 29}, {1900, 2, 29}, {1582, 10, 5}, {1582, 10, 14},
                                   {2023, 4, 31}, {2023, 0, 1},  {2023, 13, 1}, {2023, 1, 0},
                                   {2023, 1, 32}, {-1, 2, 29},   {2023, 1, NAN}};
  for (const auto& date : invalid) {
    EXPECT_EQ(CheckDate(date.year, date.month, date.day), 0) << date.year << ' ' << date.day;
  }
}

TEST(Calendar, NoJulianDateDoesHarm) {
  for (const double jd : {double{NAN}, double{INFINITY}, -double{INFINITY}, 1e300, -1e300}) {
    EXPECT_NE(CheckDate(JdToDate2(jd).year, JdToDate2(jd).month, JdToDate2(jd).day), 0);
  }
}

}  // namespace
}  // namespace vyn
