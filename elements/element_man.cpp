#include "elements/element_man.h"

#include <QApplication>
#include <QDateTime>
#include <QMessageBox>

#include "core_link/wait_cursor.h"
#include "elements/data_pointers.h"
#include "elements/element_file.h"
#include "elements/element_kind.h"
#include "elements/element_man_edit_dialog.h"
#include "elements/element_record.h"
#include "elements/element_writer.h"
#include "resources/string_table.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// What the editor gave, as it stands in a file: an object that a person has changed.
ElementRecords AsEdited(ElementRecords pages) {
  pages.front()[FieldOf(ElementField::EditedMark).offset] = '*';
  for (std::size_t page = 1; page < pages.size(); ++page) pages[page][0] = '+';
  return pages;
}

}  // namespace

CElementMan::CElementMan(int cometFlag, CCorVyn* engine, CCorVyn* secondEngine, QWidget* parent)
    : kind_(ElementKindWord(cometFlag)),
      engine_(engine),
      secondEngine_(secondEngine),
      parent_(parent) {}

QWidget* CElementMan::Window() const {
  return parent_ != nullptr ? parent_ : QApplication::activeWindow();
}

void CElementMan::ShowMessage(int icon, const QString& text) {
  QWidget* window = Window();
  const QString caption = window == nullptr ? QString() : window->window()->windowTitle();
  QMessageBox box(static_cast<QMessageBox::Icon>(icon), caption, text, QMessageBox::Ok, window);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

int CElementMan::AddNewObject() {
  const int year = QDateTime::currentDateTimeUtc().date().year();
  CDlgElementManEdit editor(engine_, secondEngine_, Window());
  editor.SetPages({TemplateRecord(kind_ == u"COMET" ? 'C' : 'M', year)});
  editor.SetObjectNumber(-1);
  if (editor.DoModal() != 1) return 0;
  return ChangeFile(AskElementFile(engine_, kind_), [&](ElementFile& file) {
    return file.AppendRecords(AsEdited(editor.Pages()));
  });
}

int CElementMan::EditObject(int object) {
  ElementDataPointers index;
  QString path;
  std::int64_t position = 0;
  ElementRecords before;
  if (GetElementIndex(index) && index.Has(object)) {
    path = AskElementFile(engine_, kind_);
    position = index.FirstRecordOf(object) * kElementRecordSize;
    before = ElementFile(path).ReadRecords(position);
  }
  if (before.empty()) {
    ShowMessage(QMessageBox::Information, LoadString(13350));
    return 0;
  }
  CDlgElementManEdit editor(engine_, secondEngine_, Window());
  editor.SetPages(before);
  editor.SetObjectNumber(object);
  if (editor.DoModal() != 1 || editor.Pages() == before) return 0;
  // The file may have changed while the user edited.
  return ChangeFile(path, [&](ElementFile& file) {
    return file.ReplaceUnchanged(position, before, AsEdited(editor.Pages()));
  });
}

int CElementMan::DeleteObject(int object) {
  ElementDataPointers index;
  if (!GetElementIndex(index)) {
    ShowMessage(QMessageBox::Information, LoadString(13350));
    return 0;
  }
  return ChangeFile(AskElementFile(engine_, kind_), [&](ElementFile& file) {
    // The engine's numbers are those of the file only while the file is what the engine has loaded.
    return index.Has(object) && file.Size() / kElementRecordSize == index.recordCount &&
           file.ShiftElementRecord(index.FirstRecordOf(object) * kElementRecordSize,
                                   -index.RecordCountOf(object));
  });
}

/// 1 when the change succeeds; what fails is told, so that nobody takes it for done.
int CElementMan::ChangeFile(const QString& path, const std::function<bool(ElementFile&)>& change) {
  ElementFile file(path);
  const bool isChanged = [&] {
    const WaitCursor wait;
    return change(file);
  }();
  if (!isChanged) ShowMessage(QMessageBox::Information, LoadString(13351));
  return isChanged ? 1 : 0;
}

int CElementMan::CountObjects(const QString& path) {
  DiskFile file;
  if (!file.Open(path, DiskFile::Mode::Read)) return 0;
  const auto known = ElementKnowledge::Of(file);
  return known ? known->ObjectCount() : 0;
}

int CElementMan::CheckElementFile(const QString& path) {
  const QString kindName = LoadString(kind_ == u"COMET" ? 13356 : 13357);
  if (AskElementFile(engine_, kind_).isEmpty()) {
    const QString shownPath = path.isEmpty() ? LoadString(13358) : path;
    ShowMessage(QMessageBox::Warning, FilledString(13352, {kindName, shownPath}));
    return 0;
  }
  DiskFile file;
  const bool isOpen = file.Open(path, DiskFile::Mode::Read);
  const bool isEmpty = isOpen && file.OpenedIdentity().size == 0;
  const int message = !isOpen ? 13353 : isEmpty ? 13355 : 13354;
  ShowMessage(QMessageBox::Warning, FilledString(message, {kindName, path}));
  return isEmpty ? 1 : 0;
}

bool CElementMan::GetElementIndex(ElementDataPointers& index) {
  if (engine_ == nullptr) return false;
  const auto read = ReadDataPointers(engine_->Doit(u"? Solar."_s + kind_ + u".DataPtr"_s));
  if (read) index = *read;
  return read.has_value();
}

bool CElementMan::GetElementIndex(std::int64_t* recordCount, const char** elements,
                                  std::int64_t* objectCount, const std::uint32_t** firstRecords) {
  ElementDataPointers index;
  if (!GetElementIndex(index)) return false;
  *recordCount = index.recordCount;
  *elements = index.records;
  *objectCount = index.objectCount;
  *firstRecords = index.firstRecords;
  return true;
}

}  // namespace vyn
