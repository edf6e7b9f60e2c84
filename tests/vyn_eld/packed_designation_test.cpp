// Packed designations against published examples.
#include "tools/vyn-eld/packed_designation.h"

#include <gtest/gtest.h>

namespace vyn::eld {
namespace {

TEST(PackedDesignation, NumbersOfMinorPlanets) {
  const std::pair<const char*, int> cases[] = {
      {"00001", 1},      {"99999", 99999},   {"A0345", 100345},  {"a0017", 360017},
      {"K3289", 203289}, {"z9999", 619999},  {"~0000", 620000},  {"~000z", 620061},
      {"~0010", 620062}, {"~AZaz", 3140113}, {"~zzzz", 15396335}};
  for (const auto& [packed, number] : cases) EXPECT_EQ(UnpackNumber(packed), number) << packed;
  for (const char* packed : {"", "0001", "000001", "A034x", "-0001", "~00_0", "0000P"}) {
    EXPECT_EQ(UnpackNumber(packed), std::nullopt) << packed;
  }
}

TEST(PackedDesignation, ProvisionalDesignationsOfMinorPlanets) {
  const std::pair<const char*, const char*> cases[] = {
      {"J95X00A", "1995 XA"},     {"J95X01L", "1995 XL1"},      {"J95F13B", "1995 FB13"},
      {"J98SA8Q", "1998 SQ108"},  {"J98SC7V", "1998 SV127"},    {"J98SG2S", "1998 SS162"},
      {"K99AJ3Z", "2099 AZ193"},  {"K08Aa0A", "2008 AA360"},    {"K07Tf8A", "2007 TA418"},
      {"L01A00A", "2101 AA"},     {"I01A00A", "1801 AA"},       {"PLS2040", "2040 P-L"},
      {"T1S3138", "3138 T-1"},    {"T2S1010", "1010 T-2"},      {"T3S4101", "4101 T-3"},
      {"_QC0000", "2026 CA620"},  {"_QC000O", "2026 CZ620"},    {"_QC000P", "2026 CA621"},
      {"_QC0aEM", "2026 CZ6190"}, {"_SEZZZZ", "2028 EA339749"}, {"_TFzzzz", "2029 FL591673"}};
  for (const auto& [packed, whole] : cases) EXPECT_EQ(UnpackMinorPlanet(packed), whole) << packed;
  for (const char* packed : {"", "J95X00", "J95X00I", "J95I00A", "J95Z00A", "H95X00A", "M95X00A",
                             "J9xX00A", "J95X-0A", "J95X0AA", "PLS20x0", "_Q-0000", "_QC00-0"}) {
    EXPECT_EQ(UnpackMinorPlanet(packed), "") << packed;
  }
}

TEST(PackedDesignation, ProvisionalDesignationsOfComets) {
  const std::pair<const char*, const char*> cases[] = {
      {"J95A010", "1995 A1"},    {"J94P01b", "1994 P1-B"},  {"J94P010", "1994 P1"},
      {"K48X130", "2048 X13"},   {"K33L89c", "2033 L89-C"}, {"K88AA30", "2088 A103"},
      {"K14UR1N", "2014 UN271"}, {"F77V010", "1577 V1"}};
  for (const auto& [packed, whole] : cases) EXPECT_EQ(UnpackComet(packed), whole) << packed;
  for (const char* packed : {"", "J95A000", "J95A01_", "J95I010", "M95A010", "    t"}) {
    EXPECT_EQ(UnpackComet(packed), "") << packed;
  }
}

TEST(PackedDesignation, Dates) {
  const auto date = UnpackDate("K25BL");
  ASSERT_TRUE(date);
  EXPECT_EQ(date->year, 2025);
  EXPECT_EQ(date->month, 11);
  EXPECT_EQ(date->day, 21);
  EXPECT_EQ(UnpackDate("J96CV")->day, 31);
  for (const char* packed : {"", "K25B", "K250L", "K25DL", "K25BW", "K25B0", "H251L", "K2x1L"}) {
    EXPECT_FALSE(UnpackDate(packed)) << packed;
  }
}

}  // namespace
}  // namespace vyn::eld
