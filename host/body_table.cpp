#include "host/body_table.h"

namespace vyn {

std::optional<Body> BodyOfPath(QStringView path) {
  if (path.compare(u"Solar.Planet.Earth.Satellite.Moon", Qt::CaseInsensitive) == 0) {
    return Body::Moon;
  }
  for (const BodyRow& row : kBodies) {
    if (path.compare(row.path, Qt::CaseInsensitive) == 0) return row.body;
  }
  return std::nullopt;
}

}  // namespace vyn
