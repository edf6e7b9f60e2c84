// What the "all" button of a column makes of the cells in view.
#include "small_bodies/all_button_rule.h"

#include <gtest/gtest.h>

namespace vyn {
namespace {

tagDataColumn Cells(const std::vector<int>& values, int options = 0) {
  tagDataColumn column(0, ObjectColumnKind::Check, options, static_cast<qint64>(values.size()));
  for (std::size_t i = 0; i < values.size(); ++i) {
    column.Cell(static_cast<qint64>(i)).value = values[i];
  }
  return column;
}

TEST(AllButtonRule, ChecksFollowTheMajorityAndTurnRoundWhenAllAgree) {
  EXPECT_TRUE(AllButtonSwitchesOn(Cells({0, 0, 0})));
  EXPECT_FALSE(AllButtonSwitchesOn(Cells({1, 1, 1})));
  EXPECT_FALSE(AllButtonSwitchesOn(Cells({1, 1, 0, 0})));
  EXPECT_TRUE(AllButtonSwitchesOn(Cells({1, 1, 1, 0, 0})));
  EXPECT_TRUE(AllButtonSwitchesOn(Cells({1, 1, 0})));
  EXPECT_FALSE(AllButtonSwitchesOn(Cells({1, 0, 0})));
  EXPECT_TRUE(AllButtonSwitchesOn(Cells({})));
}

TEST(AllButtonRule, ChoicesTakeTheMostFrequentOptionAndGoOnWhenAllAgree) {
  EXPECT_EQ(AllButtonOption(Cells({0, 1, 1}, 2)), 1);
  EXPECT_EQ(AllButtonOption(Cells({0, 1}, 2)), 0);
  EXPECT_EQ(AllButtonOption(Cells({0, 0}, 2)), 1);
  EXPECT_EQ(AllButtonOption(Cells({1, 1}, 2)), 0);
  EXPECT_EQ(AllButtonOption(Cells({2, 2, 0, 1, 1}, 3)), 1);
  EXPECT_EQ(AllButtonOption(Cells({7, 7, -1, 1}, 2)), 1);
}

}  // namespace
}  // namespace vyn
