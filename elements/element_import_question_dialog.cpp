#include "elements/element_import_question_dialog.h"

#include "elements/element_record.h"
#include "resources/string_table.h"
#include "siblings/controls/controls.h"

namespace vyn {
namespace {

constexpr int kIdentifierExpected = 13342;

bool IsBlankAtEnd(QString text) {
  while (text.endsWith(QLatin1Char(' '))) text.chop(1);
  return text.isEmpty();
}

}  // namespace

CDlgElementImportQuestion::CDlgElementImportQuestion(int templateNumber, const Controls& controls,
                                                     QWidget* parent)
    : CVynDialog(nullptr, nullptr, templateNumber, {}, parent), controls_(controls) {}

bool CDlgElementImportQuestion::OnInitDialog() {
  CVynDialog::OnInitDialog();
  choice_ = 0;
  newIdentifier_.clear();
  UpdateData(false);
  ApplyRadioRule();
  return true;
}

void CDlgElementImportQuestion::AttachControls() {
  CVynDialog::AttachControls();
  static_cast<QLineEdit*>(GetDlgItem(controls_.identifierEdit))
      ->setMaxLength(FieldOf(ElementField::Identifier).width);
}

void CDlgElementImportQuestion::DoDataExchange(CDataExchange& exchange) {
  exchange.Radio(controls_.firstRadio, choice_);
  exchange.Text(controls_.name, name_);
}

void CDlgElementImportQuestion::ApplyRadioRule() {
  Enable({controls_.identifierLabel, controls_.identifierEdit}, IsChecked(controls_.lastRadio));
}

void CDlgElementImportQuestion::OnOK() {
  UpdateData(true);
  if (LastIsChosen() && IsBlankAtEnd(newIdentifier_)) {
    ShowInformation(LoadString(kIdentifierExpected));
    return;
  }
  CVynDialog::OnOK();
}

void CDlgElementImportQuestion::OnCancel() {}

}  // namespace vyn
