#include "tools/vyn-eld/record_check.h"

#include <algorithm>
#include <memory>
#include <unordered_map>

#include <QStringList>

#include "elements/code_page_932.h"
#include "elements/element_record.h"
#include "elements/identifier_key.h"
#include "elements/line_scan.h"

namespace vyn::eld {
namespace {

using namespace Qt::StringLiterals;

/// Without these there is no orbit.
constexpr ElementField kNeeded[] = {
    ElementField::PerihelionYear,     ElementField::PerihelionMonth,
    ElementField::PerihelionDay,      ElementField::Eccentricity,
    ElementField::PerihelionDistance, ElementField::ArgumentOfPerihelion,
    ElementField::AscendingNode,      ElementField::Inclination,
};

constexpr std::pair<const char16_t*, DateFields> kDates[] = {
    {u"epoch", kEpochDate}, {u"validity start", kValidFromDate}, {u"validity end", kValidToDate}};

QString NameOf(const RecordField& field) {
  return QString::fromLatin1(field.name.data(), static_cast<qsizetype>(field.name.size()));
}

QString NumberDefect(std::string_view record, const RecordField& field) {
  const FieldNumber number = ReadNumber(record, field.field);
  const bool isNeeded =
      std::find(std::begin(kNeeded), std::end(kNeeded), field.field) != std::end(kNeeded);
  if (number.state == NumberState::NotANumber) return NameOf(field) + u" is not a number"_s;
  if (number.state == NumberState::Blank) {
    return isNeeded ? NameOf(field) + u" is missing"_s : QString();
  }
  return IsInRange(field, number.value) ? QString() : NameOf(field) + u" is out of range"_s;
}

QString TextDefect(std::string_view record, const RecordField& field) {
  const std::string_view bytes = FieldBytes(record, field.field);
  const bool isText = DecodeCodePage932(bytes).valid && !LooksLikeUtf8(bytes);
  return isText ? QString() : NameOf(field) + u" is not in code page 932"_s;
}

QString MarkDefect(std::string_view record) {
  const std::string_view mark = FieldBytes(record, ElementField::EditedMark);
  return mark == "*" || mark == " " ? QString() : u"the edited mark is neither * nor blank"_s;
}

void AddDefect(QStringList& defects, const QString& defect) {
  if (!defect.isEmpty()) defects += defect;
}

/// Walks over the records of a file as an import reads them.
class RecordWalk {
 public:
  explicit RecordWalk(const std::function<void(const RecordProblem&)>& report) : report_(report) {}

  /// Looks at the record at a position, where there is a byte at least; returns where the next one
  /// begins.
  std::int64_t Step(std::int64_t position, std::string_view bytes) {
    const PaddedRecord read = ReadPaddedRecord(bytes);
    const std::string_view line = bytes.substr(0, LineLength(bytes));
    if (read.failedStep != 0) {
      Report(position, MalformedLine(bytes, line));
    } else {
      CheckRecord(position, read);
    }
    ++result_.records;
    return position +
           (read.failedStep != 0 ? static_cast<std::int64_t>(line.size()) : read.consumed);
  }

  const CheckResult& Result() const { return result_; }

 private:
  void Report(std::int64_t position, const QString& reason) {
    if (!reason.isEmpty()) report_({result_.records, position, reason});
  }

  static QString MalformedLine(std::string_view bytes, std::string_view line) {
    const bool isCut = bytes.size() < kElementRecordSize && !line.ends_with('\n');
    if (isCut) return u"the file ends within the record"_s;
    return line.ends_with("\r\n") || line.ends_with('\n')
               ? u"the line has %1 bytes"_s.arg(line.size())
               : u"the record does not end in CR LF"_s;
  }

  void CheckRecord(std::int64_t position, const PaddedRecord& read) {
    if (read.consumed != kElementRecordSize) ++result_.shortLines;
    QStringList defects;
    AddDefect(defects, DefectsOf(read.View()));
    AddDefect(defects, OrderDefect(read.View()));
    Report(position, defects.join(u"; "_s));
    if (BeginsObject(read.View())) ++result_.objects;
  }

  /// What is wrong with a record only because of those before it.
  QString OrderDefect(std::string_view record) {
    if (KindOf(record) == RecordKind::Continuation && result_.objects == 0) {
      return u"the record continues no object"_s;
    }
    if (!BeginsObject(record)) return {};
    const IdentifierKey key = IdentifierKey::OfLine(record);
    if (key.IsBlank()) return u"the identifier is missing"_s;
    const auto [known, isNew] = seen_.try_emplace(key, result_.records);
    return isNew ? QString() : u"the identifier is that of record %1"_s.arg(known->second);
  }

  struct Hash {
    std::size_t operator()(const IdentifierKey& key) const { return key.Hash(); }
  };

  const std::function<void(const RecordProblem&)>& report_;
  CheckResult result_;
  std::unordered_map<IdentifierKey, std::int64_t, Hash> seen_;
};

}  // namespace

QString DefectsOf(std::string_view record) {
  const RecordKind kind = KindOf(record);
  if (kind == RecordKind::Placeholder) return u"the record is a placeholder that was left"_s;
  if (kind == RecordKind::Unknown) return u"the record is of no known kind"_s;
  const bool isAscii = IsAscii(record);
  QStringList defects;
  for (const RecordField& field : kRecordFields) {
    if (field.IsNumber()) AddDefect(defects, NumberDefect(record, field));
    if (!field.IsNumber() && !isAscii) AddDefect(defects, TextDefect(record, field));
  }
  for (const auto& [name, fields] : kDates) {
    if (ReadDate(record, fields).state == NumberState::NotANumber) {
      AddDefect(defects, QString::fromUtf16(name) + u" is not a date"_s);
    }
  }
  AddDefect(defects, MarkDefect(record));
  return defects.join(u"; "_s);
}

std::optional<CheckResult> CheckRecords(const DiskFile& file,
                                        const std::function<void(const RecordProblem&)>& report,
                                        const std::function<void(std::int64_t)>& progress) {
  const auto buffer = std::make_unique_for_overwrite<char[]>(kScanBufferSize);
  RecordWalk walk(report);
  std::int64_t position = 0;
  for (;;) {
    const std::int64_t count = file.ReadAt(position, buffer.get(), kScanBufferSize);
    if (count < 0) return std::nullopt;
    const bool isEnd = count < kScanBufferSize;
    const std::string_view bytes(buffer.get(), static_cast<std::size_t>(count));
    std::int64_t used = 0;
    // A line is looked at when it is there as a whole.
    while (used < count && (isEnd || count - used >= kLongestLine)) {
      used = walk.Step(position + used, bytes.substr(used)) - position;
    }
    position += used;
    progress(position);
    if (isEnd) return walk.Result();
  }
}

}  // namespace vyn::eld
