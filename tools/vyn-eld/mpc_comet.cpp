// Comets in the Minor Planet Center's one-line format.
#include <algorithm>

#include "tools/vyn-eld/line_fields.h"
#include "tools/vyn-eld/packed_designation.h"

namespace vyn::eld {
namespace {

constexpr LineColumns kNumber{1, 4};
constexpr LineColumns kType{5, 5};
constexpr LineColumns kProvisional{6, 12};
constexpr LineColumns kName{103, 158};
/// References have grown beyond the nine columns that were theirs.
constexpr LineColumns kReference{160, 200};

struct NumberColumns {
  ElementField field;
  LineColumns columns;
  bool mayBeBlank;
};

// clang-format off
constexpr NumberColumns kNumbers[] = {
  {ElementField::PerihelionYear,       { 15,  18}, false},
  {ElementField::PerihelionMonth,      { 20,  21}, false},
  {ElementField::PerihelionDay,        { 23,  29}, false},
  {ElementField::PerihelionDistance,   { 31,  39}, false},
  {ElementField::Eccentricity,         { 42,  49}, false},
  {ElementField::ArgumentOfPerihelion, { 52,  59}, false},
  {ElementField::AscendingNode,        { 62,  69}, false},
  {ElementField::Inclination,          { 72,  79}, false},
  {ElementField::AbsoluteMagnitude,    { 92,  95}, true},
  {ElementField::MagnitudeCoefficient, { 97, 100}, true},
};

constexpr NumberColumns kEpoch[] = {
  {ElementField::EpochYear,            { 82,  85}, false},
  {ElementField::EpochMonth,           { 86,  87}, false},
  {ElementField::EpochDay,             { 88,  89}, false},
};

/// What a line does not tell is as for any new comet.
constexpr std::pair<ElementField, std::string_view> kUsual[] = {
  {ElementField::Equinox,  "2000.0"},
  {ElementField::DustTail, "0.01"},
  {ElementField::IonTail,  "0.01"},
  {ElementField::BetaMax,  "1.0"},
};
// clang-format on

/// The letters of a numbered comet's fragment, which stand where others have their designation.
std::string FragmentSuffix(std::string_view letters) {
  const auto isLower = [](char c) { return c >= 'a' && c <= 'z'; };
  if (letters.empty() || letters.size() > 2) return {};
  if (!std::all_of(letters.begin(), letters.end(), isLower)) return {};
  std::string suffix = "-";
  for (const char c : letters) suffix += static_cast<char>(c - 'a' + 'A');
  return suffix;
}

/// "73P-BT", from the number and what stands behind it.
std::string NumberedDesignation(const RecordBuilder& builder, char type) {
  const std::string_view digits = kNumber.In(builder.Line());
  const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
  const bool isNumber =
      first < digits.size() &&
      std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (!isNumber) return {};
  return std::string(digits.substr(first)) + type + FragmentSuffix(kProvisional.In(builder.Line()));
}

/// "2020F3" for "2020 F3"; empty where it does not fit its field.
std::string Compressed(std::string_view provisional) {
  std::string text(provisional);
  std::erase(text, ' ');
  return text.size() <=
                 static_cast<std::size_t>(FieldOf(ElementField::ProvisionalDesignation).width)
             ? text
             : std::string();
}

void PutDesignations(RecordBuilder& builder, const std::string& whole,
                     const std::string& provisional) {
  const auto width = static_cast<std::size_t>(FieldOf(ElementField::PermanentDesignation).width);
  builder.Text(ElementField::Identifier, whole);
  builder.Text(ElementField::ProvisionalDesignation, Compressed(provisional));
  builder.Text(ElementField::PermanentDesignation, whole.size() <= width ? whole : provisional);
}

/// What stands in brackets, or behind the number's slash; the designation where there is no name.
std::string_view NameIn(std::string_view text, std::string_view designation, bool isNumbered) {
  const std::size_t open = text.find('(');
  if (open != text.npos) {
    const std::size_t close = std::min(text.rfind(')'), text.size());
    return close > open ? text.substr(open + 1, close - open - 1) : text.substr(open + 1);
  }
  const std::size_t slash = text.find('/');
  return isNumbered && slash != text.npos ? text.substr(slash + 1) : designation;
}

/// The comet's own designation, and a name to call it by.
void ReadName(RecordBuilder& builder) {
  const std::string_view type = kType.In(builder.Line());
  if (type.empty() || type.front() < 'A' || type.front() > 'Z') {
    return builder.Note(kType, "the type of the orbit is not a letter");
  }
  std::string whole = NumberedDesignation(builder, type.front());
  const bool isNumbered = !whole.empty();
  std::string provisional;
  if (!isNumbered) {
    provisional = UnpackComet(kProvisional.In(builder.Line()));
    if (provisional.empty()) return builder.Note(kProvisional, "the designation cannot be read");
    whole = std::string(1, type.front()) + '/' + provisional;
  }
  PutDesignations(builder, whole, provisional);
  const std::string_view name = NameIn(kName.In(builder.Line()), whole, isNumbered);
  builder.Text(ElementField::EnglishName, name.empty() ? std::string_view(whole) : name);
}

}  // namespace

std::optional<LineProblem> ConvertComet(std::string_view line, RecordBytes& record) {
  RecordBuilder builder(line, 'C', record);
  for (const NumberColumns& number : kNumbers) {
    builder.Number(number.field, number.columns, number.mayBeBlank);
  }
  // Comets of long ago have no epoch.
  if (!LineColumns{82, 89}.In(line).empty()) {
    for (const NumberColumns& number : kEpoch) builder.Number(number.field, number.columns);
  }
  for (const auto& [field, text] : kUsual) builder.Text(field, text);
  ReadName(builder);
  const std::string_view reference = kReference.In(line);
  if (!reference.empty()) {
    builder.Text(ElementField::Memo, "MPC ref. " + std::string(reference));
  }
  return builder.TakeProblem();
}

}  // namespace vyn::eld
