#include "tools/vyn-eld/packed_designation.h"

#include <algorithm>

namespace vyn::eld {
namespace {

/// The letters of half-months, and of objects within one: I looks too much like a 1.
constexpr std::string_view kLetters = "ABCDEFGHJKLMNOPQRSTUVWXYZ";

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsLower(char c) { return c >= 'a' && c <= 'z'; }
constexpr bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool IsObjectLetter(char c) { return IsUpper(c) && c != 'I'; }
/// A year has 24 half-months.
constexpr bool IsHalfMonth(char c) { return IsObjectLetter(c) && c != 'Z'; }

bool AreDigits(std::string_view text) { return std::all_of(text.begin(), text.end(), IsDigit); }

int NumberOf(std::string_view digits) {
  int number = 0;
  for (const char c : digits) number = number * 10 + (c - '0');
  return number;
}

/// 0 to 61 for 0-9, A-Z, a-z; -1 for any other.
constexpr int Base62Digit(char c) {
  if (IsDigit(c)) return c - '0';
  if (IsUpper(c)) return c - 'A' + 10;
  return IsLower(c) ? c - 'a' + 36 : -1;
}

std::optional<int> Base62Number(std::string_view text) {
  int number = 0;
  for (const char c : text) {
    if (Base62Digit(c) < 0) return std::nullopt;
    number = number * 62 + Base62Digit(c);
  }
  return number;
}

/// "K25" is 2025: a letter for the century, A being 1000.
std::optional<int> UnpackYear(std::string_view packed) {
  if (packed[0] < 'A' || packed[0] > 'L' || !AreDigits(packed.substr(1, 2))) return std::nullopt;
  return 1000 + (packed[0] - 'A') * 100 + NumberOf(packed.substr(1, 2));
}

/// Minor planets have been found since 1801.
bool IsSinceFirst(const std::optional<int>& year) { return year && *year >= 1800; }

/// How often the letters were gone through: "00" to "99", then "A0" (100) to "z9" (619).
std::optional<int> UnpackCycle(std::string_view packed) {
  if (Base62Digit(packed[0]) < 0 || !IsDigit(packed[1])) return std::nullopt;
  return Base62Digit(packed[0]) * 10 + (packed[1] - '0');
}

std::string Designation(int year, char halfMonth, std::string_view letter, int cycle) {
  return std::to_string(year) + ' ' + halfMonth + std::string(letter) +
         (cycle > 0 ? std::to_string(cycle) : "");
}

/// The surveys of 1960 to 1977: number and survey.
std::string UnpackSurvey(std::string_view packed) {
  const bool isSurvey = packed.starts_with("PLS") || packed.starts_with("T1S") ||
                        packed.starts_with("T2S") || packed.starts_with("T3S");
  if (!isSurvey || !AreDigits(packed.substr(3))) return {};
  return std::to_string(NumberOf(packed.substr(3))) + ' ' + packed[0] + '-' + packed[1];
}

/// More than 15,500 objects in a half-month: "_", a year's letter or digit, the half-month, and the
/// object's number beyond them to base 62.
std::string UnpackCrowded(std::string_view packed) {
  constexpr int kUncrowded = 15'500;
  const int year = Base62Digit(packed[1]);
  const std::optional<int> beyond = Base62Number(packed.substr(3));
  if (year < 0 || !IsHalfMonth(packed[2]) || !beyond) return {};
  const int number = *beyond + kUncrowded;
  const int letterCount = static_cast<int>(kLetters.size());
  return Designation(2000 + year, packed[2], kLetters.substr(number % letterCount, 1),
                     number / letterCount);
}

}  // namespace

std::optional<int> UnpackNumber(std::string_view packed) {
  if (packed.size() != 5) return std::nullopt;
  if (packed[0] == '~') {
    const auto beyond = Base62Number(packed.substr(1));
    return beyond ? std::optional(*beyond + 620'000) : std::nullopt;
  }
  if (Base62Digit(packed[0]) < 0 || !AreDigits(packed.substr(1))) return std::nullopt;
  return Base62Digit(packed[0]) * 10'000 + NumberOf(packed.substr(1));
}

std::string UnpackMinorPlanet(std::string_view packed) {
  if (packed.size() != 7) return {};
  if (packed[0] == '_') return UnpackCrowded(packed);
  if (packed[2] == 'S') return UnpackSurvey(packed);
  const auto year = UnpackYear(packed);
  const auto cycle = UnpackCycle(packed.substr(4, 2));
  const bool areLetters = IsHalfMonth(packed[3]) && IsObjectLetter(packed[6]);
  if (!IsSinceFirst(year) || !cycle || !areLetters) return {};
  return Designation(*year, packed[3], packed.substr(6, 1), *cycle);
}

std::string UnpackComet(std::string_view packed) {
  if (packed.size() != 7) return {};
  // A comet that was taken for a minor planet first keeps that designation.
  if (IsUpper(packed[6])) return UnpackMinorPlanet(packed);
  const auto year = UnpackYear(packed);
  const auto number = UnpackCycle(packed.substr(4, 2));
  const bool isFragment = IsLower(packed[6]);
  if (!year || !number || *number == 0 || !IsHalfMonth(packed[3])) return {};
  if (!isFragment && packed[6] != '0') return {};
  const std::string whole = Designation(*year, packed[3], "", *number);
  return isFragment ? whole + '-' + static_cast<char>(packed[6] - 'a' + 'A') : whole;
}

std::optional<PackedDate> UnpackDate(std::string_view packed) {
  if (packed.size() != 5) return std::nullopt;
  const auto year = UnpackYear(packed);
  const int month = Base62Digit(packed[3]);
  const int day = Base62Digit(packed[4]);
  if (!IsSinceFirst(year) || month < 1 || month > 12 || day < 1 || day > 31) return std::nullopt;
  return PackedDate{*year, month, day};
}

}  // namespace vyn::eld
