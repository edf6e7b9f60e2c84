#include "tools/vyn-eld/mpc_line.h"

#include <algorithm>

namespace vyn::eld {

bool LooksLikeElements(std::string_view line) {
  // Elements alone take more digits than any heading has.
  constexpr int kLeastDigits = 20;
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  return std::count_if(line.begin(), line.end(), isDigit) >= kLeastDigits;
}

bool IsSeparator(std::string_view line) {
  return line.find_first_not_of(' ') == line.npos || line.find_first_not_of('-') == line.npos;
}

}  // namespace vyn::eld
