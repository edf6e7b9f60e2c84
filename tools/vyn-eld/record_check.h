// Looks for what is wrong with the records of an element file.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include <QString>

#include "siblings/files/disk_file.h"

namespace vyn::eld {

/// Something wrong with a record; nothing else is wrong where none is reported.
struct RecordProblem {
  std::int64_t record = 0;    ///< number of the line, from 0
  std::int64_t position = 0;  ///< where it begins, in bytes
  QString reason;
};

struct CheckResult {
  std::int64_t records = 0;
  std::int64_t objects = 0;
  std::int64_t shortLines = 0;  ///< lines that end early, as only sources of imports may
};

/// Reports every problem of a file in its order. Progress is told in bytes. Nothing when the file
/// cannot be read.
std::optional<CheckResult> CheckRecords(const DiskFile& file,
                                        const std::function<void(const RecordProblem&)>& report,
                                        const std::function<void(std::int64_t)>& progress);

/// What is wrong with one whole record, joined with "; "; empty when nothing is.
QString DefectsOf(std::string_view record);

}  // namespace vyn::eld
