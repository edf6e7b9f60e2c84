// Numbers in edits and the steps of the vectors' spin buttons.
#include <cmath>

#include <gtest/gtest.h>

#include <QStringList>

#include "core_link/number_text.h"
#include "core_link/vector_step.h"

namespace vyn {
namespace {

TEST(NumberText, KeepsHundredthsWithinItsLength) {
  const struct {
    double value;
    const char* text;
  } cases[] = {
      {1.0, "1"},     {0.5, "0.5"}, {0.01, "0.01"}, {12.25, "12.3"}, {99.99, "100"},
      {100.0, "100"}, {0.0, "0"},   {10.0, "10"},   {0.999, "1"},    {-1.25, "-1.3"},
  };
  for (const auto& [value, text] : cases) {
    EXPECT_EQ(ShortNumberText(value, 4).toStdString(), text) << value;
  }
}

TEST(FixedText, TakesTheEvenDigitHalfwayAndKeepsTheSignOfZero) {
  const struct {
    double value;
    int decimals;
    const char* text;
  } cases[] = {
      {6.25, 1, "6.2"},  {6.75, 1, "6.8"}, {-0.25, 1, "-0.2"},           {0.05, 1, "0.1"},
      {-0.0, 1, "-0.0"}, {2.5, 0, "2"},    {12.0078125, 6, "12.007812"}, {-0.04, 1, "-0.0"},
  };
  for (const auto& [value, decimals, text] : cases) {
    EXPECT_EQ(FixedText(value, decimals).toStdString(), text) << value;
  }
}

TEST(VectorStep, IsCoarserAboveOneTenthAndOne) {
  constexpr int kUp = -1, kDown = 1;
  const struct {
    double from;
    int delta;
    double to;
  } cases[] = {
      {0.09, kUp, 0.1},      {0.1, kUp, 0.2},   {1.0, kUp, 2.0},    {100.0, kUp, 100.0},
      {1.0, kDown, 0.9},     {1.5, kDown, 0.5}, {0.1, kDown, 0.09}, {0.01, kDown, 0.01},
      {500.0, kDown, 100.0}, {2.0, 0, 1.0},
  };
  for (const auto& [from, delta, to] : cases) {
    EXPECT_NEAR(StepVectorValue(from, delta), to, 1e-12) << from << " by " << delta;
  }
}

/// What is shown decides the next step, not what binary fractions make of it.
TEST(VectorStep, WalksTheWholeRangeOnWhatIsShownAndBack) {
  double value = 2.0;
  QStringList shown;
  for (int i = 0; i < 21; ++i) {
    value = StepVectorValue(value, 1);
    shown.append(ShortNumberText(value, 4, 2));
  }
  EXPECT_EQ(shown.join(u' ').toStdString(),
            "1 0.9 0.8 0.7 0.6 0.5 0.4 0.3 0.2 0.1 0.09 0.08 0.07 0.06 0.05 0.04 0.03 0.02 0.01 "
            "0.01 0.01");
  for (int i = 0; i < 19; ++i) value = StepVectorValue(value, -1);
  EXPECT_EQ(value, 2.0);
}

TEST(RoundedStep, HasNoNegativeZero) {
  EXPECT_FALSE(std::signbit(RoundedStep(0.3 - 0.1 - 0.1 - 0.1)));
  EXPECT_EQ(RoundedStep(-4.3 - 0.1), -4.4);
}

}  // namespace
}  // namespace vyn
