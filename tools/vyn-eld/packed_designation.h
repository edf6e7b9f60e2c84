// The packed designations of the Minor Planet Center.
// Source: Minor Planet Center, "Packed Provisional and Permanent Designations".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vyn::eld {

/// A permanent number of a minor planet, five characters: "00001", "A0345" (100345), "~0000"
/// (620000). Nothing when it is none.
std::optional<int> UnpackNumber(std::string_view packed);

/// A provisional designation of a minor planet, seven characters: "K07Tf8A" (2007 TA418),
/// "PLS2040" (2040 P-L), "_QC0aEM" (2026 CZ6190). Empty when it is none.
std::string UnpackMinorPlanet(std::string_view packed);

/// A provisional designation of a comet without its type letter, seven characters: "J95O010"
/// (1995 O1), "K13R03a" (2013 R3-A), "K14UR1N" (2014 UN271). Empty when it is none.
std::string UnpackComet(std::string_view packed);

/// A date in five characters.
struct PackedDate {
  int year;
  int month;
  int day;
};
/// "K25BL" is 2025-11-21. Nothing when it is none.
std::optional<PackedDate> UnpackDate(std::string_view packed);

}  // namespace vyn::eld
