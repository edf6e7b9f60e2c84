// One element record as numbers to compute with, and what is wrong with it.
#pragma once

#include <limits>
#include <string_view>
#include <vector>

#include <QString>

#include "engine/element_table.h"

namespace vyn {

/// What makes bytes at a record's place no record: a length that is not a record's, no CR LF at the
/// end, an unknown kind. A null text for a record.
QString RecordDefect(std::string_view bytes);

struct RecordReading {
  SmallBody body;
  /// Fields that cannot be read, that are missing though an orbit needs them, that are out of their
  /// range, or that are text in another code page.
  std::vector<QString> problems;
};

/// Reads a record's numbers and checks its texts. Numbers that are missing or cannot be read stay
/// as SmallBody has them.
RecordReading ReadRecord(std::string_view record);

/// The dates between which a record's elements are meant to be used; a missing one is infinite.
struct Validity {
  double fromJd = -std::numeric_limits<double>::infinity();
  double toJd = std::numeric_limits<double>::infinity();

  /// Days from the date to the range; 0 within it.
  double DistanceTo(double jd) const;
};
Validity ReadValidity(std::string_view record);

}  // namespace vyn
