// One switch of many objects, against a plain list of booleans.
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "engine/object_switches.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

void ExpectSame(const SwitchColumn& column, const std::vector<bool>& expected) {
  ASSERT_EQ(column.Count(), static_cast<qsizetype>(expected.size()));
  qsizetype on = 0;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    ASSERT_EQ(column.IsOn(static_cast<qsizetype>(i)), expected[i]) << "object " << i;
    on += expected[i] ? 1 : 0;
  }
  EXPECT_EQ(column.OnCount(), on);
}

TEST(SwitchColumn, FollowsAListThroughRemovalsAndGrowth) {
  std::mt19937 random(7);
  SwitchColumn column;
  std::vector<bool> expected(200);
  column.Resize(200);
  for (int step = 0; step < 400; ++step) {
    const std::size_t at = random() % expected.size();
    if (step % 3 == 0) {
      column.Remove(static_cast<qsizetype>(at));
      expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(at));
    }
    if (step % 50 == 49) {
      expected.resize(expected.size() + 70);
      column.Resize(static_cast<qsizetype>(expected.size()));
    }
    const std::size_t set = random() % expected.size();
    column.Set(static_cast<qsizetype>(set), step % 2 == 0 ? u"TRUE" : u"FALSE");
    expected[set] = step % 2 == 0;
  }
  ExpectSame(column, expected);
}

TEST(SwitchColumn, FillsEveryObjectAndNoMore) {
  for (const int count : {0, 1, 63, 64, 65, 130}) {
    SwitchColumn column;
    column.Resize(count);
    column.Fill(u"true");
    ExpectSame(column, std::vector<bool>(static_cast<std::size_t>(count), true));
    column.Resize(count + 3);
    EXPECT_EQ(column.OnCount(), count);
  }
}

TEST(SwitchColumn, MembersBringAColumnBack) {
  SwitchColumn column;
  column.Resize(300);
  column.Fill(u"false");
  for (const int i : {0, 1, 2, 4, 63, 64, 299}) column.Set(i, u"true");
  EXPECT_EQ(column.Members(), QStringList(u"1-3,5,64-65,300 true/false"_s));
  SwitchColumn other;
  other.Resize(300);
  other.Fill(u"TRUE");
  other.SetMembers(column.Members().front());
  EXPECT_TRUE(other == column);
  other.SetMembers(u"none TRUE/FALSE");
  EXPECT_EQ(other.OnCount(), 0);
}

TEST(SwitchColumn, LongMembersComeInPieces) {
  SwitchColumn column;
  column.Resize(400000);
  for (int i = 0; i < 400000; i += 2) column.Set(i, u"TRUE");
  SwitchColumn other;
  other.Resize(400000);
  ASSERT_GT(column.Members().size(), 1);
  for (const QString& piece : column.Members()) other.SetMembers(piece);
  EXPECT_TRUE(other == column);
}

TEST(SwitchColumn, BadMembersSetNothing) {
  SwitchColumn column;
  column.Resize(3);
  for (const auto* text :
       {u"", u"1", u"+", u"+0", u"+-5", u"+x-y", u"+4-9", u"+99999999999999999999"}) {
    column.SetMembers(text);
  }
  EXPECT_EQ(column.OnCount(), 0);
  column.SetMembers(u"+2-99999999999");
  EXPECT_EQ(column.OnCount(), 2);
}

}  // namespace
}  // namespace vyn
