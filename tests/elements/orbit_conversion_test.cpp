// Size and timing of orbits, given in one way and derived in the other.
#include "elements/orbit_conversion.h"

#include <gtest/gtest.h>

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

ElementInput Orbit(const QString& e, const QString& q, const QString& a = {}) {
  ElementInput input;
  input[ElementField::Eccentricity] = e;
  input[ElementField::PerihelionDistance] = q;
  input.semiMajorAxis = a;
  return input;
}

void SetDate(ElementInput& input, const DateFields& date, const QString& year, const QString& month,
             const QString& day) {
  input[date.year] = year;
  input[date.month] = month;
  input[date.day] = day;
}

QString DateOf(const ElementInput& input, const DateFields& date) {
  return input[date.year] + u'/' + input[date.month] + u'/' + input[date.day];
}

TEST(OrbitConversion, AxisFromPerihelionDistance) {
  struct Case {
    QString e, q, a;
  };
  const Case cases[] = {
      {u"0.5"_s, u"0.5"_s, u"1.0"_s},
      {u"0.96714291"_s, u"0.58597811"_s, u"17.83414508"_s},  // 1P/Halley
      {u"0.0"_s, u"1"_s, u" 1"_s},
      {u"0.9"_s, u"1"_s, u" 10"_s},
      {u"0.5"_s, u"99"_s, u" 198"_s},
      {u"0.5"_s, u"0.1234567890123"_s, u"0.24691358"_s},
      {u"0.9990"_s, u"1.0"_s, u""_s},  // 1000 au
      {u"0.99899"_s, u"1.000"_s, u"990.099"_s},
      {u"1.0"_s, u"0.5"_s, u""_s},
      {u"1.2"_s, u"0.5"_s, u""_s},
      {u" "_s, u"0.5"_s, u""_s},
      {u"0.5"_s, u""_s, u""_s},
  };
  for (const auto& [e, q, a] : cases) EXPECT_EQ(PerihelionDistanceToAxis(Orbit(e, q)), a);
}

TEST(OrbitConversion, PerihelionDistanceFromAxis) {
  struct Case {
    QString e, a, q;
  };
  const Case cases[] = {
      {u"0.5"_s, u"1.0"_s, u"0.5"_s},
      {u"0.0795763"_s, u"2.7657266"_s, u"2.5456403"_s},
      {u"0.1"_s, u"12"_s, u"11"_s},
      {u"0.5"_s, u"5"_s, u"2"_s},  // 2.5: a tie goes to the even digit
      {u"1.5"_s, u"-2.00"_s, u"1.00"_s},
      {u"1"_s, u"2.0"_s, u""_s},
      {u""_s, u"2.0"_s, u""_s},
      {u"0.5"_s, u"  "_s, u""_s},
      {u"0.5"_s, u"1.1234567891"_s, u"0.56172839"_s},
  };
  for (const auto& [e, a, q] : cases) EXPECT_EQ(AxisToPerihelionDistance(Orbit(e, {}, a)), q);
}

TEST(OrbitConversion, PeriodIsShownToThreeDigitsOrSo) {
  const auto period = [](const QString& e, const QString& q) {
    return GetPeriodString(Orbit(e, q));
  };
  EXPECT_EQ(period(u"0.5"_s, u"0.5"_s), u"1.00"_s);
  EXPECT_EQ(period(u"0.96714291"_s, u"0.58597811"_s), u"75.3"_s);  // 1P/Halley
  EXPECT_EQ(period(u"0.0"_s, u"0.387098"_s), u"0.240"_s);          // Mercury
  EXPECT_EQ(period(u"0.0"_s, u"5.2026"_s), u"11.9"_s);             // Jupiter
  EXPECT_EQ(period(u"0.0"_s, u"39.482"_s), u"248"_s);              // Pluto
  EXPECT_EQ(period(u"0.0"_s, u"99.9"_s), u"998"_s);
  EXPECT_EQ(period(u"0.995"_s, u"0.9"_s), u">1000"_s);
  EXPECT_EQ(period(u"0.0"_s, u"4.6416"_s), u"10.0"_s);
  for (const auto& e : {u"1.0"_s, u"1.1"_s, u""_s}) EXPECT_EQ(period(e, u"0.5"_s), QString());
  EXPECT_EQ(period(u"0.5"_s, u""_s), QString());
  EXPECT_EQ(period(u"0.5"_s, u"-1.0"_s), QString());

  ElementInput byAxis = Orbit(u"0.5"_s, u""_s, u"4.0"_s);
  byAxis.distanceMode = false;
  EXPECT_EQ(GetPeriodString(byAxis), u"8.00"_s);
}

/// (1) Ceres: the Minor Planet Center gives M = 231.53975 at the epoch 2025 November 21.0, and
/// n = 0.21429712 degrees a day.
ElementInput Ceres() {
  ElementInput input = Orbit(u"0.0795763"_s, u"2.54553823"_s, u"2.7656157"_s);
  input.distanceMode = input.timeMode = false;
  SetDate(input, kEpochDate, u"2025"_s, u"11"_s, u"21.0"_s);
  input.meanAnomaly = u"231.53975"_s;
  return input;
}

TEST(OrbitConversion, PerihelionTimeFromMeanAnomalyAndBack) {
  ElementInput input = Ceres();
  ASSERT_EQ(EpochToT(input), 0);
  const double jdPublished = 2461000.5 - 231.53975 / 0.21429712;
  EXPECT_NEAR(JdOf(input, kPerihelionDate), jdPublished, 1e-4);
  EXPECT_EQ(GetPrecision(input[ElementField::PerihelionDay]), 5);
  input.meanAnomaly.clear();
  ASSERT_TRUE(TToEpoch(input));
  EXPECT_EQ(input.meanAnomaly, u"231.53975"_s);
}

TEST(OrbitConversion, MeanAnomalyBeforePerihelionIsReducedToOneTurn) {
  ElementInput input = Ceres();
  input.meanAnomaly = u"-128.46025"_s;
  ASSERT_EQ(EpochToT(input), 0);
  EXPECT_EQ(DateOf(input, kPerihelionDate).first(8), u"2027/7/1"_s);
  ASSERT_TRUE(TToEpoch(input));
  EXPECT_EQ(input.meanAnomaly, u"231.53975"_s);
}

TEST(OrbitConversion, DayHasTheDecimalsOfTheMeanAnomalyAndABlankBeforeWholeDays) {
  ElementInput input = Orbit(u"0.0"_s, u"1.0"_s, u"1.0"_s);
  SetDate(input, kEpochDate, u"2000"_s, u"1"_s, u"15"_s);
  const auto perihelion = [&](const QString& meanAnomaly) {
    input.meanAnomaly = meanAnomaly;
    EXPECT_EQ(EpochToT(input), 0);
    return DateOf(input, kPerihelionDate);
  };
  EXPECT_EQ(perihelion(u"0"_s), u"2000/1/ 15"_s);
  EXPECT_EQ(perihelion(u"10"_s), u"2000/1/ 5"_s);
  EXPECT_EQ(perihelion(u"0.00"_s), u"2000/1/15.00"_s);
  EXPECT_EQ(perihelion(u"0.00000000"_s), u"2000/1/15.000000"_s);
  // December 31.8 of the year before, without decimals.
  EXPECT_EQ(perihelion(u"14"_s), u"2000/1/ 1"_s);
}

TEST(OrbitConversion, EpochIsRefusedWithTheReason) {
  const auto messageFor = [](auto change) {
    ElementInput input = Ceres();
    change(input);
    const QString before = DateOf(input, kPerihelionDate);
    const int message = EpochToT(input);
    EXPECT_TRUE(message == 0 || DateOf(input, kPerihelionDate) == before);
    return message;
  };
  using F = ElementField;
  EXPECT_EQ(messageFor([](ElementInput& i) { i[F::EpochMonth].clear(); }), 13341);
  EXPECT_EQ(messageFor([](ElementInput& i) { i.meanAnomaly = u" "_s; }), 13341);
  EXPECT_EQ(messageFor([](ElementInput& i) { i[F::Eccentricity] = u"0.96"_s; }), 13330);
  EXPECT_EQ(messageFor([](ElementInput& i) { i[F::PerihelionDistance] = u"2.7"_s; }), 13330)
      << "q and a contradict one another";
  EXPECT_EQ(messageFor([](ElementInput& i) { i[F::PerihelionDistance] = u"2.6"_s; }), 0);
  EXPECT_EQ(messageFor([](ElementInput& i) { i[F::PerihelionDistance].clear(); }), 0);
  EXPECT_EQ(messageFor([](ElementInput& i) { i.semiMajorAxis.clear(); }), 0);
  EXPECT_EQ(messageFor([](ElementInput& i) {
              i[F::PerihelionDistance].clear();
              i.semiMajorAxis.clear();
            }),
            13330);
  EXPECT_EQ(messageFor([](ElementInput& i) {
              i[F::PerihelionDistance] = u"-1"_s;
              i.semiMajorAxis.clear();
            }),
            13338);
}

TEST(OrbitConversion, MeanAnomalyStaysWhereItCannotBeDerived) {
  using F = ElementField;
  ElementInput input = Ceres();
  ASSERT_EQ(EpochToT(input), 0);
  input.meanAnomaly = u"typed"_s;
  for (const F field : {F::PerihelionYear, F::EpochDay}) {
    ElementInput incomplete = input;
    incomplete[field].clear();
    EXPECT_FALSE(TToEpoch(incomplete));
    EXPECT_EQ(incomplete.meanAnomaly, u"typed"_s);
  }
  input[F::Eccentricity] = u"0.951"_s;
  EXPECT_FALSE(TToEpoch(input));
}

TEST(OrbitConversion, BadTextsDoNoHarm) {
  for (const auto& text : {u"nan"_s, u"-inf"_s, u"1e308"_s, u"-1e308"_s, u"."_s, u"９"_s, u"--1"_s,
                           QString(1000, u'9')}) {
    ElementInput input = Orbit(u"0.5"_s, text, text);
    SetDate(input, kEpochDate, text, text, text);
    SetDate(input, kPerihelionDate, text, text, text);
    input.meanAnomaly = text;
    for (const bool mode : {true, false}) {
      input.distanceMode = mode;
      EXPECT_FALSE(GetPeriodString(input).contains(u"n"));
    }
    input[ElementField::PerihelionDistance] = u"0.5"_s;
    input.semiMajorAxis = u"1.0"_s;
    EpochToT(input);
    TToEpoch(input);
    EXPECT_FALSE(DateOf(input, kPerihelionDate).contains(u"na"));
  }
}

}  // namespace
}  // namespace vyn
