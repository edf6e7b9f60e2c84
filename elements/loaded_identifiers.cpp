#include "elements/loaded_identifiers.h"

#include "elements/code_page_932.h"
#include "elements/element_record.h"
#include "elements/identifier_key.h"

namespace vyn {
namespace {

char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c; }

bool IsPlain(char c) { return static_cast<unsigned char>(c) < 0x80; }

/// False when the columns begin otherwise than `wanted` (in lower case), as nearly all of more than
/// a million do, so that their keys need not be made. Beyond ASCII the keys must tell.
bool MayBeginWith(std::string_view columns, const QByteArray& wanted) {
  std::size_t at = 0;
  while (at < columns.size() && columns[at] == ' ') ++at;
  for (const char c : wanted) {
    if (at == columns.size()) return false;
    if (!IsPlain(c) || !IsPlain(columns[at])) return true;
    if (LowerAscii(columns[at++]) != c) return false;
  }
  return true;
}

}  // namespace

bool IsIdentifierLoaded(const ElementDataPointers& loaded, QStringView identifier, int except) {
  const IdentifierKey wanted = IdentifierKey::OfText(identifier);
  const int width = FieldOf(ElementField::Identifier).width;
  const QByteArray start = EncodeCodePage932(identifier.trimmed(), width).toLower();
  for (std::int64_t object = 0; object < loaded.objectCount; ++object) {
    const std::int64_t record = loaded.firstRecords[object];
    if (object == except || record >= loaded.recordCount) continue;
    const std::string_view columns =
        FieldBytes({loaded.records + record * kElementRecordSize, kElementRecordSize},
                   ElementField::Identifier);
    if (MayBeginWith(columns, start) && IdentifierKey::OfColumns(columns) == wanted) return true;
  }
  return false;
}

}  // namespace vyn
