// Copies objects from one element file into another, and refreshes objects that are already there.
// What a person must decide is asked through an interface; the windows are one implementation of
// it, the command line another.
#pragma once

#include <QString>

#include "elements/element_file.h"

namespace vyn {

enum class ImportMode {
  Import,  ///< an object that is already there is a duplicate
  Update,  ///< it is replaced, but not silently when a person has edited it
};

/// The decisions of one run. The caller keeps them in a word that starts at 0.
namespace import_flag {
inline constexpr int kDuplicateSkipped = 0x001;
inline constexpr int kDuplicateOverwritten = 0x002;
inline constexpr int kDuplicateRenamed = 0x004;
inline constexpr int kSkipAllDuplicates = 0x008;
inline constexpr int kOverwriteAllDuplicates = 0x010;
inline constexpr int kBlankSkipped = 0x100;
inline constexpr int kSkipAllBlanks = 0x200;
inline constexpr int kWrittenUnderNewIdentifier = 0x400;
}  // namespace import_flag

/// Who decides what the files do not tell.
class ImportDecisions {
 public:
  struct Answer {
    int choice = 0;  ///< the number of the choice in its dialog, from 0
    QString newIdentifier;
  };

  virtual ~ImportDecisions() = default;

  /// An object without an identifier: 0 skip it, 1 skip all such, 2 give it the new identifier.
  virtual Answer AskBlankIdentifier(const QString& name) = 0;
  /// An object that is already there: 0 skip it, 1 skip all such, 2 overwrite it, 3 overwrite all
  /// such, 4 give it the new identifier.
  virtual Answer AskDuplicate(ImportMode mode, const QString& identifier, const QString& name) = 0;
  /// Tells something and waits; returns the number of the button that was pressed, 1 for OK.
  virtual int ShowInformation(const QString& text) = 0;
  /// Shows a text as it stands, without a title of its own or an icon.
  virtual void ShowPlain(const QString& text) = 0;
};

/// One importing operation on one target file; a fresh one serves each object.
class ElementImporter {
 public:
  /// What the files say about one object of the source, before anybody has decided.
  struct Candidate {
    ElementRecords records;
    IdentifierKey key;
    int foundIndex = -1;  ///< the target's object with the same identifier
    IdentifierKey foundKey;
    bool isBlank = false;
    bool exists = false;    ///< there is one, or the identifier is blank
    bool isEdited = false;  ///< the target's object was edited by a person
  };

  ElementImporter(const QString& target, ImportDecisions& decisions);

  /// Imports the object with this number, from 0, of the source. Returns its number in the target,
  /// -1 when it was skipped by choice, -2 with ErrorText() on failure. One case returns a number
  /// though nothing was written: a new identifier for a blank one that is in use already gives the
  /// button of the message box that says so.
  int DoImportElement(const QString& source, int object, int* flags, ImportMode mode);

  /// The first steps of DoImportElement alone, which change nothing. False with ErrorText() on
  /// failure.
  bool Examine(const QString& source, int object, Candidate& candidate);

  /// The file that is changed.
  ElementFile& Target() { return target_; }
  const QString& ErrorText() const { return errorText_; }

 private:
  class RecordWindow;

  bool OpenSource(const QString& path);
  std::int64_t ImportRecordSeekPos(const QString& source, int object);
  bool ReadImportElements(const QString& source, std::int64_t position, ElementRecords& records);
  static void FreeImportElements(ElementRecords& records);
  int ReadElement(RecordWindow& window, std::int64_t position, QByteArray& record);
  bool CheckImportElement(Candidate& candidate);
  bool FindInTarget(Candidate& candidate);
  bool GetFirstElementRecord(int object, QByteArray& record);
  int ImportBlankIdRecord(Candidate& candidate, int* flags);
  int ImportDuplicateRecord(Candidate& candidate, int* flags, ImportMode mode);
  int Overwrite(const Candidate& candidate);
  int AppendRenamed(Candidate& candidate, const QString& identifier, int* flags);
  int Write(int object, const ElementRecords& records);
  bool Fail(int message, std::initializer_list<QString> values = {});

  DiskFile source_;
  ElementFile target_;
  ImportDecisions& decisions_;
  QString errorText_;
};

}  // namespace vyn
