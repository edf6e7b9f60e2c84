#include "small_bodies/listed_dialog.h"

namespace vyn {
namespace {

/// A text of the same name answers for the path itself; its switch stands below it.
QString SwitchPath(const QString& path) {
  return path.endsWith(QLatin1String(".JapaneseName")) ? path + QStringView(u".Visible") : path;
}

}  // namespace

CDlgListedObjects::CDlgListedObjects(CCorVyn* commandHandle, CCorVyn* secondHandle,
                                     const ListDeclaration& declaration, QWidget* parent)
    : CDlgObjectList(commandHandle, secondHandle, declaration.base, parent),
      declaration_(declaration) {}

bool CDlgListedObjects::OnInitDialog() {
  GetScript(cancelScript_);
  CDlgObjectList::OnInitDialog();
  InitListBoxAObj();
  return true;
}

void CDlgListedObjects::AttachControls() {
  CDlgObjectList::AttachControls();
  AttachColorButton(declaration_.colorButton, &CDlgListedObjects::OnBnClickedColorFont);
}

int CDlgListedObjects::GetScript(QString& script) {
  script.clear();
  const int count = HasCorVyn() ? CountObjects() : 0;
  for (int row = 0; row < count; ++row) {
    for (const QStringView restored : declaration_.restoredPaths) {
      const QString path = ObjectPath(row) + restored;
      script += GetScriptVisible(path, IsVisible(SwitchPath(path)));
    }
  }
  return 1;
}

void CDlgListedObjects::OnCancel() {
  if (HasCorVyn()) {
    if (declaration_.sendsEmptyScript || !cancelScript_.isEmpty()) Doit(cancelScript_);
    ShowSky();
  }
  CDlgObjectList::OnCancel();
}

}  // namespace vyn
