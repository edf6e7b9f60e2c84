#include "engine/display_limits.h"

#include "engine/element_table.h"
#include "engine/sky/bodies.h"
#include "engine/sky/sky_snapshot.h"

namespace vyn {

const std::vector<float>& LimitMagnitudes::At(const ElementTable& table,
                                              const LimitMoment& moment) {
  if (!magnitudes_.empty() && moment_ == moment) return magnitudes_;
  moment_ = moment;
  const StateVector observer = HeliocentricState(static_cast<Body>(moment.body), moment.jdTt);
  magnitudes_ = SmallBodyMagnitudes(table, moment.jdTt, observer);
  return magnitudes_;
}

}  // namespace vyn
