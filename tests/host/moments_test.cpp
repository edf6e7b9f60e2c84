#include <gtest/gtest.h>

#include "host/moments.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

double Jst(int year, int month, int day, int hour = 21) {
  return GetJd(year, month, day, hour, 0, 0.0, 9.0);
}

TEST(MomentsTest, StepsKeepTheCalendar) {
  const double start = Jst(2026, 1, 31);
  EXPECT_NEAR(Stepped(start, TimeUnit::Month, 1), Jst(2026, 2, 28), 1e-8);
  EXPECT_NEAR(Stepped(start, TimeUnit::Month, -2), Jst(2025, 11, 30), 1e-8);
  EXPECT_NEAR(Stepped(Jst(2024, 2, 29), TimeUnit::Year, 1), Jst(2025, 2, 28), 1e-8);
  EXPECT_NEAR(Stepped(start, TimeUnit::Hour, 3), Jst(2026, 2, 1, 0), 1e-8);
  EXPECT_NEAR(Stepped(start, TimeUnit::Minute, -60), Jst(2026, 1, 31, 20), 1e-8);
  // Before the year 1 too.
  EXPECT_NEAR(Stepped(Jst(1, 1, 15), TimeUnit::Month, -1), Jst(0, 12, 15), 1e-8);
  EXPECT_NEAR(Stepped(Jst(0, 1, 15), TimeUnit::Month, -1), Jst(-1, 12, 15), 1e-8);
}

TEST(MomentsTest, StatementTellsJapanTime) {
  EXPECT_EQ(TimeStatement(Jst(2026, 1, 1)).toStdString(),
            "time = jst(2026, 1, 1, 21, 0, 0.000000);");
}

TEST(MomentsTest, ReadsMomentsAndRefusesOtherTexts) {
  EXPECT_NEAR(ReadMoment(QStringLiteral("2026-01-01T21:00:00")).value(), Jst(2026, 1, 1), 1e-8);
  EXPECT_NEAR(ReadMoment(QStringLiteral("-5-01-01 21:00")).value(), Jst(-5, 1, 1), 1e-8);
  for (const char* text : {"", "2026-01-01", "2026-02-30T10:00:00", "2026-01-01T24:00:00",
                           "2026-01-01T10:60:00", "1582-10-10T00:00:00", "now"}) {
    EXPECT_FALSE(ReadMoment(QString::fromUtf8(text)).has_value()) << text;
  }
}

}  // namespace
}  // namespace vyn
