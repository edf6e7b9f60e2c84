#include "elements/element_file.h"

#include <algorithm>
#include <numeric>

#include "elements/element_record.h"
#include "elements/line_scan.h"
#include "resources/string_table.h"

namespace vyn {
namespace {

struct StepMessage {
  RewriteStep step;
  int number;
};

// clang-format off
constexpr StepMessage kStepMessages[] = {
  {RewriteStep::OpenTemporary,     13468},
  {RewriteStep::ReadBefore,        13463},
  {RewriteStep::WriteBefore,       13469},
  {RewriteStep::ReadDropped,       13464},
  {RewriteStep::WritePlaceholders, 13470},
  {RewriteStep::WriteRest,         13471},
  {RewriteStep::Delete,            13472},
  {RewriteStep::Rename,            13473},
};
// clang-format on

QString MessageOf(RewriteStep step, const QString& path) {
  const auto row =
      std::find_if(std::begin(kStepMessages), std::end(kStepMessages),
                   [step](const StepMessage& message) { return message.step == step; });
  if (step == RewriteStep::Delete) return FilledString(row->number, {path});
  return FilledString(row->number, {TemporaryPathOf(path), path});
}

bool IsAtRecord(std::int64_t position) { return position % kElementRecordSize == 0; }

/// What may stand where an object is expected. An empty line passes, as it always has.
bool MayBeginObject(char kind) { return kind == 'C' || kind == 'M' || kind == 'N' || kind == '\0'; }

std::string_view ViewOf(const QByteArray& record) {
  return {record.data(), static_cast<std::size_t>(record.size())};
}

}  // namespace

ElementFile::ElementFile(const QString& path) : path_(LinkTarget(path)) {}

bool ElementFile::Fail(int message, std::initializer_list<QString> values) {
  errorText_ = FilledString(message, values);
  return false;
}

bool ElementFile::OpenAndLock() {
  isWritable_ = file_.Open(path_, DiskFile::Mode::Change);
  if (!isWritable_ && !file_.Open(path_, DiskFile::Mode::Read)) return false;
  if (file_.Lock(kLockTimeoutMs)) return true;
  file_.Close();
  return false;
}

bool ElementFile::Open() {
  while (!file_.IsOpen()) {
    const bool isOpen =
        !isGone_ && (OpenAndLock() || (CompleteInterruptedRewrite(path_) && OpenAndLock()));
    if (!isOpen) return false;
    const auto named = DiskFile::IdentityOf(path_);
    // While this process waited, another one put a rewritten file in its place.
    if (!named || !named->IsSameFile(file_.OpenedIdentity())) {
      file_.Close();
      continue;
    }
    identity_ = *named;
    RemoveLeftTemporary(path_);
  }
  return true;
}

void ElementFile::Release() {
  file_.Close();
  knowledge_.reset();
}

void ElementFile::ForgetKnowledge() {
  if (knowledge_) knowledge_->Forget();
  knowledge_.reset();
  if (file_.IsOpen()) NoteChange();
}

ElementKnowledge* ElementFile::Knowledge() {
  if (knowledge_ && knowledge_->IsForgotten()) ForgetKnowledge();
  if (!knowledge_ && Open()) {
    knowledge_ =
        ElementKnowledge::Of(file_, identity_, ElementKnowledge::Wanted::PositionsAndIdentifiers);
  }
  return knowledge_.get();
}

std::int64_t ElementFile::Size() {
  const auto identity = Open() ? file_.Identity() : std::nullopt;
  return identity ? identity->size : 0;
}

int ElementFile::GetObjectCount() {
  const ElementKnowledge* known = Knowledge();
  return known == nullptr ? 0 : known->ObjectCount();
}

std::int64_t ElementFile::GetFileSeekPosByNumber(int object) {
  const ElementKnowledge* known = Knowledge();
  return known == nullptr ? -1 : known->PositionOf(object);
}

int ElementFile::SearchObjectFileIndex(const IdentifierKey& key) {
  ElementKnowledge* known = key.IsBlank() ? nullptr : Knowledge();
  return known == nullptr ? -1 : known->Find(file_, key);
}

int ElementFile::CountElementRecords(std::int64_t position) {
  // Objects have few records.
  constexpr std::int64_t kBufferSize = 4096;
  if (!Open()) return Fail(13459, {path_});
  if (!IsAtRecord(position)) return Fail(13456, {QString::number(position)});
  int count = 0;
  bool isObject = true;
  ForEachLine(
      file_, position,
      [&](std::int64_t, std::string_view line) {
        if (count == 0) isObject = MayBeginObject(line.front());
        if (!isObject || (count > 0 && KindOf(line) != RecordKind::Continuation)) return false;
        ++count;
        return true;
      },
      kBufferSize);
  if (!isObject) return Fail(13465);
  if (count == 0) return Fail(13462);
  return count;
}

ElementRecords ElementFile::ReadRecords(std::int64_t position) {
  ElementRecords records;
  while (Open()) {
    QByteArray record(kElementRecordSize, Qt::Uninitialized);
    const bool isWhole =
        file_.ReadAt(position, record.data(), kElementRecordSize) == kElementRecordSize;
    const bool belongs = records.empty() || KindOf(ViewOf(record)) == RecordKind::Continuation;
    if (!isWhole || !belongs) break;
    records.push_back(record);
    position += kElementRecordSize;
  }
  return records;
}

int ElementFile::WriteElement(int object, const ElementRecords& records) {
  if (object < 0) return AppendRecords(records) ? GetObjectCount() - 1 : -1;
  const std::int64_t position = GetFileSeekPosByNumber(object);
  if (position < 0) Fail(13455, {QString::number(position)});
  const int oldCount = position < 0 ? 0 : CountElementRecords(position);
  if (oldCount < 1 || !ReplaceRecords(position, oldCount, records)) return -1;
  return object;
}

bool ElementFile::ReplaceRecords(std::int64_t position, std::int64_t oldCount,
                                 const ElementRecords& records) {
  const std::int64_t newCount = static_cast<std::int64_t>(records.size());
  // What is left out is taken from the object's end: should this process die before it writes, the
  // object still begins with its first record and no other one gets the rest of it.
  const std::int64_t shiftedAt =
      newCount < oldCount ? position + newCount * kElementRecordSize : position;
  if (newCount != oldCount && !ShiftElementRecord(shiftedAt, newCount - oldCount)) return false;
  if (!OpenForWriting()) return false;
  if (!IsAtRecord(position)) return Fail(13457, {QString::number(position)});
  if (!WriteAt(position, records)) return false;
  const std::int64_t growth = std::max<std::int64_t>(newCount - oldCount, 0) * kElementRecordSize;
  if (knowledge_) {
    knowledge_->ObjectReplaced(position + growth, position, ViewOf(records.front()));
  }
  NoteChange();
  return true;
}

bool ElementFile::ReplaceUnchanged(std::int64_t position, const ElementRecords& before,
                                   const ElementRecords& after) {
  errorText_.clear();
  return ReadRecords(position) == before &&
         ReplaceRecords(position, static_cast<std::int64_t>(before.size()), after);
}

bool ElementFile::AppendRecords(const ElementRecords& records) {
  if (!OpenForWriting()) return false;
  const std::int64_t end = Size();
  if (!IsAtRecord(end) || !EndsWithLine(end)) return Fail(13458, {QString::number(0)});
  if (!WriteAt(end, records)) {
    // A part of a record would shift all that is added later.
    file_.Truncate(end);
    NoteChange();
    return false;
  }
  if (knowledge_) knowledge_->ObjectAdded(end, ViewOf(records.front()));
  NoteChange();
  return true;
}

/// Behind a line without an end a new record would not begin one.
bool ElementFile::EndsWithLine(std::int64_t end) const {
  char last = '\n';
  return end == 0 || (file_.ReadAt(end - 1, &last, 1) == 1 && last == '\n');
}

bool ElementFile::OpenForWriting() {
  if (Open() && isWritable_) return true;
  return Fail(13461, {path_});
}

bool ElementFile::WriteAt(std::int64_t position, const ElementRecords& records) {
  const QByteArray bytes = std::accumulate(
      records.begin() + 1, records.end(), records.front(),
      [](QByteArray joined, const QByteArray& record) { return std::move(joined) += record; });
  const bool isWritten = file_.WriteAt(position, ViewOf(bytes));
  const auto lines = static_cast<std::size_t>(bytes.count('\n'));
  if (!isWritten || lines != records.size()) ForgetKnowledge();
  return isWritten || Fail(13466);
}

/// What is known holds for the file as it is now.
void ElementFile::NoteChange() {
  identity_ = file_.Identity().value_or(FileIdentity{});
  if (knowledge_) knowledge_->HoldsFor(identity_);
}

bool ElementFile::ShiftElementRecord(std::int64_t position, std::int64_t delta) {
  if (delta == 0) return true;
  if (!IsAtRecord(position)) return Fail(13467, {path_, QString::number(position)});
  if (!Open()) return Fail(13460, {path_});
  return Rewrite({{position, std::max<std::int64_t>(-delta, 0), std::max<std::int64_t>(delta, 0)}});
}

bool ElementFile::Rewrite(const std::vector<RecordChange>& changes) {
  RewriteResult result = RewriteElementFile(path_, file_, changes);
  if (result.failedStep != RewriteStep::None) {
    errorText_ = MessageOf(result.failedStep, path_);
    if (result.failedStep != RewriteStep::Rename) return false;
    // It is no failure of this step, but of the next, which finds no file to open.
    Release();
    isGone_ = true;
    return true;
  }
  file_ = std::move(result.file);
  std::for_each(changes.rbegin(), changes.rend(), [this](const RecordChange& change) {
    const std::int64_t growth = (change.added - change.dropped) * kElementRecordSize;
    if (knowledge_) knowledge_->BytesShifted(change.position, growth);
  });
  NoteChange();
  return true;
}

bool ElementFile::RemoveObjects(std::vector<int> objects) {
  std::sort(objects.begin(), objects.end());
  objects.erase(std::unique(objects.begin(), objects.end()), objects.end());
  std::vector<RecordChange> changes;
  for (const int object : objects) {
    const std::int64_t position = GetFileSeekPosByNumber(object);
    if (position < 0) return Fail(13455, {QString::number(position)});
    const int count = CountElementRecords(position);
    if (count < 1) return false;
    changes.push_back({position, count, 0});
  }
  return changes.empty() || Rewrite(changes);
}

}  // namespace vyn
