#include "tools/vyn-eld/record_text.h"

#include "elements/code_page_932.h"

namespace vyn::eld {

QString NameOf(const RecordField& field) {
  return QString::fromLatin1(field.name.data(), static_cast<qsizetype>(field.name.size()));
}

QString TextOf(std::string_view record, const RecordField& field) {
  const std::string_view bytes = FieldBytes(record, field.field);
  return DecodeCodePage932(bytes.substr(0, bytes.find('\0'))).text.trimmed();
}

bool IsShown(const RecordField& field) { return field.field != ElementField::LineEnd; }

QJsonObject JsonOf(std::string_view record) {
  QJsonObject object;
  for (const RecordField& field : kRecordFields) {
    const QString text = IsShown(field) ? TextOf(record, field) : QString();
    if (!text.isEmpty()) object.insert(NameOf(field), text);
  }
  return object;
}

std::string_view ViewOf(const QByteArray& record) {
  return {record.data(), static_cast<std::size_t>(record.size())};
}

}  // namespace vyn::eld
