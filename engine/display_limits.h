// Which objects of an element class are shown though their own switch is off: those within the
// limits of magnitude, orbital type and spectral type that are in force.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "engine/sky/kepler.h"

namespace vyn {

class ElementTable;

/// Whence and when magnitudes are reckoned.
struct LimitMoment {
  double jdTt = 0.0;
  int body = 0;  ///< the observer stands at the centre of this body, numbered as in Body
  bool operator==(const LimitMoment&) const = default;
};

struct DisplayLimits {
  std::optional<double> faintest;   ///< magnitude; nothing while the limit is off
  std::uint32_t orbitalTypes = 0;   ///< bit n: type n is ticked
  std::uint32_t spectralTypes = 0;  ///< bit n: the letter 'A' + n is ticked
  LimitMoment moment;

  bool AreInForce() const { return faintest || orbitalTypes != 0 || spectralTypes != 0; }
};

/// The objects that are at least so bright, kept until the moment, the limit or the table changes.
class BrightObjects {
 public:
  /// One bit an object. Large tables are shared between threads.
  const std::vector<std::uint64_t>& Bits(const ElementTable& table, const DisplayLimits& limits);
  void TableChanged() { bits_.clear(); }

 private:
  std::vector<std::uint64_t> bits_;
  double faintest_ = 0.0;
  LimitMoment moment_;
};

/// Whether one object is as bright as the limit in force asks; false while none is.
bool IsWithinMagnitude(const ElementTable& table, int object, const DisplayLimits& limits);

}  // namespace vyn
