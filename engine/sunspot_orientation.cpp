#include "engine/sunspot_orientation.h"

#include <cmath>

#include "engine/data_sets.h"
#include "engine/sky/disk_orientation.h"
#include "engine/sky/time_scales.h"
#include "engine/value_text.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// Beyond some ten thousand years nobody's theory of the Earth's motion holds.
constexpr double kJ2000 = 2451545.0;
constexpr double kMostDaysAway = 4e6;

/// As seen from the Earth's centre.
DiskOrientation SunDiskAt(double jdUt) {
  const double jdTt = TtFromUt(jdUt);
  const StateVector earth = HeliocentricState(Body::Earth, jdTt);
  const Vector3 sun = ApparentPlace(-earth.position, -earth.velocity);
  const double lightDays = Length(sun) / kLightAuPerDay;
  return OrientationOf(Body::Sun, jdTt - lightDays, sun, {0.0, 0.0, 1.0});
}

}  // namespace

QString ReadSunspotOrientation(const PropertyTree& tree, QStringView path) {
  const QStringView set = ParentPath(path);
  const bool isCm = SameWord(LastWord(path), u"CM");
  if (!isCm && !SameWord(LastWord(path), u"De")) return {};
  if (!SameWord(ParentPath(set), u"Solar.Sun.Sunspot")) return {};
  const auto jd = ReadNumber(ValueAt(tree, set + u".JD"_s));
  if (!jd || !(std::abs(*jd - kJ2000) <= kMostDaysAway)) return {};
  const DiskOrientation disk = SunDiskAt(*jd);
  return QString::number(isCm ? disk.centralLongitudeDeg : disk.centralLatitudeDeg, 'f', 4);
}

}  // namespace vyn
