// The views that the core engine gives of the element file it has loaded.
#pragma once

#include <cstdint>
#include <optional>

#include <QStringView>

namespace vyn {

/// Addresses in this process. They hold until the engine's file changes.
struct ElementDataPointers {
  std::int64_t recordCount = 0;                 ///< records of any kind
  const char* records = nullptr;                ///< the engine's array of elements
  std::int64_t objectCount = 0;                 ///< objects
  const std::uint32_t* firstRecords = nullptr;  ///< the number of each object's first record

  /// Whether there is an object with this number, from 0, and its records are among the engine's.
  bool Has(int object) const;
  /// The number of an object's first record, and of its records.
  std::int64_t FirstRecordOf(int object) const { return firstRecords[object]; }
  std::int64_t RecordCountOf(int object) const;
};

/// Reads the reply to "? Solar.%s.DataPtr": record count, address of the element array, object
/// count, address of the first-record table, separated by commas. Nothing when it is not of that
/// form: a count begins with a digit, an address has at least three characters.
std::optional<ElementDataPointers> ReadDataPointers(QStringView reply);

}  // namespace vyn
