#include "engine/element_table.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <QFile>

#include "elements/element_record.h"
#include "elements/element_rewrite.h"
#include "engine/element_reader.h"
#include "siblings/files/disk_file.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr double kNotKnown = std::numeric_limits<double>::quiet_NaN();

/// Every column once, for what is done to all of them alike.
template <typename Columns, typename Action>
void ForEachColumn(Columns& columns, Action action) {
  action(columns.perihelionJd);
  action(columns.perihelionDistanceAu);
  action(columns.eccentricity);
  action(columns.argumentOfPerihelionDeg);
  action(columns.ascendingNodeDeg);
  action(columns.inclinationDeg);
  action(columns.absoluteMagnitude);
  action(columns.magnitudeCoefficient);
  action(columns.isComet);
}

void StoreRow(ElementColumns& columns, std::size_t row, const SmallBody& body, bool isComet) {
  columns.perihelionJd[row] = body.orbit.perihelionJd;
  columns.perihelionDistanceAu[row] = body.orbit.perihelionDistanceAu;
  columns.eccentricity[row] = body.orbit.eccentricity;
  columns.argumentOfPerihelionDeg[row] = body.orbit.argumentOfPerihelionDeg;
  columns.ascendingNodeDeg[row] = body.orbit.ascendingNodeDeg;
  columns.inclinationDeg[row] = body.orbit.inclinationDeg;
  columns.absoluteMagnitude[row] = static_cast<float>(body.absoluteMagnitude);
  columns.magnitudeCoefficient[row] = static_cast<float>(body.magnitudeCoefficient);
  columns.isComet[row] = isComet ? 1 : 0;
}

/// A file as it lies in memory.
class MappedFile {
 public:
  /// Whether the file could be opened and read; an empty file can.
  bool Open(const QString& path) {
    file_.setFileName(path);
    if (path.isEmpty() || !file_.open(QIODevice::ReadOnly)) return false;
    if (file_.isSequential()) return false;
    size_ = file_.size();
    if (size_ > 0) data_ = reinterpret_cast<const char*>(file_.map(0, size_));
    identity_ = DiskFile::IdentityOf(path);
    return size_ == 0 || data_ != nullptr;
  }
  /// Whether the file with this name is the one that lies in memory and has kept its size: what was
  /// written into it is seen already.
  bool IsStillWhole() const {
    const auto now = DiskFile::IdentityOf(file_.fileName());
    return now && identity_ && now->IsSameFile(*identity_) && now->size == size_;
  }
  /// Whether the file with this name is the same one, only longer.
  bool HasGrownInPlace() const {
    const auto now = DiskFile::IdentityOf(file_.fileName());
    return now && identity_ && now->IsSameFile(*identity_) && now->size > size_;
  }
  std::string_view Bytes() const { return {data_, static_cast<std::size_t>(size_)}; }
  QString Path() const { return file_.fileName(); }
  QString Error() const { return file_.errorString(); }

 private:
  QFile file_;
  const char* data_ = nullptr;
  qint64 size_ = 0;
  std::optional<FileIdentity> identity_;
};

/// Keeps problems in the order of records and joins those of neighbouring records.
class ProblemLog {
 public:
  const std::vector<ElementProblem>& List() const { return list_; }
  std::int64_t Count() const { return count_; }

  void Add(const QString& file, std::int64_t record, const QString& reason) {
    ++count_;
    lastRecord_ = std::max(lastRecord_, record);
    if (!list_.empty() && list_.back().reason == reason &&
        list_.back().record + list_.back().recordCount == record) {
      ++list_.back().recordCount;
    } else if (list_.size() < ElementTable::kMostProblems) {
      list_.push_back({file, record, 1, record * kElementRecordSize, reason});
    }
  }

  /// Whether a problem is known of this record or one behind it.
  bool Reaches(std::int64_t record) const { return lastRecord_ >= record; }

  /// Whether a problem is, or may be, known of a record from `first` up to `end`.
  bool Touches(std::int64_t first, std::int64_t end) const {
    if (!Reaches(first)) return false;
    return list_.size() >= ElementTable::kMostProblems ||
           std::any_of(list_.begin(), list_.end(), [&](const ElementProblem& problem) {
             return problem.record < end && problem.record + problem.recordCount > first;
           });
  }

 private:
  std::vector<ElementProblem> list_;
  std::int64_t count_ = 0;
  std::int64_t lastRecord_ = -1;
};

}  // namespace

QString ElementProblem::Text() const {
  if (record < 0) return u"%1: %2"_s.arg(file, reason);
  const QString last = recordCount > 1 ? u" to %1"_s.arg(record + recordCount - 1) : QString();
  return u"%1: record %2%3 at byte %4: %5"_s.arg(file)
      .arg(record)
      .arg(last)
      .arg(bytePosition)
      .arg(reason);
}

struct ElementTable::Content {
  std::unique_ptr<MappedFile> file = std::make_unique<MappedFile>();
  std::vector<std::uint32_t> firstRecords;
  std::vector<std::uint32_t> withPages;
  ElementColumns columns;
  ProblemLog problems;
  /// The first object that was added since the whole file was read.
  int firstAdded = 0;

  int Count() const { return static_cast<int>(firstRecords.size()); }
  int RecordCount() const { return static_cast<int>(file->Bytes().size() / kElementRecordSize); }
  bool Has(int object) const { return object >= 0 && object < Count(); }

  /// The record that follows the object's last one.
  int EndOf(int object) const {
    return object + 1 < Count() ? static_cast<int>(firstRecords[object + 1]) : RecordCount();
  }

  /// Shorter than a record only where the file ends within it.
  std::string_view BytesOf(std::int64_t record) const {
    return file->Bytes().substr(record * kElementRecordSize, kElementRecordSize);
  }
  std::string_view FirstRecordOf(int object) const {
    return Has(object) ? BytesOf(firstRecords[object]) : std::string_view();
  }
  bool IsComet(int record) const { return KindOf(BytesOf(record)) == RecordKind::Comet; }
  bool BeginsObjectAt(int record) const {
    const std::string_view bytes = BytesOf(record);
    return RecordDefect(bytes).isNull() && BeginsObject(bytes);
  }

  void ReadAll() {
    ForEachColumn(columns, [this](auto& column) { column.reserve(RecordCount()); });
    firstRecords.reserve(RecordCount());
    ReadObjectsFrom(0);
    firstAdded = Count();
  }

  /// Adds the objects whose first record is this one or one behind it.
  void ReadObjectsFrom(int record) {
    // The last object of before may have got more pages.
    const int firstChanged = std::max(Count() - 1, 0);
    for (; record < RecordCount(); ++record) ReadNewRecord(record);
    CheckTail();
    FindObjectsWithPages(firstChanged);
  }

  void ReadNewRecord(int record) {
    const std::optional<SmallBody> body = CheckedRecord(record);
    if (!body) return;
    if (BeginsObject(BytesOf(record))) {
      firstRecords.push_back(record);
      ForEachColumn(columns, [](auto& column) { column.emplace_back(); });
      StoreRow(columns, firstRecords.size() - 1, *body, IsComet(record));
    } else if (firstRecords.empty()) {
      NoteProblem(record, u"the record continues no object"_s);
    }
  }

  /// What the record holds when it is one that has elements; notes what is wrong with it.
  std::optional<SmallBody> CheckedRecord(int record) {
    const std::string_view bytes = BytesOf(record);
    if (const QString defect = RecordDefect(bytes); !defect.isNull()) {
      NoteProblem(record, defect);
      return {};
    }
    if (KindOf(bytes) == RecordKind::Placeholder) return {};
    const RecordReading reading = ReadRecord(bytes);
    for (const QString& problem : reading.problems) NoteProblem(record, problem);
    return reading.body;
  }

  void CheckTail() {
    const std::string_view tail = BytesOf(RecordCount());
    if (!tail.empty()) NoteProblem(RecordCount(), RecordDefect(tail));
  }

  void NoteProblem(std::int64_t record, const QString& reason) {
    problems.Add(file->Path(), record, reason);
  }

  void FindObjectsWithPages(int firstObject = 0) {
    withPages.erase(std::lower_bound(withPages.begin(), withPages.end(),
                                     static_cast<std::uint32_t>(firstObject)),
                    withPages.end());
    for (int object = firstObject; object < Count(); ++object) {
      if (EndOf(object) - static_cast<int>(firstRecords[object]) > 1) withPages.push_back(object);
    }
  }

  /// Whether the records from `first` up to `end` are one object and no more.
  bool IsOneObject(int first, int end) const {
    if (first >= end || end > RecordCount() || !BeginsObjectAt(first)) return false;
    for (int record = first + 1; record < end; ++record) {
      if (BeginsObjectAt(record)) return false;
    }
    return end == RecordCount() || BeginsObjectAt(end);
  }

  void ReadAgain(int object) {
    const int first = static_cast<int>(firstRecords[object]);
    for (int record = first; record < EndOf(object); ++record) {
      const std::optional<SmallBody> body = CheckedRecord(record);
      if (body && record == first) StoreRow(columns, object, *body, IsComet(record));
    }
  }

  void Drop(int firstObject) {
    firstRecords.resize(firstObject);
    ForEachColumn(columns, [firstObject](auto& column) { column.resize(firstObject); });
  }

  void Erase(int object) {
    if (object < firstAdded) --firstAdded;
    firstRecords.erase(firstRecords.begin() + object);
    ForEachColumn(columns, [object](auto& column) { column.erase(column.begin() + object); });
    FindObjectsWithPages();
  }

  void ShiftRecordsBehind(int object, int recordDelta) {
    for (int i = object + 1; i < Count(); ++i) firstRecords[i] += recordDelta;
  }
};

ElementTable::ElementTable() : content_(std::make_unique<Content>()) {}
ElementTable::~ElementTable() = default;

bool ElementTable::Load(const QString& path) { return Read(path, false); }

bool ElementTable::Read(const QString& path, bool mayBeEmpty) {
  loadFailure_.clear();
  auto fresh = std::make_unique<Content>();
  const bool opened = fresh->file->Open(path) ||
                      (CompleteInterruptedRewrite(LinkTarget(path)) && fresh->file->Open(path));
  if (opened) fresh->ReadAll();
  const bool isEmpty = opened && fresh->file->Bytes().empty();
  if (fresh->Count() > 0 || (mayBeEmpty && isEmpty)) {
    content_ = std::move(fresh);
    ++wholeReads_;
    return true;
  }
  const QString reason = opened ? u"the file holds no object"_s : fresh->file->Error();
  loadFailure_ = fresh->problems.List();
  loadFailure_.insert(loadFailure_.begin(), {path, -1, 0, 0, reason});
  return false;
}

QString ElementTable::FilePath() const { return content_->file->Path(); }
int ElementTable::Count() const { return content_->Count(); }
int ElementTable::RecordCount() const { return content_->RecordCount(); }
const std::vector<std::uint32_t>& ElementTable::FirstRecords() const {
  return content_->firstRecords;
}
const char* ElementTable::RecordData() const { return content_->file->Bytes().data(); }
const ElementColumns& ElementTable::Columns() const { return content_->columns; }
const std::vector<std::uint32_t>& ElementTable::ObjectsWithPages() const {
  return content_->withPages;
}

std::string_view ElementTable::Record(int record) const {
  if (record < 0 || record >= RecordCount()) return {};
  return content_->BytesOf(record);
}

QString ElementTable::Identifier(int object) const {
  return IdentifierOf(content_->FirstRecordOf(object));
}
QString ElementTable::EnglishName(int object) const {
  return FieldText(content_->FirstRecordOf(object), ElementField::EnglishName);
}
QString ElementTable::JapaneseName(int object) const {
  return FieldText(content_->FirstRecordOf(object), ElementField::JapaneseName);
}
bool ElementTable::IsComet(int object) const {
  return content_->Has(object) && content_->columns.isComet[object] != 0;
}

int ElementTable::PageCount(int object) const {
  if (!content_->Has(object)) return 0;
  return content_->EndOf(object) - static_cast<int>(content_->firstRecords[object]);
}

SmallBody ElementTable::Body(int object) const {
  if (!content_->Has(object)) return {.orbit = {.perihelionJd = kNotKnown}};
  return ReadRecord(content_->FirstRecordOf(object)).body;
}

SmallBody ElementTable::BodyAt(int object, double jdTt) const {
  if (PageCount(object) <= 1) return Body(object);
  std::string_view nearest = content_->FirstRecordOf(object);
  double nearestDays = ReadValidity(nearest).DistanceTo(jdTt);
  const int end = content_->EndOf(object);
  for (int record = static_cast<int>(content_->firstRecords[object]) + 1; record < end; ++record) {
    const std::string_view page = content_->BytesOf(record);
    if (KindOf(page) != RecordKind::Continuation || !RecordDefect(page).isNull()) continue;
    const double days = ReadValidity(page).DistanceTo(jdTt);
    if (days < nearestDays) {
      nearest = page;
      nearestDays = days;
    }
  }
  return ReadRecord(nearest).body;
}

int ElementTable::IndexOf(QStringView identifier) const {
  const QStringView wanted = identifier.trimmed();
  for (int object = 0; object < Count(); ++object) {
    if (wanted.compare(Identifier(object), Qt::CaseInsensitive) == 0) return object;
  }
  return -1;
}

template <typename Change>
bool ElementTable::ReadChange(Change change) {
  if (content_->file->IsStillWhole() && change(0)) {
    loadFailure_.clear();
    return true;
  }
  auto file = std::make_unique<MappedFile>();
  if (!file->Open(FilePath())) return false;
  loadFailure_.clear();
  const auto recordDelta = [](const MappedFile& before, const MappedFile& after) {
    const auto bytes = static_cast<std::int64_t>(after.Bytes().size() - before.Bytes().size());
    return bytes % kElementRecordSize == 0 ? std::optional(bytes / kElementRecordSize)
                                           : std::nullopt;
  };
  const auto delta = recordDelta(*content_->file, *file);
  std::swap(content_->file, file);
  if (delta && change(static_cast<int>(*delta))) return true;
  std::swap(content_->file, file);
  return Read(FilePath(), true);
}

bool ElementTable::DataUpdate(int object) {
  if (!content_->Has(object)) return false;
  const int oldEnd = content_->EndOf(object);
  return ReadChange([this, object, oldEnd](int delta) {
    const int first = static_cast<int>(content_->firstRecords[object]);
    if (!content_->IsOneObject(first, oldEnd + delta)) return false;
    const bool problemsStay = delta == 0 ? !content_->problems.Touches(first, oldEnd)
                                         : !content_->problems.Reaches(first);
    if (!problemsStay) return false;
    content_->ShiftRecordsBehind(object, delta);
    content_->ReadAgain(object);
    if (delta != 0) content_->FindObjectsWithPages();
    return true;
  });
}

int ElementTable::DataAdd() {
  const int wholeReads = wholeReads_;
  // Only what was added so far can have been written anew with no more than this being told.
  const int first = content_->file->HasGrownInPlace() ? Count() : content_->firstAdded;
  const int record =
      first < Count() ? static_cast<int>(content_->firstRecords[first]) : content_->RecordCount();
  const bool isRead = ReadChange([this, first, record](int delta) {
    if (delta < 0 || content_->problems.Reaches(record)) return false;
    content_->Drop(first);
    content_->ReadObjectsFrom(record);
    return true;
  });
  if (!isRead) return -1;
  return wholeReads_ == wholeReads ? first : 0;
}

bool ElementTable::DataRemove(int object) {
  if (!content_->Has(object)) return false;
  const int pages = PageCount(object);
  return ReadChange([this, object, pages](int delta) {
    const int first = static_cast<int>(content_->firstRecords[object]);
    const bool onlyThisObject =
        delta == -pages && (first == RecordCount() || content_->BeginsObjectAt(first));
    if (!onlyThisObject || content_->problems.Reaches(first)) return false;
    content_->ShiftRecordsBehind(object, delta);
    content_->Erase(object);
    return true;
  });
}

const std::vector<ElementProblem>& ElementTable::Problems() const {
  return loadFailure_.empty() ? content_->problems.List() : loadFailure_;
}

std::int64_t ElementTable::ProblemCount() const {
  return loadFailure_.empty() ? content_->problems.Count()
                              : static_cast<std::int64_t>(loadFailure_.size());
}

}  // namespace vyn
