// One element file and the operations that read and change it in place. The file itself is never
// held in memory.
#pragma once

#include <memory>
#include <vector>

#include <QByteArray>
#include <QString>

#include "elements/element_knowledge.h"
#include "elements/element_rewrite.h"
#include "siblings/files/disk_file.h"

namespace vyn {

/// The records of one object, each of 417 bytes: the first and its continuation records.
using ElementRecords = std::vector<QByteArray>;

/// Objects are numbered from 0, positions are in bytes. An operation that fails leaves a message in
/// ErrorText() and, unless it says otherwise, the file as it was.
///
/// The file is opened by the first operation and stays open and locked against other processes that
/// change it through this class until Release(). Then an interrupted rewriting of it is completed
/// and a temporary file that was left is removed. A path that is a link means the file it leads to.
class ElementFile {
 public:
  explicit ElementFile(const QString& path);

  /// Opens and locks the file if it is not yet. False when it cannot be opened.
  bool Open();
  void Release();

  /// The number of objects; 0 when the file cannot be opened.
  int GetObjectCount();
  /// Where an object begins; -1 when there is no such object or the file cannot be opened.
  std::int64_t GetFileSeekPosByNumber(int object);
  /// The first object with this identifier; -1 for none and for a blank one.
  int SearchObjectFileIndex(const IdentifierKey& key);
  /// The number of records of the object that begins at a position; 0 on failure. A placeholder
  /// record counts as an object's first, and so does a line that begins with NUL.
  int CountElementRecords(std::int64_t position);
  /// The records from a position on, up to the next that continues no object. Empty when there is
  /// no whole record.
  ElementRecords ReadRecords(std::int64_t position);

  /// Writes an object in place of the one with this number, or behind the last for a number below
  /// 0. Returns its number, -1 on failure. A failure after room was made leaves the placeholder
  /// records in the file.
  int WriteElement(int object, const ElementRecords& records);
  /// Puts placeholder records at a position, or takes -`delta` records out there.
  bool ShiftElementRecord(std::int64_t position, std::int64_t delta);

  /// Writes records over the `oldCount` records, one or more, that begin at a position.
  bool ReplaceRecords(std::int64_t position, std::int64_t oldCount, const ElementRecords& records);
  /// The same where the records `before` still stand there, as they were read. False without a
  /// message where they do not.
  bool ReplaceUnchanged(std::int64_t position, const ElementRecords& before,
                        const ElementRecords& after);
  bool AppendRecords(const ElementRecords& records);
  /// Takes objects out, whatever their number, in one rewriting.
  bool RemoveObjects(std::vector<int> objects);

  /// What was learned about the file turned out to be wrong.
  void ForgetKnowledge();

  const QString& Path() const { return path_; }
  /// The open file, for reading.
  const DiskFile& File() const { return file_; }
  /// The size in bytes; 0 when the file cannot be opened.
  std::int64_t Size();
  const QString& ErrorText() const { return errorText_; }

 private:
  static constexpr int kLockTimeoutMs = 10'000;

  ElementKnowledge* Knowledge();
  bool OpenAndLock();
  void NoteChange();
  bool Rewrite(const std::vector<RecordChange>& changes);
  bool WriteAt(std::int64_t position, const ElementRecords& records);
  bool EndsWithLine(std::int64_t end) const;
  bool OpenForWriting();
  bool Fail(int message, std::initializer_list<QString> values = {});

  QString path_;
  DiskFile file_;
  FileIdentity identity_;  ///< of the open file as it was last left
  bool isWritable_ = false;
  bool isGone_ =
      false;  ///< this operation has deleted the file and could not put the new one there
  std::shared_ptr<ElementKnowledge> knowledge_;
  QString errorText_;
};

}  // namespace vyn
