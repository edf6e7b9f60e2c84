#include "tools/vyn-drive/element_dialogs.h"

#include <QDateTime>

#include "elements/code_page_932.h"
#include "elements/element_import_blank_id_dialog.h"
#include "elements/element_import_duplicate_dialog.h"
#include "elements/element_man_edit_dialog.h"
#include "elements/element_writer.h"
#include "engine/element_table.h"
#include "tools/vyn-drive/output.h"
#include "tools/vyn-drive/script.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

std::vector<QByteArray> TemplatePages(Arguments& words) {
  const QString kind = words.Word(u"comet or minorplanet");
  if (kind != u"comet" && kind != u"minorplanet") throw ScriptError{u"unknown word: "_s + kind};
  return {
      TemplateRecord(kind == u"comet" ? 'C' : 'M', QDateTime::currentDateTimeUtc().date().year())};
}

std::vector<QByteArray> ReadPages(const QString& file, int object) {
  ElementTable table;
  if (!table.Load(file)) throw ScriptError{u"no element file can be read there: "_s + file};
  if (object >= table.Count()) {
    throw ScriptError{u"no such object: "_s + QString::number(object)};
  }
  const int first = static_cast<int>(table.FirstRecords()[static_cast<std::size_t>(object)]);
  std::vector<QByteArray> pages;
  for (int page = 0; page < table.PageCount(object); ++page) {
    const std::string_view record = table.Record(first + page);
    pages.emplace_back(record.data(), static_cast<qsizetype>(record.size()));
  }
  return pages;
}

void PrintPages(const std::vector<QByteArray>& pages) {
  for (const QByteArray& page : pages) {
    const std::string_view bytes(page.data(), static_cast<std::size_t>(page.size()));
    Print(u"page: "_s + Quoted(DecodeCodePage932(bytes).text));
  }
}

void PrintChoiceAfterOk(CDlgElementImportQuestion& question) {
  QObject::connect(&question, &QDialog::accepted, &question, [&question] {
    Print(u"choice: "_s + QString::number(question.Choice()) + u' ' +
          Quoted(question.NewIdentifier()));
  });
}

}  // namespace

std::unique_ptr<CVynDialog> MakeElementEditor(const DialogMaking& making, Arguments& words) {
  auto editor = std::make_unique<CDlgElementManEdit>(making.commandHandle, making.secondHandle,
                                                     making.parent);
  if (words.TakeIf(u"new")) {
    editor->SetPages(TemplatePages(words));
  } else {
    const QString file = words.Word(u"FILE or new");
    const int object = words.Count(u"N");
    editor->SetPages(ReadPages(file, object));
    editor->SetObjectNumber(object);
  }
  words.End();
  QObject::connect(editor.get(), &QDialog::accepted, editor.get(),
                   [&editor = *editor] { PrintPages(editor.Pages()); });
  return editor;
}

std::unique_ptr<CVynDialog> MakeBlankIdQuestion(const DialogMaking& making, Arguments& words) {
  auto question = std::make_unique<CDlgElementImportBlankID>(making.parent);
  question->SetName(words.Word(u"NAME"));
  words.End();
  PrintChoiceAfterOk(*question);
  return question;
}

std::unique_ptr<CVynDialog> MakeDuplicateQuestion(const DialogMaking& making, Arguments& words) {
  const bool imports = words.TakeIf(u"import");
  if (!imports && !words.TakeIf(u"update"))
    throw ScriptError{u"missing argument: import or update"_s};
  auto question = std::make_unique<CDlgElementImportDuplicate>(
      imports ? CDlgElementImportDuplicate::kImportTemplate
              : CDlgElementImportDuplicate::kUpdateTemplate,
      making.parent);
  question->SetIdentifier(words.Word(u"IDENTIFIER"));
  question->SetName(words.Word(u"NAME"));
  words.End();
  PrintChoiceAfterOk(*question);
  return question;
}

}  // namespace vyn::drive
