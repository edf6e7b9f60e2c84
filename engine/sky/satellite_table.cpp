#include "engine/sky/satellite_table.h"

#include "engine/sky/satellite_table_rows.h"

namespace vyn {
namespace {

using namespace satellite_rows;

struct Family {
  std::span<const Satellite> satellites;
  int numbered = 0;
};

Family FamilyOf(Primary primary) {
  switch (primary) {
    case Primary::Earth:
      return {kEarth, 1};
    case Primary::Mars:
      return {kMars, 2};
    case Primary::Jupiter:
      return {kJupiter, 72};
    case Primary::Saturn:
      return {kSaturn, 66};
    case Primary::Uranus:
      return {kUranus, 27};
    case Primary::Neptune:
      return {kNeptune, 14};
    case Primary::Pluto:
      return {kPluto, 5};
    case Primary::Eris:
      return {kEris, 1};
    case Primary::Makemake:
      return {kMakemake, 0};
    case Primary::Haumea:
      return {kHaumea, 2};
    default:
      return {};
  }
}

std::string RomanNumeral(int number) {
  constexpr std::pair<int, std::string_view> kDigits[] = {{100, "C"}, {90, "XC"}, {50, "L"},
                                                          {40, "XL"}, {10, "X"},  {9, "IX"},
                                                          {5, "V"},   {4, "IV"},  {1, "I"}};
  std::string numeral;
  for (const auto& [value, digit] : kDigits) {
    for (; number >= value; number -= value) numeral += digit;
  }
  return numeral;
}

}  // namespace

std::span<const Satellite> SatellitesOf(Primary primary) { return FamilyOf(primary).satellites; }

std::string SatelliteNumeral(Primary primary, int number) {
  return number >= 1 && number <= FamilyOf(primary).numbered ? RomanNumeral(number) : std::string();
}

}  // namespace vyn
