#include "elements/element_importer.h"

#include <new>

#include "elements/code_page_932.h"
#include "elements/element_record.h"
#include "resources/string_table.h"

namespace vyn {
namespace {

constexpr int kSkipped = -1;
constexpr int kFailed = -2;

std::string_view ViewOf(const QByteArray& record) {
  return {record.data(), static_cast<std::size_t>(record.size())};
}

/// Blanks at both ends do not belong to an identifier; other white space does.
QString Trimmed(QStringView text) {
  while (text.startsWith(u' ')) text = text.sliced(1);
  while (text.endsWith(u' ')) text.chop(1);
  return text.toString();
}

/// Writes an identifier over the columns, closed with NUL where it does not fill them.
void PutIdentifier(ElementRecords& records, const QString& identifier) {
  const RecordField& field = FieldOf(ElementField::Identifier);
  QByteArray bytes = EncodeCodePage932(identifier, field.width);
  if (bytes.size() < field.width) bytes.append('\0');
  for (QByteArray& record : records) record.replace(field.offset, bytes.size(), bytes);
}

void BlankIdentifier(ElementRecords& records) {
  const RecordField& field = FieldOf(ElementField::Identifier);
  for (QByteArray& record : records) {
    record.replace(field.offset, field.width, QByteArray(field.width, ' '));
  }
}

}  // namespace

/// Most objects have one record: what is read with it tells that the next one continues nothing.
class ElementImporter::RecordWindow {
 public:
  explicit RecordWindow(const DiskFile& file) : file_(file) {}

  /// The bytes from a position on, as many as a record may have or the file still has. Nothing
  /// when they cannot be read.
  std::optional<std::string_view> At(std::int64_t position) {
    const bool isInside = position >= begin_ && position + kElementRecordSize <= begin_ + count_;
    if (!isInside) {
      begin_ = position;
      count_ = file_.ReadAt(position, bytes_.data(), static_cast<std::int64_t>(bytes_.size()));
    }
    if (count_ < 0) return std::nullopt;
    return std::string_view(bytes_.data(), static_cast<std::size_t>(count_))
        .substr(static_cast<std::size_t>(position - begin_), kElementRecordSize);
  }

 private:
  const DiskFile& file_;
  std::array<char, 2 * kElementRecordSize> bytes_;
  std::int64_t begin_ = 0;
  std::int64_t count_ = 0;
};

ElementImporter::ElementImporter(const QString& target, ImportDecisions& decisions)
    : target_(target), decisions_(decisions) {}

bool ElementImporter::Fail(int message, std::initializer_list<QString> values) {
  errorText_ = FilledString(message, values);
  return false;
}

int ElementImporter::DoImportElement(const QString& source, int object, int* flags,
                                     ImportMode mode) {
  Candidate candidate;
  if (!Examine(source, object, candidate)) return kFailed;
  if (candidate.isBlank) return ImportBlankIdRecord(candidate, flags);
  const bool mustAsk = candidate.exists && (mode == ImportMode::Import || candidate.isEdited);
  if (mustAsk) return ImportDuplicateRecord(candidate, flags, mode);
  return Write(candidate.foundIndex, candidate.records);
}

bool ElementImporter::Examine(const QString& source, int object, Candidate& candidate) {
  errorText_.clear();
  const std::int64_t position = ImportRecordSeekPos(source, object);
  return position >= 0 && ReadImportElements(source, position, candidate.records) &&
         CheckImportElement(candidate);
}

/// Stays open from one object to the next, while the path leads to the same unchanged file.
bool ElementImporter::OpenSource(const QString& path) {
  const auto now = DiskFile::IdentityOf(path);
  const bool isOpen = now && source_.IsOpen() && source_.OpenedIdentity() == *now;
  return isOpen || source_.Open(path, DiskFile::Mode::Read);
}

std::int64_t ElementImporter::ImportRecordSeekPos(const QString& source, int object) {
  const auto known = OpenSource(source) ? ElementKnowledge::Of(source_) : nullptr;
  if (!known) Fail(13445, {source});
  const std::int64_t position = known ? known->PositionOf(object) : -1;
  if (known && position < 0) {
    Fail(13446, {QString::number(known->ObjectCount()), QString::number(object), source});
  }
  return position;
}

bool ElementImporter::ReadImportElements(const QString& source, std::int64_t position,
                                         ElementRecords& records) {
  if (!OpenSource(source)) return Fail(13447, {source});
  RecordWindow window(source_);
  try {
    QByteArray record;
    for (;;) {
      const int consumed = ReadElement(window, position, record);
      if (consumed <= 0) break;
      const bool belongs = records.empty() || KindOf(ViewOf(record)) == RecordKind::Continuation;
      if (!belongs) return true;
      records.push_back(record);
      position += consumed;
    }
  } catch (const std::bad_alloc&) {
    FreeImportElements(records);
    return Fail(13448);
  }
  // What follows the object's last record need not be one.
  if (!records.empty()) errorText_.clear();
  return !records.empty();
}

/// Gives the memory back to whoever needs some next.
void ElementImporter::FreeImportElements(ElementRecords& records) {
  ElementRecords().swap(records);
}

/// Returns the bytes of the line, 0 when there is none left, -1 on failure. `record` holds the
/// record that was read before, if any, and takes the new one.
int ElementImporter::ReadElement(RecordWindow& window, std::int64_t position, QByteArray& record) {
  const auto bytes = window.At(position);
  if (!bytes) {
    Fail(13449, {QString::number(position)});
    return -1;
  }
  const PaddedRecord read = ReadPaddedRecord(*bytes);
  constexpr int kMalformed = 5;
  // The box shows where the reading was when it met the malformed record.
  if (read.failedStep == kMalformed) decisions_.ShowPlain(DecodeCodePage932(ViewOf(record)).text);
  if (read.failedStep != 0) {
    Fail(13449 + read.failedStep);
    return read.failedStep == 1 ? 0 : -1;
  }
  record = QByteArray(read.bytes.data(), kElementRecordSize);
  return read.consumed;
}

bool ElementImporter::CheckImportElement(Candidate& candidate) {
  if (!FindInTarget(candidate)) return false;
  if (candidate.foundIndex < 0 || candidate.foundKey == candidate.key) return true;
  // Another program has changed the file faster than its time of change tells.
  target_.ForgetKnowledge();
  return FindInTarget(candidate);
}

bool ElementImporter::FindInTarget(Candidate& candidate) {
  candidate.key = IdentifierKey::OfLine(ViewOf(candidate.records.front()));
  candidate.isBlank = candidate.exists = candidate.key.IsBlank();
  if (candidate.isBlank) return true;
  candidate.foundIndex = target_.SearchObjectFileIndex(candidate.key);
  candidate.exists = candidate.foundIndex >= 0;
  if (!candidate.exists) return true;
  QByteArray record;
  if (!GetFirstElementRecord(candidate.foundIndex, record)) return false;
  candidate.isEdited = FieldBytes(ViewOf(record), ElementField::EditedMark) == "*";
  candidate.foundKey = IdentifierKey::OfLine(ViewOf(record));
  return true;
}

bool ElementImporter::GetFirstElementRecord(int object, QByteArray& record) {
  RecordWindow window(target_.File());
  return ReadElement(window, target_.GetFileSeekPosByNumber(object), record) > 0;
}

int ElementImporter::ImportBlankIdRecord(Candidate& candidate, int* flags) {
  if (*flags & import_flag::kSkipAllBlanks) return kSkipped;
  const QString name = FieldText(ViewOf(candidate.records.front()), ElementField::JapaneseName);
  for (;;) {
    // A person may think for long, and others may want the file.
    target_.Release();
    const ImportDecisions::Answer answer = decisions_.AskBlankIdentifier(name);
    if (answer.choice != 2) {
      *flags |= answer.choice == 1 ? import_flag::kSkipAllBlanks : import_flag::kBlankSkipped;
      return kSkipped;
    }
    const QString identifier = Trimmed(answer.newIdentifier);
    const IdentifierKey key = IdentifierKey::OfText(identifier);
    if (key.IsBlank()) {
      decisions_.ShowInformation(LoadString(13342));
      continue;
    }
    const bool isTaken = target_.SearchObjectFileIndex(key) >= 0;
    // On purpose the question is not put again, as it is for a duplicate, and the button's number
    // is the result.
    if (isTaken) return decisions_.ShowInformation(LoadString(13474));
    return AppendRenamed(candidate, identifier, flags);
  }
}

int ElementImporter::ImportDuplicateRecord(Candidate& candidate, int* flags, ImportMode mode) {
  if (*flags & import_flag::kOverwriteAllDuplicates) return Overwrite(candidate);
  if (*flags & import_flag::kSkipAllDuplicates) return kSkipped;
  const std::string_view record = ViewOf(candidate.records.front());
  const QString shownIdentifier = FieldText(record, ElementField::Identifier);
  const QString name = FieldText(record, ElementField::JapaneseName);
  for (;;) {
    target_.Release();
    const ImportDecisions::Answer answer = decisions_.AskDuplicate(mode, shownIdentifier, name);
    switch (answer.choice) {
      case 1:
        *flags |= import_flag::kSkipAllDuplicates;
        return kSkipped;
      case 3:
        *flags |= import_flag::kOverwriteAllDuplicates;
        [[fallthrough]];
      case 2:
        *flags |= import_flag::kDuplicateOverwritten;
        return Overwrite(candidate);
      case 4:
        break;
      default:
        *flags |= import_flag::kDuplicateSkipped;
        return kSkipped;
    }
    *flags |= import_flag::kDuplicateRenamed;
    const QString identifier = Trimmed(answer.newIdentifier);
    const IdentifierKey key = IdentifierKey::OfText(identifier);
    if (!key.IsBlank() && target_.SearchObjectFileIndex(key) < 0) {
      BlankIdentifier(candidate.records);
      return AppendRenamed(candidate, identifier, flags);
    }
    decisions_.ShowInformation(LoadString(key.IsBlank() ? 13342 : 13474));
  }
}

/// The file may have changed while a person was asked.
int ElementImporter::Overwrite(const Candidate& candidate) {
  return Write(target_.SearchObjectFileIndex(candidate.key), candidate.records);
}

int ElementImporter::AppendRenamed(Candidate& candidate, const QString& identifier, int* flags) {
  PutIdentifier(candidate.records, identifier);
  const int result = Write(-1, candidate.records);
  if (result >= 0) *flags |= import_flag::kWrittenUnderNewIdentifier;
  return result;
}

int ElementImporter::Write(int object, const ElementRecords& records) {
  const int result = target_.WriteElement(object, records);
  if (result >= 0) return result;
  errorText_ = target_.ErrorText();
  return kFailed;
}

}  // namespace vyn
