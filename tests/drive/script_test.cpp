// Lines, words and blocks of scripts, and texts in the output.
#include "tools/vyn-drive/script.h"

#include <gmock/gmock.h>

#include "tools/vyn-drive/arguments.h"
#include "tools/vyn-drive/output.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

TEST(Words, AreSeparatedByBlanksUpToAComment) {
  const struct {
    QString line;
    QStringList words;
  } cases[] = {
      {u""_s, {}},
      {u" \t\r"_s, {}},
      {u"  # all of it"_s, {}},
      {u"click 1001\r"_s, {u"click"_s, u"1001"_s}},
      {u"\tset  a.#1.b  x#y # rest"_s, {u"set"_s, u"a.#1.b"_s, u"x#y"_s}},
      {uR"(type 1 "a # b" "" # c)"_s, {u"type"_s, u"1"_s, u"a # b"_s, u""_s}},
      {uR"("\"\\\n\r\t")"_s, {u"\"\\\n\r\t"_s}},
      {uR"(Dialog\Comet a"b)"_s, {uR"(Dialog\Comet)"_s, u"a\"b"_s}},
      {u"太陽 \"月 と\""_s, {u"太陽"_s, u"月 と"_s}},
  };
  for (const auto& [line, words] : cases) EXPECT_EQ(SplitWords(line), words) << qPrintable(line);
}

TEST(Lines, AnAnswerHoldsItsBlockWithBlocksInside) {
  const auto lines = ReadLines(
      uR"(open A
answer CDlgA # first
answer box ok
answer CDlgB
click 1
end
click 2
end # first
close)"_s);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[2].number, 9);
  const auto& block = lines[1].block;
  ASSERT_EQ(block.size(), 3u);
  EXPECT_EQ(block[0].text, u"answer box ok");
  ASSERT_EQ(block[1].block.size(), 1u);
  EXPECT_EQ(block[1].block[0].number, 5);
  EXPECT_EQ(block[2].number, 7);
}

TEST(Lines, AnAnswerWithoutEndIsMarked) {
  const auto lines = ReadLines(u"answer CDlgA\nanswer CDlgB\nclick 1\nend\n"_s);
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_FALSE(lines[0].hasEnd);
  EXPECT_TRUE(lines[0].block[0].hasEnd);
}

TEST(Arguments, CoordinatesArePixelsOrPercentages) {
  Arguments words({u"50%"_s, u"-10%"_s, u"-7"_s, u"12.5"_s});
  EXPECT_EQ(words.Coordinate(u"X", 300), 150);
  EXPECT_EQ(words.Coordinate(u"X", 200), -20);
  EXPECT_EQ(words.Coordinate(u"X", 200), -7);
  EXPECT_EQ(words.Coordinate(u"X", 200), 12.5);
}

TEST(Output, TextsAreEscapedInQuotesAndKeptToOneLineWhenBare) {
  const QString text = u"a \"b\" \\c\t\r\n月"_s;
  EXPECT_EQ(Quoted(text), uR"("a \"b\" \\c\t\r\n月")");
  EXPECT_EQ(Bare(text), u"a \"b\" \\c\t\\r\\n月");
}

}  // namespace
}  // namespace vyn::drive
