// The commands that change nothing: count, list, show and check.
#include <algorithm>

#include "elements/element_knowledge.h"
#include "elements/line_scan.h"
#include "tools/vyn-eld/command.h"
#include "tools/vyn-eld/output.h"
#include "tools/vyn-eld/record_check.h"
#include "tools/vyn-eld/record_text.h"

namespace vyn::eld {
namespace {

using namespace Qt::StringLiterals;

int CannotBeRead(const QString& path) {
  PrintError(path + u": cannot be read"_s);
  return kFoundTrouble;
}

/// Opens a file, after completing a rewriting of it that was interrupted.
bool OpenFile(const QString& path, DiskFile& file) {
  if (file.Open(path, DiskFile::Mode::Read)) return true;
  return CompleteInterruptedRewrite(LinkTarget(path)) && file.Open(path, DiskFile::Mode::Read);
}

/// The fields in which a text is looked for, in the order in which a list shows them.
constexpr ElementField kListed[] = {ElementField::Identifier, ElementField::EnglishName,
                                    ElementField::JapaneseName};
constexpr ElementField kSearched[] = {
    ElementField::Identifier, ElementField::EnglishName, ElementField::JapaneseName,
    ElementField::ProvisionalDesignation, ElementField::PermanentDesignation};

bool Holds(std::string_view line, const QString& text) {
  return std::any_of(std::begin(kSearched), std::end(kSearched), [&](ElementField field) {
    return TextOf(line, FieldOf(field)).contains(text, Qt::CaseInsensitive);
  });
}

QJsonObject ListedJson(int object, std::string_view line) {
  QJsonObject json{{u"object"_s, object}};
  for (const ElementField field : kListed) {
    json.insert(NameOf(FieldOf(field)), TextOf(line, FieldOf(field)));
  }
  return json;
}

QString ListedLine(int object, std::string_view line) {
  QString text = QString::number(object);
  for (const ElementField field : kListed) text += u'\t' + TextOf(line, FieldOf(field));
  return text;
}

void PrintFields(std::string_view record) {
  for (const RecordField& field : kRecordFields) {
    if (IsShown(field)) {
      Print(NameOf(field).leftJustified(28, u' ') + TextOf(record, field));
    }
  }
}

void PrintPages(const ElementRecords& records) {
  for (std::size_t page = 0; page < records.size(); ++page) {
    if (records.size() > 1) Print(u"page %1 of %2"_s.arg(page + 1).arg(records.size()));
    PrintFields(ViewOf(records[page]));
  }
}

}  // namespace

int Count(const Words& words) {
  int exitCode = kDone;
  std::optional<JsonList> json;
  if (words.Has(u"json"_s)) json.emplace();
  for (const QString& path : words.plain) {
    DiskFile file;
    const int count = OpenFile(path, file) ? ElementKnowledge::CountObjects(file) : -1;
    if (count < 0) {
      exitCode = CannotBeRead(path);
    } else if (json) {
      json->Add({{u"file"_s, path}, {u"objects"_s, count}});
    } else {
      Print(words.plain.size() > 1 ? path + u": "_s + QString::number(count)
                                   : QString::number(count));
    }
  }
  return exitCode;
}

int List(const Words& words) {
  const QString path = words.plain.first();
  DiskFile file;
  if (!OpenFile(path, file)) return CannotBeRead(path);
  const QString text = words.Value(u"find"_s);
  std::optional<JsonList> json;
  if (words.Has(u"json"_s)) json.emplace();
  int object = 0;
  bool isFound = text.isEmpty();
  const bool isRead = ForEachLine(file, 0, [&](std::int64_t, std::string_view line) {
    if (!BeginsObject(line)) return true;
    if (text.isEmpty() || Holds(line, text)) {
      isFound = true;
      if (json) json->Add(ListedJson(object, line));
      if (!json) Print(ListedLine(object, line));
    }
    ++object;
    return true;
  });
  if (!isRead) return CannotBeRead(path);
  return isFound ? kDone : kFoundTrouble;
}

int Show(const Words& words) {
  const QString path = words.plain.first();
  ElementFile file(path);
  if (!file.Open()) return CannotBeRead(path);
  const int object = file.SearchObjectFileIndex(IdentifierKey::OfText(words.plain.at(1)));
  const ElementRecords records =
      object < 0 ? ElementRecords() : file.ReadRecords(file.GetFileSeekPosByNumber(object));
  if (records.empty()) {
    PrintError(path + u": no object "_s + words.plain.at(1));
    return kFoundTrouble;
  }
  if (!words.Has(u"json"_s)) {
    PrintPages(records);
    return kDone;
  }
  JsonList json;
  for (const QByteArray& record : records) json.Add(JsonOf(ViewOf(record)));
  return kDone;
}

int Check(const Words& words) {
  const QString path = words.plain.first();
  DiskFile file;
  if (!OpenFile(path, file)) return CannotBeRead(path);
  ProgressBar bar(file.OpenedIdentity().size);
  std::optional<JsonList> json;
  if (words.Has(u"json"_s)) json.emplace();
  int problems = 0;
  const auto report = [&](const RecordProblem& problem) {
    ++problems;
    bar.Clear();
    if (json) {
      json->Add({{u"record"_s, static_cast<qint64>(problem.record)},
                 {u"position"_s, static_cast<qint64>(problem.position)},
                 {u"reason"_s, problem.reason}});
    } else {
      Print(u"record %1 at byte %2: %3"_s.arg(problem.record)
                .arg(problem.position)
                .arg(problem.reason));
    }
  };
  const auto result = CheckRecords(file, report, [&](std::int64_t done) { bar.Show(done); });
  if (!result) return CannotBeRead(path);
  if (!json) {
    bar.Clear();
    Print(u"%1 records, %2 objects, %3 malformed"_s.arg(result->records)
              .arg(result->objects)
              .arg(problems));
    if (result->shortLines > 0) {
      Print(u"%1 records end early: the file can be imported from, but not into"_s.arg(
          result->shortLines));
    }
  }
  return problems > 0 ? kFoundTrouble : kDone;
}

}  // namespace vyn::eld
