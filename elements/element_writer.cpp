#include "elements/element_writer.h"

#include <algorithm>

#include "elements/code_page_932.h"

namespace vyn {
namespace {

/// The field's columns with the number written over `old`.
QByteArray AlignedNumber(const RecordField& field, QByteArray old, const QByteArray& text) {
  const qsizetype point = text.indexOf('.');
  const qsizetype integerLength = point < 0 ? text.size() : point;
  const qsizetype room = field.decimals > 0 ? field.integerWidth : field.width;
  const qsizetype pads = std::max<qsizetype>(0, room - integerLength);
  const QByteArray written = QByteArray(pads, field.zeroPadded ? '0' : ' ') + text;
  return old.replace(0, std::min<qsizetype>(written.size(), field.width),
                     written.left(field.width));
}

double ValueOf(const RecordField& field, const QByteArray& columns) {
  return ReadTypedNumber(QString::fromLatin1(columns), field.field).value;
}

/// With a point and zeros up to the field's last column.
QByteArray Completed(const RecordField& field, const QByteArray& text) {
  const QByteArray withPoint = text.contains('.') ? text : text + '.';
  return withPoint.leftJustified(std::max<qsizetype>(field.width, withPoint.size()), '0');
}

void Overwrite(QByteArray& record, const RecordField& field, const QByteArray& columns) {
  record.replace(field.offset, field.width, columns);
}

struct TemplateText {
  int offset;
  const char* comet;
  const char* minorPlanet;
};

// clang-format off
/// Offsets are columns, not fields: the magnitude's point stands one column further right than a
/// magnitude that is typed.
constexpr TemplateText kTemplate[] = {
  { 55, "0101.0", "0101.0"},
  { 67, "1.0",    " 0.0"},
  { 79, "1.0",    "1.0"},
  { 92, "0.0",    "0.0"},
  {103, "0.0",    "0.0"},
  {114, "0.0",    "0.0"},
  {123, "2000.0", "2000.0"},
  {130, "   6.0 ", "  16.0 "},
  {137, "10.0 ",  " 0.15"},
  {143, "0.01",   "    "},
  {148, "0.01",   "    "},
  {153, "1.0",    "   "},
};
// clang-format on

}  // namespace

void WriteNumber(QByteArray& record, ElementField number, QStringView typed) {
  const RecordField& field = FieldOf(number);
  const QByteArray text = typed.trimmed().toLatin1();
  if (text.isEmpty()) return;
  const QByteArray old = record.mid(field.offset, field.width);
  const QByteArray fresh = AlignedNumber(field, QByteArray(field.width, ' '), text);
  const QByteArray overOld = AlignedNumber(field, old, text);
  const bool isSameNumber =
      ReadTypedNumber(QString::fromLatin1(overOld), number).state == NumberState::Number &&
      ValueOf(field, overOld) == ValueOf(field, fresh);
  Overwrite(record, field,
            isSameNumber ? overOld : AlignedNumber(field, old, Completed(field, text)));
}

void WriteText(QByteArray& record, ElementField text, QStringView typed) {
  const RecordField& field = FieldOf(text);
  QByteArray bytes = EncodeCodePage932(typed, field.width);
  const auto isControl = [](char c) { return (c >= 0 && c < ' ') || c == 0x7F; };
  std::replace_if(bytes.begin(), bytes.end(), isControl, ' ');
  Overwrite(record, field, bytes.leftJustified(field.width, ' '));
}

void CopyField(QByteArray& to, const QByteArray& from, ElementField field) {
  const RecordField& place = FieldOf(field);
  Overwrite(to, place, from.mid(place.offset, place.width));
}

QByteArray BlankRecord(char kindLetter) {
  QByteArray record(kElementRecordSize, ' ');
  record[0] = kindLetter;
  Overwrite(record, FieldOf(ElementField::LineEnd), "\r\n");
  return record;
}

QByteArray TemplateRecord(char kindLetter, int year) {
  QByteArray record = BlankRecord(kindLetter);
  for (const TemplateText& row : kTemplate) {
    const QByteArray text = kindLetter == 'C' ? row.comet : row.minorPlanet;
    record.replace(row.offset, text.size(), text);
  }
  WriteNumber(record, ElementField::PerihelionYear, QString::number(year));
  return record;
}

}  // namespace vyn
