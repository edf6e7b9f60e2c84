#include "engine/element_reader.h"

#include <algorithm>
#include <cmath>

#include "elements/code_page_932.h"
#include "elements/element_record.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr double kNotKnown = std::numeric_limits<double>::quiet_NaN();

constexpr ElementField kTextFields[] = {
    ElementField::ProvisionalDesignation,
    ElementField::PermanentDesignation,
    ElementField::EnglishName,
    ElementField::Identifier,
    ElementField::JapaneseName,
    ElementField::Memo,
};

enum class Needed { No, Yes };

QString NameOf(ElementField field) {
  const std::string_view name = FieldOf(field).name;
  return QString::fromLatin1(name.data(), name.size());
}

/// Takes fields out of one record and notes what is wrong with them.
class FieldReader {
 public:
  explicit FieldReader(std::string_view record) : record_(record) {}

  double Number(ElementField field, Needed needed, double fallback = kNotKnown) {
    const FieldNumber number = ReadNumber(record_, field);
    if (number.state == NumberState::Number) {
      if (!IsInRange(FieldOf(field), number.value)) Note(NameOf(field) + u" is out of range"_s);
      return number.value;
    }
    NoteUnread(number.state, NameOf(field), u" is not a number"_s, needed);
    return fallback;
  }

  double Date(const DateFields& fields, const QString& name, Needed needed) {
    const FieldNumber date = ReadDate(record_, fields);
    if (date.state == NumberState::Number) return date.value;
    NoteUnread(date.state, name, u" is not a date"_s, needed);
    return kNotKnown;
  }

  void CheckTexts() {
    if (IsAscii(record_)) return;
    for (const ElementField field : kTextFields) {
      const std::string_view bytes = FieldBytes(record_, field);
      if (!DecodeCodePage932(bytes).valid || LooksLikeUtf8(bytes)) {
        Note(NameOf(field) + u" is not in code page 932"_s);
      }
    }
  }

  std::vector<QString> TakeProblems() { return std::move(problems_); }

 private:
  void NoteUnread(NumberState state, const QString& name, const QString& whatElse, Needed needed) {
    if (state == NumberState::NotANumber) Note(name + whatElse);
    if (state == NumberState::Blank && needed == Needed::Yes) Note(name + u" is missing"_s);
  }
  void Note(const QString& problem) { problems_.push_back(problem); }

  std::string_view record_;
  std::vector<QString> problems_;
};

OrbitElements ReadOrbit(FieldReader& reader) {
  OrbitElements orbit;
  orbit.perihelionJd = reader.Date(kPerihelionDate, u"perihelion date"_s, Needed::Yes);
  orbit.eccentricity = reader.Number(ElementField::Eccentricity, Needed::Yes);
  orbit.perihelionDistanceAu = reader.Number(ElementField::PerihelionDistance, Needed::Yes);
  orbit.argumentOfPerihelionDeg = reader.Number(ElementField::ArgumentOfPerihelion, Needed::Yes);
  orbit.ascendingNodeDeg = reader.Number(ElementField::AscendingNode, Needed::Yes);
  orbit.inclinationDeg = reader.Number(ElementField::Inclination, Needed::Yes);
  const double angles =
      orbit.argumentOfPerihelionDeg + orbit.ascendingNodeDeg + orbit.inclinationDeg;
  const bool usable =
      orbit.perihelionDistanceAu > 0.0 && orbit.eccentricity >= 0.0 && std::isfinite(angles);
  if (!usable) orbit.perihelionJd = kNotKnown;
  return ReferredToJ2000(orbit, reader.Number(ElementField::Equinox, Needed::No, 2000.0));
}

}  // namespace

QString RecordDefect(std::string_view bytes) {
  if (bytes.size() < static_cast<std::size_t>(kElementRecordSize)) {
    return u"the file ends within the record"_s;
  }
  if (FieldBytes(bytes, ElementField::LineEnd) != "\r\n") {
    return u"the record does not end in CR LF"_s;
  }
  if (KindOf(bytes) == RecordKind::Unknown) return u"the record is of no known kind"_s;
  return {};
}

RecordReading ReadRecord(std::string_view record) {
  FieldReader reader(record);
  RecordReading reading;
  SmallBody& body = reading.body;
  body.orbit = ReadOrbit(reader);
  body.absoluteMagnitude = reader.Number(ElementField::AbsoluteMagnitude, Needed::No);
  body.magnitudeCoefficient = reader.Number(ElementField::MagnitudeCoefficient, Needed::No);
  body.dustTailAu = reader.Number(ElementField::DustTail, Needed::No, 0.0);
  body.ionTailAu = reader.Number(ElementField::IonTail, Needed::No, 0.0);
  body.betaMax = reader.Number(ElementField::BetaMax, Needed::No, 0.0);
  body.epochJd = reader.Date(kEpochDate, u"epoch"_s, Needed::No);
  reader.Date(kValidFromDate, u"validity start"_s, Needed::No);
  reader.Date(kValidToDate, u"validity end"_s, Needed::No);
  reader.CheckTexts();
  reading.problems = reader.TakeProblems();
  return reading;
}

double Validity::DistanceTo(double jd) const { return std::max({0.0, fromJd - jd, jd - toJd}); }

Validity ReadValidity(std::string_view record) {
  Validity validity;
  const FieldNumber from = ReadDate(record, kValidFromDate);
  const FieldNumber to = ReadDate(record, kValidToDate);
  if (from.state == NumberState::Number) validity.fromJd = from.value;
  if (to.state == NumberState::Number) validity.toJd = to.value;
  return validity;
}

}  // namespace vyn
