// What stands in the element editor's edits while a person types: texts, not yet numbers.
#pragma once

#include <array>

#include <QString>

#include "elements/element_record.h"

namespace vyn {

/// The texts of one page. An orbit is given by its size (q or a) and its timing (T, or epoch and
/// mean anomaly); the modes tell which of the two a person gives and which is derived.
struct ElementInput {
  bool isComet = true;
  bool distanceMode = true;  ///< q is given, otherwise a
  bool timeMode = true;      ///< T is given, otherwise epoch and M

  QString semiMajorAxis;  ///< a in au; not stored in the record
  QString meanAnomaly;    ///< M in degrees; not stored in the record

  QString& operator[](ElementField field) { return texts[static_cast<std::size_t>(field)]; }
  const QString& operator[](ElementField field) const {
    return texts[static_cast<std::size_t>(field)];
  }

  std::array<QString, kRecordFields.size()> texts;
};

}  // namespace vyn
