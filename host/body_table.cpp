#include "host/body_table.h"

namespace vyn {

std::optional<SkyBody> BodyOfPath(QStringView path) {
  if (path.compare(u"Solar.Planet.Earth.Satellite.Moon", Qt::CaseInsensitive) == 0) {
    return SkyBody::Moon;
  }
  for (const BodyRow& row : kBodies) {
    if (path.compare(row.path, Qt::CaseInsensitive) == 0) return row.body;
  }
  return std::nullopt;
}

}  // namespace vyn
