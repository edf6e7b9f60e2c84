// Which objects of an element class are shown though their own switch is off: those within the
// limits of magnitude, orbital type and spectral type that are in force.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

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

  bool operator==(const DisplayLimits&) const = default;
  bool AreInForce() const { return faintest || orbitalTypes != 0 || spectralTypes != 0; }
};

/// The magnitudes for the limits, kept until the moment or the table changes: 4 bytes an object.
class LimitMagnitudes {
 public:
  /// Of every object; NaN for one without absolute magnitude, which no limit lets in.
  const std::vector<float>& At(const ElementTable& table, const LimitMoment& moment);
  void TableChanged() { magnitudes_.clear(); }

 private:
  std::vector<float> magnitudes_;
  LimitMoment moment_;
};

}  // namespace vyn
