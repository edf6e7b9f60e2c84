// The command import: the import engine with the decisions that the command line makes.
#include <algorithm>
#include <unordered_map>

#include "elements/element_importer.h"
#include "resources/string_table.h"
#include "tools/vyn-eld/command.h"
#include "tools/vyn-eld/output.h"
#include "tools/vyn-eld/record_text.h"

namespace vyn::eld {
namespace {

using namespace Qt::StringLiterals;

/// The command line has decided before the run, so nothing is left to ask.
class SettledDecisions final : public ImportDecisions {
 public:
  Answer AskBlankIdentifier(const QString&) override { return {}; }
  Answer AskDuplicate(ImportMode, const QString&, const QString&) override { return {}; }
  int ShowInformation(const QString&) override { return 1; }
  /// The record before a malformed one tells nothing that its number does not.
  void ShowPlain(const QString&) override {}
};

struct KeyHash {
  std::size_t operator()(const IdentifierKey& key) const { return key.Hash(); }
};

/// One run over the objects of a source.
class ImportRun {
 public:
  explicit ImportRun(const Words& words)
      : source_(words.plain.at(0)),
        target_(words.plain.at(1)),
        mode_(words.Has(u"update"_s) ? ImportMode::Update : ImportMode::Import),
        overwrites_(words.Value(u"duplicate"_s) == u"overwrite"),
        kind_(words.Value(u"kind"_s)),
        flags_(import_flag::kSkipAllBlanks | (overwrites_ ? import_flag::kOverwriteAllDuplicates
                                                          : import_flag::kSkipAllDuplicates)) {
    if (words.Has(u"json"_s)) json_.emplace();
    isDryRun_ = words.Has(u"dry-run"_s);
  }

  int Run() {
    DiskFile file;
    const auto known =
        file.Open(source_, DiskFile::Mode::Read) ? ElementKnowledge::Of(file) : nullptr;
    if (!known || known->ObjectCount() == 0) {
      PrintError(source_ + (known ? u": holds no object"_s : u": cannot be read"_s));
      return kFoundTrouble;
    }
    targetCount_ = importer_.Target().GetObjectCount();
    const int count = known->ObjectCount();
    ProgressBar bar(count);
    for (int object = 0; object < count && !isStopped_; ++object) {
      bar.Show(object);
      if (IsOfKind(file, known->PositionOf(object))) Take(object, bar);
    }
    bar.Clear();
    return Finish();
  }

 private:
  bool IsOfKind(const DiskFile& file, std::int64_t position) {
    if (kind_.isEmpty()) return true;
    char letter = '\0';
    file.ReadAt(position, &letter, 1);
    const bool isOfKind = (letter == 'C') == (kind_ == u"comet");
    skipped_ += isOfKind ? 0 : 1;
    return isOfKind;
  }

  void Take(int object, ProgressBar& bar) {
    // The target stays open and locked for some objects, but not so long that others who wait for
    // it would give up.
    constexpr int kObjectsAtOnce = 64;
    if (object % kObjectsAtOnce == 0) importer_.Target().Release();
    if (isDryRun_) {
      bar.Clear();
      Foretell(object, importer_);
      return;
    }
    const int result = importer_.DoImportElement(source_, object, &flags_, mode_);
    if (result >= targetCount_) {
      ++added_;
      targetCount_ = result + 1;
    } else if (result >= 0) {
      ++overwritten_;
    } else if (result == -1) {
      ++skipped_;
    } else {
      bar.Clear();
      Fail(object, importer_);
    }
  }

  void Fail(int object, ElementImporter& importer) {
    ++failed_;
    PrintError(u"%1: object %2: %3"_s.arg(source_).arg(object).arg(OneLine(importer.ErrorText())));
    // What keeps one object from being written keeps the others too.
    isStopped_ = !importer.Target().ErrorText().isEmpty();
  }

  static QString OneLine(QString text) { return text.replace(u"\r\n"_s, u" "_s); }

  /// Says what would happen to an object, and counts it.
  void Foretell(int object, ElementImporter& importer) {
    ElementImporter::Candidate candidate;
    if (!importer.Examine(source_, object, candidate)) {
      ++failed_;
      return Tell(object, {}, u"fail"_s, OneLine(importer.ErrorText()));
    }
    const QByteArray& record = candidate.records.front();
    const auto before = foretold_.find(candidate.key);
    const bool isTakenBefore = before != foretold_.end();
    const bool isEdited = isTakenBefore ? before->second : candidate.isEdited;
    const bool isFree = mode_ == ImportMode::Update && !isEdited;
    if (candidate.isBlank) {
      ++skipped_;
      Tell(object, record, u"skip"_s, u"it has no identifier"_s);
    } else if ((candidate.exists || isTakenBefore) && !overwrites_ && !isFree) {
      ++skipped_;
      Tell(object, record, u"skip"_s,
           isEdited ? u"a person has edited it"_s : u"it is there already"_s);
    } else if (!DiskFile().Open(LinkTarget(target_), DiskFile::Mode::Change)) {
      ++failed_;
      isStopped_ = true;
      Tell(object, record, u"fail"_s, target_ + u" cannot be written"_s);
    } else {
      foretold_[candidate.key] = FieldBytes(ViewOf(record), ElementField::EditedMark) == "*";
      ForetellWriting(object, candidate, isTakenBefore);
    }
  }

  void ForetellWriting(int object, const ElementImporter::Candidate& candidate,
                       bool isTakenBefore) {
    const QByteArray& record = candidate.records.front();
    if (isTakenBefore) {
      ++overwritten_;
      Tell(object, record, u"overwrite"_s, u"what an object before it brings"_s);
    } else if (candidate.exists) {
      ++overwritten_;
      TellDifferences(object, candidate, importer_.Target());
    } else {
      ++added_;
      Tell(object, record, u"add"_s, {});
    }
  }

  void TellDifferences(int object, const ElementImporter::Candidate& candidate,
                       ElementFile& target) {
    const std::int64_t position = target.GetFileSeekPosByNumber(candidate.foundIndex);
    const ElementRecords old = position < 0 ? ElementRecords() : target.ReadRecords(position);
    QJsonArray changes;
    if (old.size() != candidate.records.size() && !old.empty()) {
      changes += Change(u"records"_s, QString::number(old.size()),
                        QString::number(candidate.records.size()));
    }
    for (std::size_t page = 0; page < std::min(old.size(), candidate.records.size()); ++page) {
      AddChanges(ViewOf(old[page]), ViewOf(candidate.records[page]), page, changes);
    }
    Tell(object, candidate.records.front(), u"overwrite"_s, {}, changes);
  }

  static QJsonObject Change(const QString& field, const QString& before, const QString& after) {
    return {{u"field"_s, field}, {u"old"_s, before}, {u"new"_s, after}};
  }

  static void AddChanges(std::string_view before, std::string_view after, std::size_t page,
                         QJsonArray& changes) {
    const QString prefix = page == 0 ? QString() : u"page %1 "_s.arg(page + 1);
    for (const RecordField& field : kRecordFields) {
      const QString oldText = TextOf(before, field);
      const QString newText = TextOf(after, field);
      if (IsShown(field) && oldText != newText) {
        changes += Change(prefix + NameOf(field), oldText, newText);
      }
    }
  }

  void Tell(int object, const QByteArray& record, const QString& action, const QString& reason,
            const QJsonArray& changes = {}) {
    const QString identifier = IdentifierOf(ViewOf(record));
    const QString name = TextOf(ViewOf(record), FieldOf(ElementField::EnglishName));
    if (json_) {
      QJsonObject line{{u"object"_s, object}, {u"identifier"_s, identifier}, {u"action"_s, action}};
      if (!reason.isEmpty()) line.insert(u"reason"_s, reason);
      if (action == u"overwrite") line.insert(u"changes"_s, changes);
      return json_->Add(line);
    }
    QString line = u"%1\t%2\t%3\t%4"_s.arg(QString::number(object), identifier, name, action);
    if (!reason.isEmpty()) line += u": "_s + reason;
    if (action == u"overwrite" && reason.isEmpty() && changes.isEmpty())
      line += u": no difference"_s;
    Print(line);
    for (const auto& change : changes) {
      Print(u"\t%1: \"%2\" -> \"%3\""_s.arg(change[u"field"].toString(), change[u"old"].toString(),
                                            change[u"new"].toString()));
    }
  }

  int Finish() {
    const QString summary = u"added %1, overwritten %2, skipped %3, failed %4"_s.arg(added_)
                                .arg(overwritten_)
                                .arg(skipped_)
                                .arg(failed_);
    if (!json_) Print(summary);
    if (json_ && !isDryRun_) json_->Add(Counts());
    return failed_ > 0 ? kFoundTrouble : kDone;
  }

  QJsonObject Counts() const {
    return {{u"added"_s, added_},
            {u"overwritten"_s, overwritten_},
            {u"skipped"_s, skipped_},
            {u"failed"_s, failed_}};
  }

  const QString source_;
  const QString target_;
  const ImportMode mode_;
  const bool overwrites_;
  const QString kind_;
  bool isDryRun_ = false;
  SettledDecisions decisions_;
  ElementImporter importer_{target_, decisions_};
  std::optional<JsonList> json_;
  int flags_;
  int targetCount_ = 0;
  bool isStopped_ = false;
  /// The objects that a dry run would have written by now, and whether a person edited them.
  std::unordered_map<IdentifierKey, bool, KeyHash> foretold_;
  int added_ = 0;
  int overwritten_ = 0;
  int skipped_ = 0;
  int failed_ = 0;
};

}  // namespace

int Import(const Words& words) { return ImportRun(words).Run(); }

int Delete(const Words& words) {
  const QString path = words.plain.first();
  ElementFile file(path);
  if (!file.Open()) {
    PrintError(path + u": cannot be read"_s);
    return kFoundTrouble;
  }
  int exitCode = kDone;
  std::vector<int> objects;
  for (const QString& identifier : words.plain.sliced(1)) {
    const int object = file.SearchObjectFileIndex(IdentifierKey::OfText(identifier));
    // One that is named twice is taken out once.
    const bool isNew = std::find(objects.begin(), objects.end(), object) == objects.end();
    if (object >= 0 && isNew) objects.push_back(object);
    if (object >= 0) continue;
    PrintError(path + u": no object "_s + identifier);
    exitCode = kFoundTrouble;
  }
  if (!file.RemoveObjects(objects)) {
    PrintError(path + u": "_s + file.ErrorText());
    return kFoundTrouble;
  }
  Print(u"deleted %1"_s.arg(objects.size()));
  return exitCode;
}

}  // namespace vyn::eld
