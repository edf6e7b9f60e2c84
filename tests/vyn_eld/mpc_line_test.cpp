// Lines of the Minor Planet Center's formats become the records that others have made of them.
#include "tools/vyn-eld/mpc_line.h"

#include <fstream>
#include <functional>
#include <iterator>
#include <map>

#include <gtest/gtest.h>

#include "elements/identifier_key.h"

namespace vyn::eld {
namespace {

std::string ReadAll(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> ElementLines(const std::string& name) {
  std::ifstream file(std::string(VYN_MPC_DIR) + "/" + name);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (LooksLikeElements(line) && !IsSeparator(line)) lines.push_back(line);
  }
  return lines;
}

std::string IdentifierIn(std::string_view record) {
  const std::string_view field = FieldBytes(record, ElementField::Identifier);
  return std::string(field.substr(0, field.find_last_not_of(' ') + 1));
}

std::map<std::string, std::string> Records(const std::string& path) {
  const std::string file = ReadAll(path);
  std::map<std::string, std::string> records;
  for (std::size_t at = 0; at < file.size(); at += kElementRecordSize) {
    records.emplace(IdentifierIn(file.substr(at, kElementRecordSize)),
                    file.substr(at, kElementRecordSize));
  }
  return records;
}

/// No line has a Japanese name.
std::string WithoutJapanese(std::string_view record) {
  const RecordField& field = FieldOf(ElementField::JapaneseName);
  return std::string(record).replace(field.offset, field.width, field.width, ' ');
}

using Converter = std::function<std::optional<LineProblem>(std::string_view, RecordBytes&)>;

std::string Converted(const Converter& convert, const std::string& line) {
  RecordBytes record;
  const auto problem = convert(line, record);
  return problem ? std::to_string(problem->column) + ": " + problem->reason
                 : std::string(record.data(), record.size());
}

TEST(MpcLine, MinorPlanetsAreWhatOthersMadeOfTheSameLines) {
  const auto expected = Records(VYN_MPC_DIR "/mpcorb_expected.eld");
  const std::vector<std::string> lines = ElementLines("mpcorb.txt");
  ASSERT_EQ(lines.size(), expected.size());
  for (const std::string& line : lines) {
    const std::string record = Converted(ConvertMinorPlanet, line);
    EXPECT_EQ(record, WithoutJapanese(expected.at(IdentifierIn(record))));
  }
}

TEST(MpcLine, CometsAreWhatOthersMadeOfTheSameLines) {
  const auto expected = Records(VYN_DATA_DIR "/comets.eld");
  int converted = 0;
  for (const std::string& line : ElementLines("comets.txt")) {
    const std::string record = Converted(ConvertComet, line);
    // A later orbit of this one is in the file.
    if (IdentifierIn(record) == "73P-BT") continue;
    EXPECT_EQ(record, WithoutJapanese(expected.at(IdentifierIn(record))));
    ++converted;
  }
  EXPECT_EQ(converted, 11);
}

std::string MinorPlanetLine() { return ElementLines("mpcorb.txt").front(); }
std::string CometLine() { return ElementLines("comets.txt").front(); }

std::string With(std::string line, int column, std::string_view text) {
  return line.replace(column - 1, text.size(), text);
}

TEST(MpcLine, MagnitudesMayBeBlank) {
  const std::string line = With(MinorPlanetLine(), 9, "           ");
  const std::string record = Converted(ConvertMinorPlanet, line);
  ASSERT_EQ(record.size(), static_cast<std::size_t>(kElementRecordSize));
  EXPECT_EQ(record.substr(130, 12), "            ");
  const std::string comet = Converted(ConvertComet, With(CometLine(), 92, "         "));
  EXPECT_EQ(comet.substr(130, 12), "            ");
}

TEST(MpcLine, WhatCannotBeConvertedIsToldWithItsColumn) {
  struct Case {
    Converter convert;
    std::string line;
    const char* problem;
  };
  const std::string planet = MinorPlanetLine();
  const std::string comet = CometLine();
  const Case cases[] = {
      {ConvertMinorPlanet, With(planet, 1, "?"), "1: the designation cannot be read"},
      {ConvertMinorPlanet, With(planet, 9, " x.yz"), "9: absolute magnitude is not a number"},
      {ConvertMinorPlanet, With(planet, 21, "     "), "21: epoch is missing"},
      {ConvertMinorPlanet, With(planet, 21, "K25BW"), "21: epoch cannot be read"},
      {ConvertMinorPlanet, With(planet, 21, "K252U"), "21: the epoch's month has no such day"},
      {ConvertMinorPlanet, With(planet, 27, "   x     "), "27: mean anomaly is not a number"},
      {ConvertMinorPlanet, With(planet, 38, "         "), "38: argument of perihelion is missing"},
      {ConvertMinorPlanet, With(planet, 49, "360.00000"),
       "49: longitude of ascending node is out of range"},
      {ConvertMinorPlanet, With(planet, 60, "180.00000"), "60: inclination is out of range"},
      {ConvertMinorPlanet, With(planet, 71, "1.0000000"),
       "71: eccentricity is not that of an ellipse"},
      {ConvertMinorPlanet, With(planet, 71, "10.000000"), "71: eccentricity is out of range"},
      {ConvertMinorPlanet, With(planet, 93, "000.0000000"),
       "93: perihelion distance is out of range"},
      {ConvertMinorPlanet, With(planet, 93, "           "), "93: semi-major axis is not a number"},
      {ConvertMinorPlanet, planet.substr(0, 45), "49: longitude of ascending node is missing"},
      {ConvertMinorPlanet, "", "38: argument of perihelion is missing"},
      {ConvertComet, With(comet, 5, " "), "5: the type of the orbit is not a letter"},
      {ConvertComet, With(comet, 6, "       "), "6: the designation cannot be read"},
      {ConvertComet, With(comet, 15, "****"), "15: perihelion year is not a number"},
      {ConvertComet, With(comet, 20, "13"), "20: perihelion month is out of range"},
      {ConvertComet, With(comet, 31, " 0.000000"), "31: perihelion distance is out of range"},
      {ConvertComet, With(comet, 86, "  "), "86: epoch month is missing"},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(Converted(row.convert, row.line).substr(0, 80), row.problem);
  }
}

/// An orbit of so long a period has one passage of perihelion that a record can hold: the one that
/// is nearest, here a few years ahead although the mean anomaly is almost a whole turn.
TEST(MpcLine, ThePassageNearestToTheEpochIsTaken) {
  std::string line = With(MinorPlanetLine(), 27, "359.99000");
  line = With(line, 93, "900.0000000");
  line = With(line, 71, "0.9100000");
  const std::string record = Converted(ConvertMinorPlanet, line);
  EXPECT_EQ(record.substr(51, 6), "202608");
  EXPECT_EQ(record.substr(78, 11), "81.00000000");
}

TEST(MpcLine, HeadingsAndSeparatorsAreToldFromElements) {
  EXPECT_TRUE(IsSeparator(""));
  EXPECT_TRUE(IsSeparator("   "));
  EXPECT_TRUE(IsSeparator("-----"));
  EXPECT_FALSE(IsSeparator("- -"));
  EXPECT_FALSE(LooksLikeElements("Des'n     H     G   Epoch     M        Peri.      Node"));
  EXPECT_TRUE(LooksLikeElements(CometLine()));
}

}  // namespace
}  // namespace vyn::eld
