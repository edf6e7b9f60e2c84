// Reading replies and building statements, rule by rule.
#include "core_link/reply.h"

#include <gtest/gtest.h>

#include <clocale>
#include <limits>

#include <QLocale>

#include "core_link/statement.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

TEST(Reply, OnlyTheWholeWordIsTrue) {
  for (const auto& text : {u"TRUE"_s, u"True"_s, u"true"_s, u"tRuE"_s}) {
    EXPECT_TRUE(reply::ToBool(text)) << text.toStdString();
  }
  for (const auto& text : {u""_s, u" TRUE"_s, u"TRUE "_s, u"1"_s, u"TRUEX"_s, u"FALSE"_s}) {
    EXPECT_FALSE(reply::ToBool(text)) << text.toStdString();
  }
}

TEST(Reply, NumbersAreReadByTheirLongestPrefix) {
  const struct {
    QString text;
    double asDouble;
    int asInt;
  } cases[] = {
      {u"10.5 au"_s, 10.5, 10}, {u" \t-3"_s, -3.0, -3},    {u"+7.25"_s, 7.25, 7},
      {u"1e3x"_s, 1000.0, 1},   {u"1e"_s, 1.0, 1},         {u".5"_s, 0.5, 0},
      {u"1,5"_s, 1.0, 1},       {u"abc"_s, 0.0, 0},        {u""_s, 0.0, 0},
      {u"+-3"_s, 0.0, 0},       {u"12\u5e74"_s, 12.0, 12},
  };
  for (const auto& [text, asDouble, asInt] : cases) {
    EXPECT_EQ(reply::ToDouble(text), asDouble) << text.toStdString();
    EXPECT_EQ(reply::ToInt(text), asInt) << text.toStdString();
  }
  EXPECT_EQ(reply::ToDouble(u"-1e999 far"), 0.0);
  EXPECT_EQ(reply::ToDouble(u"1e-999"), 0.0);
  EXPECT_EQ(reply::ToInt(u"99999999999"), std::numeric_limits<int>::max());
  EXPECT_EQ(reply::ToInt(u"-99999999999"), std::numeric_limits<int>::min());
}

TEST(Reply, NumbersDoNotFollowTheLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  QLocale::setDefault(QLocale(QLocale::German));
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  EXPECT_EQ(reply::ToDouble(u"2.75"), 2.75);
  EXPECT_EQ(statement::Double(u"a", 1234567.5), u"a = 1234567.500000;"_s);
  EXPECT_EQ(statement::Int(u"a", 1234567), u"a = 1234567;"_s);
  std::setlocale(LC_ALL, before.c_str());
  QLocale::setDefault(QLocale::c());
}

TEST(Reply, ElevenLettersMeanSolarSystemMode) {
  EXPECT_TRUE(reply::IsSolarSystem(u"solarsystem"));
  EXPECT_TRUE(reply::IsSolarSystem(u"SolarSystemPerspective"));
  EXPECT_FALSE(reply::IsSolarSystem(u"Solar"));
  EXPECT_FALSE(reply::IsSolarSystem(u" SolarSystem"));
  EXPECT_FALSE(reply::IsSolarSystem(u""));
}

TEST(Statement, IsOneCompleteAssignment) {
  EXPECT_EQ(statement::Query(u"solar.sun.visible"_s), u"? solar.sun.visible"_s);
  EXPECT_EQ(statement::Bool(u"solar.sun.visible", true), u"solar.sun.visible = TRUE;"_s);
  EXPECT_EQ(statement::Visible(u"CosmicScale", false), u"CosmicScale.Visible = FALSE;"_s);
}

}  // namespace
}  // namespace vyn
