// Walks over the lines of an element file.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

#include "siblings/files/disk_file.h"

namespace vyn {

/// A longer line counts as several: readers of this format have always taken lines into a buffer of
/// 2,048 bytes with a closing NUL.
inline constexpr std::int64_t kLongestLine = 2047;

inline constexpr std::int64_t kScanBufferSize = 1 << 18;

/// The length of the line that begins `bytes`, with its end; as much as there is when it goes on.
inline std::int64_t LineLength(std::string_view bytes) {
  const std::size_t searched = std::min<std::size_t>(bytes.size(), kLongestLine);
  const void* end = std::memchr(bytes.data(), '\n', searched);
  return end == nullptr ? searched : static_cast<const char*>(end) - bytes.data() + 1;
}

/// Calls `action(position, line)` for each line from a position on, until the file ends or `action`
/// returns false. The line has its end with it. False when the file cannot be read.
template <class Action>
bool ForEachLine(const DiskFile& file, std::int64_t from, Action action,
                 std::int64_t bufferSize = kScanBufferSize) {
  const auto buffer = std::make_unique_for_overwrite<char[]>(bufferSize);
  std::int64_t kept = 0;  // bytes of a line whose end was not yet read
  for (;;) {
    const std::int64_t count = file.ReadAt(from + kept, buffer.get() + kept, bufferSize - kept);
    if (count < 0) return false;
    const bool isEnd = count < bufferSize - kept;
    std::string_view left(buffer.get(), kept + count);
    while (!left.empty()) {
      const std::int64_t length = LineLength(left);
      const bool isWhole = left[length - 1] == '\n' || length == kLongestLine || isEnd;
      if (!isWhole) break;
      if (!action(from, left.substr(0, length))) return true;
      from += length;
      left.remove_prefix(length);
    }
    if (isEnd) return true;
    kept = static_cast<std::int64_t>(left.size());
    std::memmove(buffer.get(), left.data(), left.size());
  }
}

}  // namespace vyn
