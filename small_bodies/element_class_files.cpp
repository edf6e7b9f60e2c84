// The element file: new, edited, deleted and imported objects, and another file.
#include <QCoreApplication>
#include <QMessageBox>

#include "elements/element_import.h"
#include "elements/element_import_progress_dialog.h"
#include "elements/element_man.h"
#include "resources/string_table.h"
#include "siblings/common_dialogs/open_file.h"
#include "siblings/files/common_file.h"
#include "siblings/files/path_names.h"
#include "siblings/registry/registry.h"
#include "small_bodies/element_class_dialog.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

// Numbers of texts.
constexpr int kNothingToDelete = 13382, kDeleteQuestion = 13383;
constexpr int kImportFilter = 13386, kImportTitle = 13387, kCannotOpen = 13388;
constexpr int kImporting = 13389, kCannotWrite = 13390;
constexpr int kFileFilter = 13393, kFileTitle = 13394, kFileQuestion = 13395, kRejected = 13396;

const QString kExtension = QStringLiteral("eld");

void ShowMessage(QMessageBox::Icon icon, const QString& text, QWidget* parent,
                 const QString& caption) {
  QMessageBox box(icon, caption, text, QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

}  // namespace

CElementMan CDlgElementClass::ElementManager() {
  return CElementMan(declaration_.cometFlag, CommandHandle(), SecondHandle(), this);
}

/// Both engines hold the objects.
void CDlgElementClass::SendData(const QString& command) {
  Doit(command);
  if (SecondHandle() != nullptr) SecondHandle()->Doit(command);
}

void CDlgElementClass::ReadCount(bool keepsPosition) {
  ObjectList().SetValueCountTotal(CountObjects(), keepsPosition ? 1 : 0);
}

bool CDlgElementClass::Confirm(int message) {
  QMessageBox box(QMessageBox::Question, windowTitle(), LoadString(message),
                  QMessageBox::Ok | QMessageBox::Cancel, this);
  box.setDefaultButton(QMessageBox::Ok);
  return box.exec() == QMessageBox::Ok;
}

void CDlgElementClass::OnBnClickedElementNew() {
  if (!HasCorVyn() || ElementManager().AddNewObject() == 0) return;
  SendData(Path(u".DataAdd = True"));
  ReadCount(false);
  ObjectList().SetValueSelect(ObjectList().GetValueCountTotal() - 1, 1, 1);
  UpdateDispCountAndTotalCount();
  UpdateCtrl();
  ShowSky();
}

void CDlgElementClass::OnBnClickedElementEdit() {
  if (!HasCorVyn() || !HasSelection()) return;
  const qint64 selected = ObjectList().GetValueSelect();
  if (ElementManager().EditObject(static_cast<int>(selected)) == 0) return;
  SendData(ObjectPath(selected) + u".DataUpdate = True");
  UpdateCtrl();
  ShowSky();
  ObjectList().Update();
}

void CDlgElementClass::OnBnClickedElementDel() {
  if (!HasCorVyn()) return;
  if (!HasSelection()) return ShowInformation(LoadString(kNothingToDelete));
  if (!Confirm(kDeleteQuestion)) return;
  const qint64 selected = ObjectList().GetValueSelect();
  if (ElementManager().DeleteObject(static_cast<int>(selected)) == 0) return;
  SendData(ObjectPath(selected) + u".DataRemove = True");
  ReadCount(true);
  // A list that has become empty asks for no rows, at which the counts are told otherwise.
  if (ObjectList().GetValueCountTotal() == 0) UpdateDispCountAndTotalCount();
  UpdateCtrl();
  ShowSky();
}

/// Begins in the folder of the last time, and keeps the new one. Empty when the user cancelled.
QString CDlgElementClass::AskElementFile(int folderName, int title, int filter, bool forImport) {
  CRegistry registry(RegistryKey());
  const QString name = LoadString(folderName);
  QString chosen = AskOpenFile(this, {.title = LoadString(title),
                                      .filter = LoadString(filter),
                                      .folder = registry.Read(name),
                                      .defaultExtension = forImport ? QString() : kExtension,
                                      .mustExist = !forImport});
  if (!chosen.isEmpty()) registry.Write(name, CCommonFile::GetPathName(chosen));
  return chosen;
}

void CDlgElementClass::OnBnClickedElementImport() {
  if (!HasCorVyn()) return;
  const QString source =
      AskElementFile(declaration_.importFolderName, kImportTitle, kImportFilter, true);
  if (source.isEmpty()) return;
  if (!CCommonFile::DoesFileExist(source)) return ShowInformation(LoadString(kCannotOpen));
  CElementMan manager = ElementManager();
  const int count = manager.CountObjects(source);
  if (count == 0) {
    manager.CheckElementFile(source);
    return;
  }
  RunImport(source, count);
  ReadCount(false);
  UpdateDispCountAndTotalCount();
  UpdateCtrl();
  ShowSky();
}

void CDlgElementClass::RunImport(const QString& source, int count) {
  CDlgElementImportProgress progress(kImporting, this);
  progress.Create();
  const qint64 countBefore = ObjectList().GetValueCountTotal();
  qint32 flags = 0;
  for (int number = 0; number < count; ++number) {
    if (!progress.SetProgress(static_cast<int>(qint64{number} * 100 / count))) break;
    QCoreApplication::processEvents();
    if (!ImportOne(source, number, countBefore, &flags, &progress)) break;
  }
  progress.DestroyWindow();
}

/// False when the run is to end.
bool CDlgElementClass::ImportOne(const QString& source, int number, qint64 countBefore,
                                 qint32* flags, QWidget* messageParent) {
  CElementImport import(declaration_.cometFlag, CommandHandle());
  const int result = import.ImportElement(source, number, flags, this);
  if (result < -1) {
    ShowMessage(QMessageBox::Information, FilledString(kCannotWrite, {import.ErrorText()}),
                messageParent, windowTitle());
    return false;
  }
  // Spelled in capitals here, and only here.
  if (result >= countBefore) {
    SendData(Path(u".DataAdd = True"));
  } else if (result >= 0) {
    SendData(ObjectPath(result) + u".DataUpdate = TRUE");
  }
  return true;
}

void CDlgElementClass::OnBnClickedElementElmFile() {
  if (!HasCorVyn()) return;
  const QString previous = LongPathName(GetString(Path(u".File")));
  const QString chosen =
      AskElementFile(declaration_.elementFolderName, kFileTitle, kFileFilter, false);
  if (chosen.isEmpty() || !Confirm(kFileQuestion)) return;
  if (!UseElementFile(chosen, previous)) return;
  ShowSky();
  savedScript_.clear();
  ReadCount(true);
  UpdateDispCountAndTotalCount();
  InitCtrl();
}

/// False, with the previous file in use again, when the engine refuses the chosen one.
bool CDlgElementClass::UseElementFile(const QString& chosen, const QString& previous) {
  const auto assign = [this](const QString& file) {
    Doit(Path(u".File = \"") + ShortPathName(file).replace(u"\""_s, u"\"\""_s) + u'"');
  };
  assign(chosen);
  const QString used = GetString(Path(u".File"));
  if (IsSamePath(chosen, previous) || !IsSamePath(used, previous)) return true;
  assign(previous);
  ShowSky();
  ShowMessage(QMessageBox::Warning, LoadString(kRejected), this, windowTitle());
  return false;
}

}  // namespace vyn
