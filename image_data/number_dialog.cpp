#include "image_data/number_dialog.h"

#include "image_data/image_file_types.h"
#include "resources/string_table.h"
#include "siblings/common_dialogs/open_file.h"
#include "siblings/controls/controls.h"

namespace vyn {
namespace {

std::vector<NumberField> Joined(std::initializer_list<std::span<const NumberField>> parts) {
  std::vector<NumberField> fields;
  for (const auto& part : parts) fields.insert(fields.end(), part.begin(), part.end());
  return fields;
}

}  // namespace

CNumberDialog::CNumberDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
                             const QString& registryKey,
                             std::initializer_list<std::span<const NumberField>> fields,
                             QWidget* parent)
    : CVynDialog(commandHandle, secondHandle, templateNumber, registryKey, parent),
      fields_(Joined(fields)) {}

/// An edit with the keyboard focus tells that its typing has ended even as it is deleted.
CNumberDialog::~CNumberDialog() {
  for (QLineEdit* edit : findChildren<QLineEdit*>()) edit->disconnect(this);
}

bool CNumberDialog::OnInitDialog() {
  CVynDialog::OnInitDialog();
  Push();
  return true;
}

void CNumberDialog::AttachControls() {
  CVynDialog::AttachControls();
  for (const NumberField& field : fields_) AttachNumber(field);
}

/// What is typed as altitude waits for the next change of something else.
void CNumberDialog::AttachNumber(const NumberField& field) {
  OnSpin(field.spin, [this, &field](int delta) { OnDeltaposSpn(field, delta); });
  if (field.group == FieldGroup::Altitude) return;
  OnTextChanged(field.edit, [this, &field] { OnEnChange(field); });
  connect(static_cast<QLineEdit*>(GetDlgItem(field.edit)), &QLineEdit::editingFinished, this,
          &CNumberDialog::FinishTyping);
}

void CNumberDialog::DoDataExchange(CDataExchange& exchange) {
  for (const NumberField& field : fields_) {
    if (!exchange.Saving() && KeepsItsText(field)) continue;
    QString text = field.Text(record_);
    exchange.Text(field.edit, text);
    if (exchange.Saving()) field.SetText(record_, text);
  }
}

void CNumberDialog::OnEnChange(const NumberField& field) {
  if (unfinished_ == &field) unfinished_ = nullptr;
  Pull();
  typed_ = static_cast<CVynEdit*>(GetDlgItem(field.edit))->IsBeingTyped() ? &field : nullptr;
  unfinished_ = field.Value(record_) < field.minimum ? typed_ : nullptr;
  ClampTyped(field);
  Push();
  OnNumberTyped(field);
  typed_ = nullptr;
}

/// Who types "0.2" must not find "0.000" after the first key: the text stays as long as it means
/// the value, and also while it is below its range, which what is typed next may mend. What is
/// pasted is whole.
bool CNumberDialog::KeepsItsText(const NumberField& field) const {
  if (&field != typed_) return false;
  DataSetRecord shown = record_;
  field.SetText(shown, EditText(field.edit));
  return &field == unfinished_ || field.Text(shown) == field.Text(record_);
}

/// A number that was not typed keeps what the engine said of it, be it out of range.
void CNumberDialog::ClampTyped(const NumberField& field) {
  field.SetValue(record_, field.Clamped(field.Value(record_)));
  if (field.group == FieldGroup::Date) FixDay(record_);
}

void CNumberDialog::OnDeltaposSpn(const NumberField& field, int delta) {
  Pull();
  field.Step(record_, delta);
  FixDay(record_);
  Push();
  OnNumberStepped(field);
}

void CNumberDialog::FinishTyping() {
  if (unfinished_ == nullptr) return;
  Pull();
  Push();
}

void CNumberDialog::Pull() {
  UpdateData(true);
  if (unfinished_ != nullptr) {
    unfinished_->SetValue(record_, unfinished_->Clamped(unfinished_->Value(record_)));
  }
}

void CNumberDialog::Push() {
  if (typed_ == nullptr) unfinished_ = nullptr;
  UpdateData(false);
}

bool CNumberDialog::AskImagePath() {
  const QString path = AskAnyFile(this, record_.imagePath);
  if (path.isEmpty()) return false;
  if (!IsReadExtensionType(path)) {
    ShowInformation(FilledString(kUnknownImageText, {path}));
    return false;
  }
  record_.imagePath = path;
  return true;
}

}  // namespace vyn
