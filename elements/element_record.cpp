#include "elements/element_record.h"

#include <algorithm>
#include <cstdint>

#include "elements/code_page_932.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string_view TrimmedEnd(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  return TrimmedEnd(text);
}

std::string_view CutAtNul(std::string_view text) { return text.substr(0, text.find('\0')); }

/// More than any number field holds.
constexpr std::size_t kMostCharacters = 11;

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Takes at most kMostCharacters.
/// Digits over a power of ten, both exact, divide to the nearest double: no general conversion,
/// which would take most of the time of loading a file, is needed.
FieldNumber ParseNumber(std::string_view text, bool takesPoint) {
  constexpr std::array kPowersOfTen = {1e0, 1e1, 1e2, 1e3, 1e4,  1e5,
                                       1e6, 1e7, 1e8, 1e9, 1e10, 1e11};
  text = Trimmed(text);
  if (text.empty()) return {};
  const bool negative = text.front() == '-';
  std::size_t i = negative || text.front() == '+' ? 1 : 0;
  std::int64_t digits = 0;
  const std::size_t firstDigit = i;
  for (; i < text.size() && IsDigit(text[i]); ++i) digits = digits * 10 + (text[i] - '0');
  std::size_t digitCount = i - firstDigit;
  std::size_t decimals = 0;
  if (takesPoint && i < text.size() && text[i] == '.') {
    for (++i; i < text.size() && IsDigit(text[i]); ++i, ++decimals) {
      digits = digits * 10 + (text[i] - '0');
    }
    digitCount += decimals;
  }
  if (i < text.size() || digitCount == 0) return {NumberState::NotANumber};
  const double value = static_cast<double>(digits) / kPowersOfTen[decimals];
  return {NumberState::Number, negative ? -value : value};
}

bool EndsLineAt(std::string_view bytes, int position) {
  return bytes.substr(position, kLineEnd.size()) == kLineEnd;
}

/// Copies the content before `end`, fills up with blanks and closes with CR LF.
PaddedRecord Padded(std::string_view bytes, int contentEnd, int consumed) {
  PaddedRecord record;
  record.consumed = consumed;
  record.bytes.fill(' ');
  std::copy_n(bytes.begin(), contentEnd, record.bytes.begin());
  std::copy(kLineEnd.begin(), kLineEnd.end(), record.bytes.end() - kLineEnd.size());
  return record;
}

PaddedRecord Failed(int step) {
  PaddedRecord record;
  record.failedStep = step;
  return record;
}

}  // namespace

std::string_view FieldBytes(std::string_view record, ElementField field) {
  const RecordField& place = FieldOf(field);
  if (record.size() <= static_cast<std::size_t>(place.offset)) return {};
  return record.substr(place.offset, place.width);
}

QString FieldText(std::string_view record, ElementField field) {
  return DecodeCodePage932(TrimmedEnd(CutAtNul(FieldBytes(record, field)))).text;
}

QString IdentifierOf(std::string_view record) {
  const std::string_view bytes = CutAtNul(FieldBytes(record, ElementField::Identifier));
  return DecodeCodePage932(Trimmed(bytes)).text;
}

FieldNumber ReadNumber(std::string_view record, ElementField field) {
  return ParseNumber(FieldBytes(record, field), FieldOf(field).decimals > 0);
}

FieldNumber ReadTypedNumber(QStringView text, ElementField field) {
  const QByteArray bytes = text.toLatin1();
  const std::string_view typed(bytes.data(), bytes.size());
  // The record's own numbers may have a plus sign, which takes a column from the digits.
  const bool writable =
      !Trimmed(typed).starts_with('+') && Trimmed(typed).size() <= kMostCharacters;
  if (!writable) return {NumberState::NotANumber};
  return ParseNumber(typed, FieldOf(field).decimals > 0);
}

FieldNumber ReadDate(std::string_view record, const DateFields& fields) {
  const FieldNumber year = ReadNumber(record, fields.year);
  const FieldNumber month = ReadNumber(record, fields.month);
  const FieldNumber day = ReadNumber(record, fields.day);
  const auto allAre = [&](NumberState state) {
    return year.state == state && month.state == state && day.state == state;
  };
  if (allAre(NumberState::Blank)) return {};
  const bool readable = allAre(NumberState::Number) &&
                        IsInRange(FieldOf(fields.month), month.value) &&
                        IsInRange(FieldOf(fields.day), day.value);
  if (!readable) return {NumberState::NotANumber};
  return {NumberState::Number,
          CalcJd(static_cast<int>(year.value), static_cast<int>(month.value), day.value)};
}

PaddedRecord ReadPaddedRecord(std::string_view bytes) {
  struct LineLength {
    int bytes;
    int contentEnd;
  };
  // The line of 189 bytes ends within the identifier's columns, so its content is what stands
  // before the CR LF; the same holds for the two others that end early.
  constexpr std::array<LineLength, 4> kLineLengths = {
      {{189, 187}, {205, 203}, {256, 254}, {kElementRecordSize, 415}}};
  for (std::size_t step = 0; step < kLineLengths.size(); ++step) {
    const auto [length, contentEnd] = kLineLengths[step];
    if (bytes.size() < static_cast<std::size_t>(length)) return Failed(static_cast<int>(step) + 1);
    if (EndsLineAt(bytes, contentEnd)) return Padded(bytes, contentEnd, length);
  }
  return Failed(5);
}

}  // namespace vyn
