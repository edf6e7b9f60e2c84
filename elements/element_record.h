// The record of an orbital element file: where each field stands, what it may hold, and how it is
// read. docs/element_file.md describes the file for its users.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include <QString>

namespace vyn {

/// The length of a record with the CR LF that ends it. Record n of a file begins at byte
/// n * kElementRecordSize.
inline constexpr int kElementRecordSize = 417;

enum class ElementField {
  Kind,
  ProvisionalDesignation,
  PermanentDesignation,
  EnglishName,
  PerihelionYear,
  PerihelionMonth,
  PerihelionDay,
  Eccentricity,
  PerihelionDistance,
  ArgumentOfPerihelion,
  AscendingNode,
  Inclination,
  Equinox,
  AbsoluteMagnitude,
  MagnitudeCoefficient,
  DustTail,
  IonTail,
  BetaMax,
  Identifier,
  EpochYear,
  EpochMonth,
  EpochDay,
  ValidFromYear,
  ValidFromMonth,
  ValidFromDay,
  ValidToYear,
  ValidToMonth,
  ValidToDay,
  JapaneseName,
  Memo,
  EditedMark,
  LineEnd,
};

/// Whether the bounds of a field belong to its range.
enum class RangeMode {
  BothIncluded,   ///< [lower, upper]
  LowerIncluded,  ///< [lower, upper)
  UpperIncluded,  ///< (lower, upper]
  NoneIncluded,   ///< (lower, upper)
};

/// One field: its place in the record and, for a number, how it is aligned and what it may be.
struct RecordField {
  ElementField field;
  std::string_view name;  ///< for messages about a file
  int offset;             ///< first column, from 0
  int width;              ///< columns
  int integerWidth = 0;   ///< columns for sign and integer digits; 0 for a text
  int decimals = 0;       ///< 0 for an integer or a text
  bool zeroPadded = false;
  int lowerBound = 0;
  int upperBound = 0;
  RangeMode range = RangeMode::LowerIncluded;

  constexpr bool IsNumber() const { return integerWidth > 0; }
  constexpr int End() const { return offset + width; }
};

// clang-format off
/// Every field in column order. A new field is a row here and a value of ElementField.
inline constexpr std::array kRecordFields = std::to_array<RecordField>({
  // field                                name                          offset width int dec zero    lower  upper
  {ElementField::Kind,                   "record kind",                     0,   1},
  {ElementField::ProvisionalDesignation, "provisional designation",         2,   6},
  {ElementField::PermanentDesignation,   "permanent designation",           9,  10},
  {ElementField::EnglishName,            "English name",                   20,  30},
  {ElementField::PerihelionYear,         "perihelion year",                51,   4,  4,  0, false,   -999, 10000},
  {ElementField::PerihelionMonth,        "perihelion month",               55,   2,  2,  0, true,       1,    13},
  {ElementField::PerihelionDay,          "perihelion day",                 57,   9,  2,  6, true,       1,    32},
  {ElementField::Eccentricity,           "eccentricity",                   67,  10,  1,  8, false,      0,    10},
  {ElementField::PerihelionDistance,     "perihelion distance",            78,  11,  2,  8, false,      0,   100, RangeMode::NoneIncluded},
  {ElementField::ArgumentOfPerihelion,   "argument of perihelion",         90,  10,  3,  6, false,      0,   360},
  {ElementField::AscendingNode,          "longitude of ascending node",   101,  10,  3,  6, false,      0,   360},
  {ElementField::Inclination,            "inclination",                   112,  10,  3,  6, false,      0,   180},
  {ElementField::Equinox,                "equinox",                       123,   6,  3,  1, false,   -999, 10000},
  {ElementField::AbsoluteMagnitude,      "absolute magnitude",            130,   6,  3,  2, false,    -99,   100},
  {ElementField::MagnitudeCoefficient,   "magnitude coefficient",         137,   5,  2,  2, false,     -9,   100},
  {ElementField::DustTail,               "dust tail length",              143,   4,  1,  2, false,      0,    10},
  {ElementField::IonTail,                "ion tail length",               148,   4,  1,  2, false,      0,    10},
  {ElementField::BetaMax,                "largest beta",                  153,   3,  1,  1, false,      0,    10, RangeMode::NoneIncluded},
  {ElementField::Identifier,             "identifier",                    188,  15},
  {ElementField::EpochYear,              "epoch year",                    204,   4,  4,  0, false,   -999, 10000},
  {ElementField::EpochMonth,             "epoch month",                   208,   2,  2,  0, true,       1,    13},
  {ElementField::EpochDay,               "epoch day",                     210,   9,  2,  6, true,       1,    32},
  {ElementField::ValidFromYear,          "validity start year",           220,   4,  4,  0, false,   -999, 10000},
  {ElementField::ValidFromMonth,         "validity start month",          224,   2,  2,  0, true,       1,    13},
  {ElementField::ValidFromDay,           "validity start day",            226,   9,  2,  6, true,       1,    32},
  {ElementField::ValidToYear,            "validity end year",             236,   4,  4,  0, false,   -999, 10000},
  {ElementField::ValidToMonth,           "validity end month",            240,   2,  2,  0, true,       1,    13},
  {ElementField::ValidToDay,             "validity end day",              242,   9,  2,  6, true,       1,    32},
  {ElementField::JapaneseName,           "Japanese name",                 252,  60},
  {ElementField::Memo,                   "memo",                          313, 100},
  {ElementField::EditedMark,             "edited mark",                   414,   1},
  {ElementField::LineEnd,                "line end",                      415,   2},
});
// clang-format on

/// The fields that a person edits, in the order in which the editor checks and stores them.
inline constexpr std::array kEditableFields = std::to_array<ElementField>({
    ElementField::ProvisionalDesignation,
    ElementField::PermanentDesignation,
    ElementField::EnglishName,
    ElementField::JapaneseName,
    ElementField::PerihelionYear,
    ElementField::PerihelionMonth,
    ElementField::PerihelionDay,
    ElementField::Eccentricity,
    ElementField::PerihelionDistance,
    ElementField::ArgumentOfPerihelion,
    ElementField::AscendingNode,
    ElementField::Inclination,
    ElementField::Equinox,
    ElementField::AbsoluteMagnitude,
    ElementField::MagnitudeCoefficient,
    ElementField::DustTail,
    ElementField::IonTail,
    ElementField::BetaMax,
    ElementField::Memo,
    ElementField::Identifier,
    ElementField::EpochYear,
    ElementField::EpochMonth,
    ElementField::EpochDay,
    ElementField::ValidFromYear,
    ElementField::ValidFromMonth,
    ElementField::ValidFromDay,
    ElementField::ValidToYear,
    ElementField::ValidToMonth,
    ElementField::ValidToDay,
});

constexpr const RecordField& FieldOf(ElementField field) {
  return kRecordFields[static_cast<std::size_t>(field)];
}

namespace record_check {

constexpr bool FieldsAscendWithoutOverlap() {
  for (std::size_t i = 1; i < kRecordFields.size(); ++i) {
    if (kRecordFields[i].offset < kRecordFields[i - 1].End()) return false;
  }
  return true;
}

constexpr bool RowsStandAtTheirNumber() {
  for (std::size_t i = 0; i < kRecordFields.size(); ++i) {
    if (static_cast<std::size_t>(kRecordFields[i].field) != i) return false;
  }
  return true;
}

/// A number's sign, integer digits, point and decimals never need more columns than it has.
constexpr bool NumbersFitTheirWidth() {
  for (const RecordField& field : kRecordFields) {
    const int point = field.decimals > 0 ? 1 : 0;
    if (field.integerWidth + point + field.decimals > field.width) return false;
  }
  return true;
}

static_assert(FieldsAscendWithoutOverlap());
static_assert(RowsStandAtTheirNumber());
static_assert(NumbersFitTheirWidth());
static_assert(kRecordFields.back().End() == kElementRecordSize);
static_assert(kEditableFields.size() == 29);

}  // namespace record_check

enum class RecordKind { Comet, MinorPlanet, Continuation, Placeholder, Unknown };

/// What the character in column 0 says.
constexpr RecordKind KindOf(std::string_view record) {
  switch (record.empty() ? '\0' : record.front()) {
    case 'C':
      return RecordKind::Comet;
    case 'M':
      return RecordKind::MinorPlanet;
    case '+':
      return RecordKind::Continuation;
    case 'N':
      return RecordKind::Placeholder;
    default:
      return RecordKind::Unknown;
  }
}

/// Whether the record is the first of an object.
constexpr bool BeginsObject(std::string_view record) {
  const RecordKind kind = KindOf(record);
  return kind == RecordKind::Comet || kind == RecordKind::MinorPlanet;
}

/// The field's columns as they stand, as far as the record reaches.
std::string_view FieldBytes(std::string_view record, ElementField field);

/// The field's text: cut at the first NUL and without the blanks at its end.
QString FieldText(std::string_view record, ElementField field);

/// The identifier as objects are told apart by it: without blanks at both ends. Compare it without
/// regard to case.
QString IdentifierOf(std::string_view record);

enum class NumberState { Blank, Number, NotANumber };

struct FieldNumber {
  NumberState state = NumberState::Blank;
  double value = 0.0;
};

/// Reads a number field: blanks at both ends aside, an optional sign, digits and, for a field with
/// decimals, an optional point with digits behind it. An integer field takes no point.
FieldNumber ReadNumber(std::string_view record, ElementField field);

/// Reads a number as a person types it into a field: blanks at both ends aside, an optional minus
/// sign, digits and, for a field with decimals, an optional point with digits behind it.
FieldNumber ReadTypedNumber(QStringView text, ElementField field);

/// Whether a value is within the field's range.
constexpr bool IsInRange(const RecordField& field, double value) {
  const bool lowerIncluded =
      field.range == RangeMode::BothIncluded || field.range == RangeMode::LowerIncluded;
  const bool upperIncluded =
      field.range == RangeMode::BothIncluded || field.range == RangeMode::UpperIncluded;
  return (lowerIncluded ? value >= field.lowerBound : value > field.lowerBound) &&
         (upperIncluded ? value <= field.upperBound : value < field.upperBound);
}

/// The three fields of a date.
struct DateFields {
  ElementField year;
  ElementField month;
  ElementField day;
};

inline constexpr DateFields kPerihelionDate{
    ElementField::PerihelionYear, ElementField::PerihelionMonth, ElementField::PerihelionDay};
inline constexpr DateFields kEpochDate{ElementField::EpochYear, ElementField::EpochMonth,
                                       ElementField::EpochDay};
inline constexpr DateFields kValidFromDate{
    ElementField::ValidFromYear, ElementField::ValidFromMonth, ElementField::ValidFromDay};
inline constexpr DateFields kValidToDate{ElementField::ValidToYear, ElementField::ValidToMonth,
                                         ElementField::ValidToDay};

/// The Julian date of a date's fields: blank when all three are, not a number when one is missing,
/// cannot be read or is out of its range.
FieldNumber ReadDate(std::string_view record, const DateFields& fields);

/// A record read from a file whose lines may end early, as import sources do.
struct PaddedRecord {
  /// The step that failed: 0 for none, 1 to 4 for the read of 189 bytes and of 16, 51 and 161 more,
  /// 5 for a line that does not end where a record may end.
  int failedStep = 0;
  int consumed = 0;  ///< bytes of the line, with its CR LF; 0 when a step failed
  std::array<char, kElementRecordSize> bytes{};

  std::string_view View() const { return {bytes.data(), bytes.size()}; }
};

/// Reads the record at the beginning of `bytes` and fills it up with blanks to its full length.
/// Lines of 189, 205, 256 and 417 bytes are records; a line of any other length is read across its
/// end and fails.
PaddedRecord ReadPaddedRecord(std::string_view bytes);

}  // namespace vyn
