#include "core_link/live_dialog.h"

#include <algorithm>

#include "core_link/statement.h"
#include "resources/dialog_template.h"

namespace vyn {

CVynLiveDialog::CVynLiveDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
                               const QString& registryKey, QWidget* parent)
    : CVynDialog(commandHandle, secondHandle, templateNumber, registryKey, parent) {
  ControlKind before = ControlKind::Group;
  for (const TemplateItem* item : ControlsOf(FindDialogTemplate(templateNumber))) {
    const bool startsGroup = item->kind == ControlKind::Radio && before != ControlKind::Radio;
    if (item->kind == ControlKind::Check || startsGroup) {
      values_.push_back({item->id, startsGroup, 0});
    }
    before = item->kind;
  }
  std::ranges::sort(values_, {}, &ControlValue::id);
}

CVynLiveDialog::~CVynLiveDialog() = default;

bool CVynLiveDialog::OnInitDialog() {
  CVynDialog::OnInitDialog();
  Init();
  UpdateControls();
  undoScript_.clear();
  GetScript(undoScript_);
  return true;
}

void CVynLiveDialog::DoDataExchange(CDataExchange& exchange) {
  for (ControlValue& control : values_) {
    if (control.isRadioGroup) {
      exchange.Radio(control.id, control.value);
    } else {
      exchange.Check(control.id, control.value);
    }
  }
}

int CVynLiveDialog::GetScript(QString& out) {
  if (!CheckTypedValues()) return 0;
  UpdateData(true);
  out.clear();
  WriteScript(out);
  return 1;
}

void CVynLiveDialog::Apply() {
  QString script;
  if (GetScript(script) != 0) Doit(script + QStringView(statement::kScriptRedraw));
}

void CVynLiveDialog::Undo() { Doit(undoScript_); }

void CVynLiveDialog::OnCancel() {
  Undo();
  CVynDialog::OnCancel();
}

QString CVynLiveDialog::ObserverBodyStatement(int bodyNumber) const {
  return statement::Visible(CommandHandle()->ObjNumToName(bodyNumber), true);
}

int CVynLiveDialog::Value(int id) const {
  const auto found = std::ranges::lower_bound(values_, id, {}, &ControlValue::id);
  Q_ASSERT(found != values_.end() && found->id == id);
  return found->value;
}

void CVynLiveDialog::SetValue(int id, int value) {
  const auto found = std::ranges::lower_bound(values_, id, {}, &ControlValue::id);
  Q_ASSERT(found != values_.end() && found->id == id);
  found->value = value;
}

}  // namespace vyn
