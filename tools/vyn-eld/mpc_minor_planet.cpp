// Minor planets in the Minor Planet Center's one-line format.
#include <algorithm>
#include <cmath>

#include "siblings/astro/calendar.h"
#include "tools/vyn-eld/line_fields.h"
#include "tools/vyn-eld/packed_designation.h"

namespace vyn::eld {
namespace {

constexpr LineColumns kPacked{1, 7};
constexpr LineColumns kEpoch{21, 25};
constexpr LineColumns kMeanAnomaly{27, 35};
constexpr LineColumns kSemiMajorAxis{93, 103};
constexpr LineColumns kReadable{167, 194};
constexpr LineColumns kFlags{162, 165};
/// Extracts without the names of the computers have flags and name here.
constexpr LineColumns kShortFlags{151, 154};
constexpr LineColumns kShortReadable{156, 194};

struct NumberColumns {
  ElementField field;
  LineColumns columns;
  bool mayBeBlank;
};

// clang-format off
constexpr NumberColumns kNumbers[] = {
  {ElementField::AbsoluteMagnitude,    {  9,  13}, true},
  {ElementField::MagnitudeCoefficient, { 15,  19}, true},
  {ElementField::ArgumentOfPerihelion, { 38,  46}, false},
  {ElementField::AscendingNode,        { 49,  57}, false},
  {ElementField::Inclination,          { 60,  68}, false},
  {ElementField::Eccentricity,         { 71,  79}, false},
};

/// What the memo tells of a line, and how it begins there.
constexpr std::pair<std::string_view, LineColumns> kMemo[] = {
  {"U ",   {106, 106}},
  {"",     {108, 116}},
  {"obs ", {118, 122}},
  {"opp ", {124, 126}},
  {"",     {128, 136}},
  {"rms ", {138, 141}},
};
// clang-format on

constexpr double kGaussianConstant = 0.01720209895;

/// A number such as "231.53975"; nothing when it is none.
std::optional<double> NumberIn(std::string_view text) {
  const std::size_t point = text.find('.');
  double digits = 0.0;
  double scale = 1.0;
  if (text.empty() || text.size() > 15) return std::nullopt;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i == point) continue;
    if (text[i] < '0' || text[i] > '9') return std::nullopt;
    digits = digits * 10.0 + (text[i] - '0');
    if (i > point) scale *= 10.0;
  }
  return digits / scale;
}

double NumberOf(RecordBuilder& builder, LineColumns columns, const char* name) {
  const auto number = NumberIn(columns.In(builder.Line()));
  if (!number) builder.Note(columns, std::string(name) + " is not a number");
  return number.value_or(0.0);
}

void PutDate(RecordBuilder& builder, const DateFields& fields, double jd, LineColumns columns) {
  const long long millionths = std::llround(jd * 1e6) + 500'000;
  const long long dayNumber = millionths >= 0 ? millionths / 1'000'000 : 0;
  int year = 0;
  int month = 0;
  double day = 0.0;
  // At noon no rounding can lead into another day.
  JdToDate(static_cast<double>(dayNumber), &year, &month, &day);
  builder.Date(fields, year, month, static_cast<int>(day), static_cast<int>(millionths % 1'000'000),
               columns);
}

/// Reads the epoch, which is the same in most lines of a file.
double ReadEpoch(RecordBuilder& builder) {
  const std::string_view packed = kEpoch.In(builder.Line());
  const auto date = UnpackDate(packed);
  if (!date) {
    builder.Note(kEpoch, packed.empty() ? "epoch is missing" : "epoch cannot be read");
    return 0.0;
  }
  if (CheckDate(date->year, date->month, date->day) == 0) {
    builder.Note(kEpoch, "the epoch's month has no such day");
  }
  builder.Date(kEpochDate, date->year, date->month, date->day, 0, kEpoch);
  return CalcJd(date->year, date->month, date->day);
}

void PutOrbit(RecordBuilder& builder) {
  const double epochJd = ReadEpoch(builder);
  const double meanAnomalyDeg = NumberOf(builder, kMeanAnomaly, "mean anomaly");
  const double semiMajorAxisAu = NumberOf(builder, kSemiMajorAxis, "semi-major axis");
  const double eccentricity = builder.Read(ElementField::Eccentricity);
  if (builder.IsGood() && eccentricity >= 1.0) {
    builder.Note(kNumbers[5].columns, "eccentricity is not that of an ellipse");
  }
  if (!builder.IsGood()) return;
  builder.Value(ElementField::PerihelionDistance, semiMajorAxisAu * (1.0 - eccentricity),
                kSemiMajorAxis);
  if (!builder.IsGood()) return;
  const double sinceDeg = std::remainder(meanAnomalyDeg, 360.0);
  const double radPerDay = kGaussianConstant / (semiMajorAxisAu * std::sqrt(semiMajorAxisAu));
  PutDate(builder, kPerihelionDate, epochJd - sinceDeg * M_PI / 180.0 / radPerDay, kMeanAnomaly);
}

/// The number or designation by which the line itself calls the object.
std::string ReadPacked(RecordBuilder& builder) {
  const std::string_view packed = kPacked.In(builder.Line());
  const auto number = UnpackNumber(packed);
  const std::string designation = number ? std::to_string(*number) : UnpackMinorPlanet(packed);
  if (designation.empty() || designation == "0") {
    builder.Note(kPacked, "the designation cannot be read");
  }
  return designation;
}

/// Flags are four digits to base 16, with a blank on both sides.
bool HasFlags(std::string_view line, LineColumns columns) {
  const std::string_view around = line.size() > static_cast<std::size_t>(columns.last)
                                      ? line.substr(columns.first - 2, 6)
                                      : std::string_view();
  return around.size() == 6 && around.front() == ' ' && around.back() == ' ' &&
         around.substr(1, 4).find_first_not_of("0123456789ABCDEFabcdef") == around.npos;
}

/// The readable designation: "(1) Ceres", "(10115) 1992 SK", "2026 CA620".
std::string_view ReadableName(std::string_view line) {
  const bool isShort = HasFlags(line, kShortFlags) && !HasFlags(line, kFlags);
  const std::string_view text = (isShort ? kShortReadable : kReadable).In(line);
  const std::size_t close = text.find(')');
  const bool isNumbered = text.starts_with('(') && close != text.npos;
  return isNumbered ? Trimmed(text.substr(close + 1)) : text;
}

/// "1992SK" for "1992 SK"; empty for a name and where it does not fit its field.
std::string Compressed(std::string_view name) {
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  const bool isProvisional =
      name.size() > 5 && name[4] == ' ' && std::all_of(name.begin(), name.begin() + 4, isDigit);
  std::string text(isProvisional ? name : std::string_view());
  std::erase(text, ' ');
  return text.size() <=
                 static_cast<std::size_t>(FieldOf(ElementField::ProvisionalDesignation).width)
             ? text
             : std::string();
}

void PutNames(RecordBuilder& builder) {
  const std::string designation = ReadPacked(builder);
  const std::string_view readable = ReadableName(builder.Line());
  const std::string_view name = readable.empty() ? std::string_view(designation) : readable;
  builder.Text(ElementField::Identifier, designation);
  builder.Text(ElementField::PermanentDesignation, designation);
  builder.Text(ElementField::EnglishName, name);
  builder.Text(ElementField::ProvisionalDesignation, Compressed(name));
}

void PutMemo(RecordBuilder& builder) {
  std::string memo;
  for (const auto& [word, columns] : kMemo) {
    const std::string_view text = columns.In(builder.Line());
    if (text.empty()) continue;
    if (!memo.empty()) memo += "; ";
    memo.append(word).append(text);
  }
  builder.Text(ElementField::Memo, memo);
}

}  // namespace

std::optional<LineProblem> ConvertMinorPlanet(std::string_view line, RecordBytes& record) {
  RecordBuilder builder(line, 'M', record);
  for (const NumberColumns& number : kNumbers) {
    builder.Number(number.field, number.columns, number.mayBeBlank);
  }
  builder.Text(ElementField::Equinox, "2000.0");
  PutOrbit(builder);
  PutNames(builder);
  PutMemo(builder);
  return builder.TakeProblem();
}

}  // namespace vyn::eld
