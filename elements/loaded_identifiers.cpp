#include "elements/loaded_identifiers.h"

#include "elements/element_record.h"
#include "elements/identifier_key.h"

namespace vyn {

bool IsIdentifierLoaded(const ElementDataPointers& loaded, QStringView identifier, int except) {
  const IdentifierKey wanted = IdentifierKey::OfText(identifier);
  for (std::int64_t object = 0; object < loaded.objectCount; ++object) {
    const std::int64_t record = loaded.firstRecords[object];
    if (object == except || record >= loaded.recordCount) continue;
    const std::string_view bytes(loaded.records + record * kElementRecordSize, kElementRecordSize);
    if (IdentifierKey::OfColumns(FieldBytes(bytes, ElementField::Identifier)) == wanted)
      return true;
  }
  return false;
}

}  // namespace vyn
