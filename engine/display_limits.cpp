#include "engine/display_limits.h"

#include <algorithm>
#include <thread>

#include "engine/element_table.h"
#include "engine/sky/bodies.h"
#include "engine/sky/sky_snapshot.h"

namespace vyn {
namespace {

constexpr int kWordBits = 64;

bool IsBright(const ElementTable& table, int object, const DisplayLimits& limits,
              const StateVector& observer) {
  // Without absolute magnitude it is NaN, which is not bright.
  return SmallBodyMagnitude(table, object, limits.moment.jdTt, observer) <= *limits.faintest;
}

StateVector ObserverOf(const LimitMoment& moment) {
  return HeliocentricState(static_cast<Body>(moment.body), moment.jdTt);
}

void MarkWords(const ElementTable& table, const DisplayLimits& limits, const StateVector& observer,
               std::size_t from, std::size_t to, std::vector<std::uint64_t>* bits) {
  for (std::size_t word = from; word < to; ++word) {
    std::uint64_t marked = 0;
    const int first = static_cast<int>(word) * kWordBits;
    const int end = std::min(first + kWordBits, table.Count());
    for (int object = first; object < end; ++object) {
      if (IsBright(table, object, limits, observer)) {
        marked |= std::uint64_t{1} << (object - first);
      }
    }
    (*bits)[word] = marked;
  }
}

}  // namespace

const std::vector<std::uint64_t>& BrightObjects::Bits(const ElementTable& table,
                                                      const DisplayLimits& limits) {
  if (!bits_.empty() && faintest_ == *limits.faintest && moment_ == limits.moment) return bits_;
  faintest_ = *limits.faintest;
  moment_ = limits.moment;
  const StateVector observer = ObserverOf(moment_);
  bits_.assign((table.Count() + kWordBits - 1) / kWordBits, 0);
  constexpr std::size_t kWorthAThread = 300;
  const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
  const std::size_t parts = std::clamp(bits_.size() / kWorthAThread, std::size_t{1}, cores);
  std::vector<std::jthread> threads;
  for (std::size_t part = 1; part < parts; ++part) {
    threads.emplace_back([&, part] {
      MarkWords(table, limits, observer, bits_.size() * part / parts,
                bits_.size() * (part + 1) / parts, &bits_);
    });
  }
  MarkWords(table, limits, observer, 0, bits_.size() / parts, &bits_);
  threads.clear();
  return bits_;
}

bool IsWithinMagnitude(const ElementTable& table, int object, const DisplayLimits& limits) {
  return limits.faintest && IsBright(table, object, limits, ObserverOf(limits.moment));
}

}  // namespace vyn
