#include "elements/element_page.h"

#include <algorithm>

#include "core_link/reply.h"
#include "elements/editor_fields.h"
#include "elements/element_writer.h"
#include "elements/orbit_conversion.h"
#include "resources/string_table.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

constexpr int kAxisControl = 1630;
constexpr int kMeanAnomalyControl = 1622;
constexpr double kSmallestDistanceAu = 1e-6;
constexpr double kDistanceLimitAu = 100.0;
constexpr double kLargestEccentricityOfAxis = 0.999999;

using Problem = std::optional<PageProblem>;

Problem Refuse(int message, int control) { return PageProblem{LoadString(message), control}; }

/// The edit in which the user can mend a field: where it is derived, the one it is derived from.
int ControlToMend(const ElementInput& input, ElementField field) {
  if (field == ElementField::PerihelionDistance && !input.distanceMode) return kAxisControl;
  const bool isT = field == ElementField::PerihelionYear ||
                   field == ElementField::PerihelionMonth || field == ElementField::PerihelionDay;
  if (isT && !input.timeMode) return kMeanAnomalyControl;
  return ControlOf(field);
}

bool IsDateBlank(const ElementInput& input, const DateFields& date) {
  return IsBlankField(input[date.year]) && IsBlankField(input[date.month]) &&
         IsBlankField(input[date.day]);
}

int FirstBlankControl(const ElementInput& input, const DateFields& date) {
  for (const ElementField field : {date.year, date.month, date.day}) {
    if (IsBlankField(input[field])) return ControlOf(field);
  }
  return 0;
}

bool IsCalendarDate(const ElementInput& input, const DateFields& date) {
  return CheckDate(reply::ToInt(input[date.year]), reply::ToInt(input[date.month]),
                   NumberOf(input[date.day])) != 0;
}

// The checks, in their order.

Problem CheckDistance(const ElementInput& input) {
  const int qControl = ControlOf(ElementField::PerihelionDistance);
  const double qAu = NumberOf(input[ElementField::PerihelionDistance]);
  if (input.distanceMode) {
    if (qAu <= kSmallestDistanceAu) return Refuse(13340, qControl);
    if (qAu >= kDistanceLimitAu) return Refuse(13339, qControl);
    return {};
  }
  if (qAu <= 0.0 || qAu >= kDistanceLimitAu) return Refuse(13331, kAxisControl);
  if (NumberOf(input[ElementField::Eccentricity]) > kLargestEccentricityOfAxis) {
    return Refuse(13344, kAxisControl);
  }
  return {};
}

int ControlOfEpochProblem(const ElementInput& input, int message) {
  const int firstBlank = FirstBlankControl(input, kEpochDate);
  if (firstBlank != 0) return firstBlank;
  if (IsBlankField(input.meanAnomaly) || message == kNumberExpected) return kMeanAnomalyControl;
  const bool isTooLong = NumberOf(input[ElementField::Eccentricity]) > kLargestEccentricityOfM;
  return isTooLong ? ControlOf(ElementField::Eccentricity)
                   : ControlToMend(input, ElementField::PerihelionDistance);
}

/// Derives T where it is not given itself.
Problem DeriveT(ElementInput& input) {
  if (input.timeMode) return {};
  const int message = EpochToT(input);
  if (message == 0) return {};
  return Refuse(message, ControlOfEpochProblem(input, message));
}

Problem CheckDatesWhole(const ElementInput& input) {
  struct Date {
    DateFields fields;
    int message;
  };
  for (const auto& [date, message] :
       {Date{kValidFromDate, 13336}, Date{kValidToDate, 13337}, Date{kEpochDate, 13335}}) {
    if (!CheckDateOmission(input, date)) return Refuse(message, FirstBlankControl(input, date));
  }
  return {};
}

Problem CheckValidity(const ElementInput& input) {
  bool bothGiven = true;
  for (const DateFields& date : {kValidFromDate, kValidToDate}) {
    if (IsDateBlank(input, date)) {
      bothGiven = false;
    } else if (!IsCalendarDate(input, date)) {
      return Refuse(13328, ControlOf(date.year));
    }
  }
  if (bothGiven && JdOf(input, kValidFromDate) >= JdOf(input, kValidToDate)) {
    return Refuse(13345, ControlOf(ElementField::ValidFromYear));
  }
  return {};
}

Problem CheckGivenTime(const ElementInput& input) {
  const DateFields& date = input.timeMode ? kPerihelionDate : kEpochDate;
  if (IsCalendarDate(input, date)) return {};
  return Refuse(13327, ControlOf(date.year));
}

Problem CheckIdentifier(const ElementInput& input, const IdentifierIsTaken& isTaken) {
  const QString identifier = input[ElementField::Identifier].trimmed();
  const int control = ControlOf(ElementField::Identifier);
  if (identifier.isEmpty()) return Refuse(13333, control);
  if (isTaken(identifier)) return Refuse(13332, control);
  return {};
}

/// An optional minus sign and digits with at most one point.
bool IsPlainNumber(QStringView text) {
  text = text.trimmed();
  if (text.startsWith(u'-')) text = text.sliced(1);
  const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
  const qsizetype digits = std::ranges::count_if(text, isDigit);
  const qsizetype points = text.count(u'.');
  return digits > 0 && points <= 1 && digits + points == text.size();
}

/// M and a are in no record, so that nothing else would notice that T or q was derived from no
/// number. An orbit too wide to show its axis keeps the q that it has.
Problem CheckGivenInstead(const ElementInput& input) {
  if (!input.distanceMode && !IsBlankField(input.semiMajorAxis) &&
      !IsPlainNumber(input.semiMajorAxis)) {
    return Refuse(kNumberExpected, kAxisControl);
  }
  if (!input.timeMode && !IsPlainNumber(input.meanAnomaly)) {
    return Refuse(kNumberExpected, kMeanAnomalyControl);
  }
  return {};
}

Problem StoreFields(const ElementInput& input, QByteArray& record) {
  for (const EditorField& row : kEditorFields) {
    if (Problem problem = SetNumericField(input, row.field, record)) return problem;
  }
  return {};
}

std::string_view ViewOf(const QByteArray& record) {
  return {record.data(), static_cast<std::size_t>(record.size())};
}

QString NumberText(std::string_view record, ElementField field) {
  const std::string_view bytes = FieldBytes(record, field);
  return QString::fromLatin1(bytes.data(), bytes.size()).trimmed();
}

QString CheckRange(const RecordField& field, double value, bool isComet) {
  const int name = NameMessageOf(field.field, isComet);
  if (field.decimals > 0) return fCheckRange(field, name, value);
  constexpr double kLargest = 1e9;
  return nCheckRange(field, name, static_cast<int>(std::clamp(value, -kLargest, kLargest)));
}

}  // namespace

ElementInput ReadPage(const QByteArray& page, bool isComet) {
  const std::string_view record = ViewOf(page);
  ElementInput input;
  input.isComet = input.distanceMode = input.timeMode = isComet;
  for (const EditorField& row : kEditorFields) {
    const bool isNumber = FieldOf(row.field).IsNumber();
    input[row.field] = isNumber ? NumberText(record, row.field) : FieldText(record, row.field);
  }
  TToEpoch(input);
  input.semiMajorAxis = PerihelionDistanceToAxis(input);
  return input;
}

std::optional<PageProblem> StorePage(ElementInput input, QByteArray& record,
                                     const IdentifierIsTaken& isTaken) {
  if (Problem problem = CheckDistance(input)) return problem;
  if (Problem problem = DeriveT(input)) return problem;
  if (Problem problem = CheckDatesWhole(input)) return problem;
  if (Problem problem = CheckValidity(input)) return problem;
  if (Problem problem = CheckGivenTime(input)) return problem;
  if (Problem problem = CheckIdentifier(input, isTaken)) return problem;
  if (Problem problem = CheckGivenInstead(input)) return problem;
  QByteArray stored = record;
  if (Problem problem = StoreFields(input, stored)) return problem;
  record = stored;
  return {};
}

bool CheckDateOmission(const ElementInput& input, const DateFields& date) {
  return IsDateBlank(input, date) || FirstBlankControl(input, date) == 0;
}

std::optional<PageProblem> SetNumericField(const ElementInput& input, ElementField field,
                                           QByteArray& record) {
  const RecordField& row = FieldOf(field);
  const QString& text = input[field];
  if (!row.IsNumber()) {
    // Bytes that could not be read as text would not be written back as they were.
    if (text != FieldText(ViewOf(record), field)) WriteText(record, field, text);
    return {};
  }
  const FieldNumber number = ReadTypedNumber(text, field);
  if (number.state == NumberState::NotANumber) {
    return Refuse(kNumberExpected, ControlToMend(input, field));
  }
  if (number.state == NumberState::Blank) return {};
  const QString message = CheckRange(row, number.value, input.isComet);
  if (!message.isEmpty()) return PageProblem{message, ControlToMend(input, field)};
  WriteNumber(record, field, text);
  return {};
}

void CopySharedFields(const QByteArray& from, QByteArray& to) {
  for (const ElementField field :
       {ElementField::Identifier, ElementField::EnglishName, ElementField::JapaneseName}) {
    CopyField(to, from, field);
  }
}

}  // namespace vyn
