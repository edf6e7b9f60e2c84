#include "elements/element_rewrite.h"

#include <algorithm>
#include <limits>
#include <memory>

#include "elements/element_record.h"
#include "elements/element_writer.h"
#include "siblings/files/common_file.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr std::int64_t kCopyAtOnce = 1 << 20;
constexpr std::int64_t kToTheEnd = std::numeric_limits<std::int64_t>::max();

/// Another process writes the temporary file for as long as a rewriting takes.
constexpr int kLockTimeoutMs = 10'000;

/// Writes the new file and remembers the first step that failed.
class Rewriting {
 public:
  Rewriting(const DiskFile& elements, DiskFile& temporary)
      : elements_(elements),
        temporary_(temporary),
        buffer_(std::make_unique_for_overwrite<char[]>(kCopyAtOnce)) {}

  RewriteStep Run(const std::vector<RecordChange>& changes) {
    for (const RecordChange& change : changes) {
      Copy(change.position, RewriteStep::WriteBefore);
      Drop(change.dropped);
      AddPlaceholders(change.added);
    }
    Copy(kToTheEnd, RewriteStep::WriteRest);
    Complete();
    return failed_;
  }

 private:
  bool IsRunning() const { return failed_ == RewriteStep::None; }
  void FailUnless(bool good, RewriteStep step) {
    if (!good && IsRunning()) failed_ = step;
  }

  void Copy(std::int64_t end, RewriteStep writeStep) {
    while (IsRunning() && readTo_ < end) {
      const std::int64_t wanted = std::min(end - readTo_, kCopyAtOnce);
      const std::int64_t count = elements_.ReadAt(readTo_, buffer_.get(), wanted);
      const bool mayEnd = end == kToTheEnd && count >= 0;
      FailUnless(count == wanted || mayEnd, RewriteStep::ReadBefore);
      Write({buffer_.get(), static_cast<std::size_t>(std::max<std::int64_t>(count, 0))}, writeStep);
      readTo_ += std::max<std::int64_t>(count, 0);
      if (count < wanted) break;
    }
  }

  void Drop(std::int64_t records) {
    const std::int64_t end = readTo_ + records * kElementRecordSize;
    char last = 0;
    const bool isThere = records == 0 || elements_.ReadAt(end - 1, &last, 1) == 1;
    FailUnless(isThere, RewriteStep::ReadDropped);
    readTo_ = end;
  }

  void AddPlaceholders(std::int64_t records) {
    const QByteArray placeholder = BlankRecord('N');
    for (std::int64_t i = 0; i < records && IsRunning(); ++i) {
      Write({placeholder.data(), kElementRecordSize}, RewriteStep::WritePlaceholders);
    }
  }

  /// The first byte comes last.
  void Write(std::string_view bytes, RewriteStep step) {
    if (!IsRunning() || bytes.empty()) return;
    if (written_ == 0) {
      firstByte_ = bytes.front();
      FailUnless(temporary_.WriteAt(0, std::string_view("\0", 1)), step);
      FailUnless(temporary_.WriteAt(1, bytes.substr(1)), step);
    } else {
      FailUnless(temporary_.WriteAt(written_, bytes), step);
    }
    written_ += static_cast<std::int64_t>(bytes.size());
  }

  void Complete() {
    if (!IsRunning()) return;
    FailUnless(temporary_.Sync(), RewriteStep::WriteRest);
    if (!IsRunning() || written_ == 0) return;
    const bool isComplete = temporary_.WriteAt(0, {&firstByte_, 1}) && temporary_.Sync();
    FailUnless(isComplete, RewriteStep::WriteRest);
  }

  const DiskFile& elements_;
  DiskFile& temporary_;
  std::unique_ptr<char[]> buffer_;
  std::int64_t readTo_ = 0;
  std::int64_t written_ = 0;
  char firstByte_ = '\0';
  RewriteStep failed_ = RewriteStep::None;
};

/// Whether the open file is still the one with this name.
bool HasName(const DiskFile& file, const QString& name) {
  const auto own = file.Identity();
  const auto named = DiskFile::IdentityOf(name);
  return own && named && own->IsSameFile(*named);
}

/// Opens the temporary file and locks it. What else has its name, a link, is no file to write to.
bool LockTemporary(const QString& name, DiskFile& temporary) {
  if (IsLink(name)) RemoveFile(name);
  // Another process may take the file away between opening and locking.
  do {
    const bool isLocked =
        temporary.Open(name, DiskFile::Mode::Create) && temporary.Lock(kLockTimeoutMs);
    if (!isLocked) return false;
  } while (!HasName(temporary, name));
  return true;
}

/// Opens the temporary file, empty and locked.
bool OpenTemporary(const QString& path, const DiskFile& elements, DiskFile& temporary) {
  const QString name = TemporaryPathOf(path);
  if (name == path || !LockTemporary(name, temporary)) return false;
  if (!temporary.Truncate(0)) {
    RemoveFile(name);
    return false;
  }
  temporary.TakePermissionsOf(elements);
  return true;
}

/// The element file as the last step of a rewriting finds it.
RewriteStep TakeItsName(const QString& path) {
  // Elsewhere a file that may not be written may not be deleted either.
  if (!IsWritable(path) || !RemoveFile(path)) return RewriteStep::Delete;
  const bool isRenamed = RenameFile(TemporaryPathOf(path), path);
  SyncFolderOf(path);
  return isRenamed ? RewriteStep::None : RewriteStep::Rename;
}

/// An empty one is the file whose only object was taken out: one that was just begun has the
/// element file beside it.
bool IsComplete(const DiskFile& temporary) {
  const auto identity = temporary.Identity();
  char first = '\0';
  return identity &&
         (identity->size == 0 || (temporary.ReadAt(0, &first, 1) == 1 && first != '\0'));
}

}  // namespace

QString TemporaryPathOf(const QString& path) { return CCommonFile::SetExtension(path, u".$$E"_s); }

RewriteResult RewriteElementFile(const QString& path, const DiskFile& elements,
                                 const std::vector<RecordChange>& changes) {
  RewriteResult result{RewriteStep::OpenTemporary};
  if (!OpenTemporary(path, elements, result.file)) {
    result.file.Close();
    return result;
  }
  result.failedStep = Rewriting(elements, result.file).Run(changes);
  if (result.failedStep == RewriteStep::None) result.failedStep = TakeItsName(path);
  if (result.failedStep == RewriteStep::None) return result;
  if (result.failedStep != RewriteStep::Rename) RemoveFile(TemporaryPathOf(path));
  result.file.Close();
  return result;
}

bool CompleteInterruptedRewrite(const QString& path) {
  const QString name = TemporaryPathOf(path);
  DiskFile temporary;
  const bool isLeft = !path.isEmpty() && name != path && !PathIsTaken(path) &&
                      temporary.Open(name, DiskFile::Mode::Change) &&
                      temporary.Lock(kLockTimeoutMs);
  // Whoever was writing it may have finished meanwhile.
  if (!isLeft || PathIsTaken(path) || !HasName(temporary, name)) return false;
  if (!IsComplete(temporary) || !RenameFile(name, path)) return false;
  SyncFolderOf(path);
  return true;
}

void RemoveLeftTemporary(const QString& path) {
  const QString name = TemporaryPathOf(path);
  DiskFile temporary;
  if (name == path || !temporary.Open(name, DiskFile::Mode::Change)) return;
  if (temporary.Lock(0) && HasName(temporary, name)) RemoveFile(name);
}

}  // namespace vyn
