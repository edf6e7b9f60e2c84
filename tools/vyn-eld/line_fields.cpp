#include "tools/vyn-eld/line_fields.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace vyn::eld {
namespace {

bool IsPlain(char c) { return c >= ' ' && c <= '~'; }

std::string NameOf(ElementField field) { return std::string(FieldOf(field).name); }

}  // namespace

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

std::string_view LineColumns::In(std::string_view line) const {
  if (line.size() < static_cast<std::size_t>(first)) return {};
  return Trimmed(line.substr(first - 1, last - first + 1));
}

RecordBuilder::RecordBuilder(std::string_view line, char kindLetter, RecordBytes& record)
    : line_(line), record_(record) {
  record_.fill(' ');
  record_.front() = kindLetter;
  std::memcpy(record_.data() + FieldOf(ElementField::LineEnd).offset, "\r\n", 2);
}

void RecordBuilder::Note(LineColumns columns, std::string reason) {
  if (!problem_) problem_ = LineProblem{columns.first, std::move(reason)};
}

double RecordBuilder::Read(ElementField field) const {
  return ReadNumber({record_.data(), record_.size()}, field).value;
}

void RecordBuilder::CheckRange(ElementField field, LineColumns columns) {
  const FieldNumber number = ReadNumber({record_.data(), record_.size()}, field);
  if (number.state != NumberState::Number) Note(columns, NameOf(field) + " is not a number");
  if (!IsInRange(FieldOf(field), number.value)) Note(columns, NameOf(field) + " is out of range");
}

void RecordBuilder::Number(ElementField number, LineColumns columns, bool mayBeBlank) {
  const RecordField& field = FieldOf(number);
  const std::string_view text = columns.In(line_);
  if (text.empty()) {
    if (!mayBeBlank) Note(columns, NameOf(number) + " is missing");
    return;
  }
  const std::size_t point = std::min(text.find('.'), text.size());
  const int integerWidth = static_cast<int>(point);
  if (integerWidth > field.width) return Note(columns, NameOf(number) + " is out of range");
  const int start = std::max(0, field.integerWidth - integerWidth);
  char* place = record_.data() + field.offset;
  if (field.zeroPadded) std::fill_n(place, start, '0');
  const int copied = std::min<int>(static_cast<int>(text.size()), field.width - start);
  std::memcpy(place + start, text.data(), copied);
  if (field.decimals > 0) {
    char* end = place + start + copied;
    char* const fieldEnd = place + field.width;
    if (point == text.size() && end < fieldEnd) *end++ = '.';
    std::fill(end, std::max(end, fieldEnd), '0');
  }
  CheckRange(number, columns);
}

void RecordBuilder::Digits(ElementField number, long long value, int width) {
  const RecordField& field = FieldOf(number);
  char* end = record_.data() + field.offset + width;
  char* const begin = end - width;
  const bool isNegative = value < 0;
  value = std::llabs(value);
  do {
    *--end = static_cast<char>('0' + value % 10);
    value /= 10;
  } while (value > 0 && end > begin);
  if (isNegative && end > begin) *--end = '-';
  if (field.zeroPadded) std::fill(begin, end, '0');
}

void RecordBuilder::Value(ElementField number, double value, LineColumns columns) {
  const RecordField& field = FieldOf(number);
  if (!IsInRange(field, value)) return Note(columns, NameOf(number) + " is out of range");
  long long whole = 1;
  for (int i = 0; i < field.decimals; ++i) whole *= 10;
  const long long scaled = std::llround(value * static_cast<double>(whole));
  Digits(number, scaled / whole, field.integerWidth);
  char* place = record_.data() + field.offset + field.integerWidth;
  *place = '.';
  long long decimals = scaled % whole;
  for (int i = field.decimals; i > 0; --i, decimals /= 10) {
    place[i] = static_cast<char>('0' + decimals % 10);
  }
  CheckRange(number, columns);
}

void RecordBuilder::Text(ElementField text, std::string_view bytes) {
  const RecordField& field = FieldOf(text);
  bytes = bytes.substr(0, field.width);
  std::transform(bytes.begin(), bytes.end(), record_.data() + field.offset,
                 [](char c) { return IsPlain(c) ? c : '?'; });
}

void RecordBuilder::Date(const DateFields& fields, int year, int month, int day, int millionths,
                         LineColumns columns) {
  if (!IsInRange(FieldOf(fields.year), year)) {
    return Note(columns, NameOf(fields.year) + " is out of range");
  }
  Digits(fields.year, year, FieldOf(fields.year).width);
  Digits(fields.month, month, FieldOf(fields.month).width);
  const RecordField& dayField = FieldOf(fields.day);
  Digits(fields.day, day, dayField.integerWidth);
  char* place = record_.data() + dayField.offset + dayField.integerWidth;
  *place = '.';
  for (int i = dayField.decimals; i > 0; --i, millionths /= 10) {
    place[i] = static_cast<char>('0' + millionths % 10);
  }
}

}  // namespace vyn::eld
