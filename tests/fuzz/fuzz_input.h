// Cuts the bytes that a fuzzer gives into values, and stops where something does not hold.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

/// Like assert, but in every build.
#define VYN_MUST(condition)                                                \
  do {                                                                     \
    if (!(condition)) {                                                    \
      std::fprintf(stderr, "%s:%d: %s\n", __FILE__, __LINE__, #condition); \
      std::abort();                                                        \
    }                                                                      \
  } while (false)

namespace vyn::fuzz {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size)
      : left_(reinterpret_cast<const char*>(data), size) {}

  bool IsEmpty() const { return left_.empty(); }
  /// 0 when nothing is left.
  std::uint8_t Byte() { return left_.empty() ? 0 : static_cast<std::uint8_t>(Bytes(1).front()); }
  std::string_view Bytes(std::size_t count) {
    const std::string_view taken = left_.substr(0, count);
    left_.remove_prefix(taken.size());
    return taken;
  }
  /// What stands before the next separator, which is dropped.
  std::string_view UpTo(char separator) {
    const std::string_view taken = left_.substr(0, left_.find(separator));
    left_.remove_prefix(std::min(left_.size(), taken.size() + 1));
    return taken;
  }
  std::string_view Rest() { return Bytes(left_.size()); }

 private:
  std::string_view left_;
};

}  // namespace vyn::fuzz
