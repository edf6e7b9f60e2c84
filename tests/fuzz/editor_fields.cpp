// Any texts in the fields of the editor, over any old record: a number that is typed is read back,
// and nothing beside the field changes.
#include <QString>

#include "elements/code_page_932.h"
#include "elements/element_page.h"
#include "elements/element_writer.h"
#include "tests/fuzz/fuzz_input.h"

using namespace vyn;

namespace {

std::string_view ViewOf(const QByteArray& record) {
  return {record.data(), static_cast<std::size_t>(record.size())};
}

void MustChangeOnly(const RecordField& field, const QByteArray& before, const QByteArray& after) {
  VYN_MUST(after.size() == before.size());
  VYN_MUST(after.first(field.offset) == before.first(field.offset));
  VYN_MUST(after.sliced(field.offset + field.width) == before.sliced(field.offset + field.width));
}

/// Whether the text's digits stand in the field as they are. Months and days, which are padded with
/// zeros, are never negative.
bool Fits(const RecordField& field, const QString& text) {
  if (field.zeroPadded && text.startsWith(QLatin1Char('-'))) return false;
  const qsizetype point = text.indexOf(QLatin1Char('.'));
  const qsizetype integers = point < 0 ? text.size() : point;
  return integers <= field.integerWidth && text.size() - integers <= field.decimals + 1 &&
         text.size() <= field.width;
}

void TypeNumber(const RecordField& field, const QString& typed, QByteArray record) {
  const FieldNumber meant = ReadTypedNumber(typed, field.field);
  if (meant.state != NumberState::Number) return;
  const QByteArray before = record;
  WriteNumber(record, field.field, typed);
  MustChangeOnly(field, before, record);
  const FieldNumber read = ReadNumber(ViewOf(record), field.field);
  if (Fits(field, typed.trimmed())) VYN_MUST(read.value == meant.value);
}

void TypeText(const RecordField& field, const QString& typed, QByteArray record) {
  const QByteArray before = record;
  WriteText(record, field.field, typed);
  MustChangeOnly(field, before, record);
  VYN_MUST(DecodeCodePage932(FieldBytes(ViewOf(record), field.field)).valid);
}

void TypePage(fuzz::Input& input, QByteArray record) {
  ElementInput page = ReadPage(record, input.Byte() % 2 == 0);
  page.distanceMode = input.Byte() % 2 == 0;
  page.timeMode = input.Byte() % 2 == 0;
  for (const ElementField field : kEditableFields) {
    const std::string_view text = input.UpTo('\n');
    if (!text.empty()) page[field] = QString::fromUtf8(text.data(), text.size());
  }
  page.semiMajorAxis = QString::fromUtf8(input.UpTo('\n'));
  page.meanAnomaly = QString::fromUtf8(input.UpTo('\n'));
  const bool isTaken = input.Byte() % 8 == 0;
  QByteArray stored = record;
  const auto problem = StorePage(page, stored, [isTaken](const QString&) { return isTaken; });
  VYN_MUST(stored.size() == record.size() && stored.endsWith("\r\n"));
  if (problem) VYN_MUST(!problem->message.isEmpty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  QByteArray record = BlankRecord(input.Byte() % 2 == 0 ? 'C' : 'M');
  const RecordField& field = FieldOf(kEditableFields[input.Byte() % kEditableFields.size()]);
  const std::string_view old = input.UpTo('\n');
  record.replace(field.offset, std::min<qsizetype>(field.width, old.size()),
                 QByteArray(old.data(), std::min<qsizetype>(field.width, old.size())));
  const std::string_view text = input.UpTo('\n');
  const QString typed = QString::fromUtf8(text.data(), text.size());
  if (field.IsNumber()) TypeNumber(field, typed, record);
  if (!field.IsNumber()) TypeText(field, typed, record);
  TypePage(input, record);
  return 0;
}
