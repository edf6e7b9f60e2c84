#include "elements/element_import_duplicate_dialog.h"

namespace vyn {
namespace {

constexpr int kIdentifier = 1922;
constexpr int kNewIdentifierLabel = 1931;

}  // namespace

CDlgElementImportDuplicate::CDlgElementImportDuplicate(int templateNumber, QWidget* parent)
    : CDlgElementImportQuestion(templateNumber, {1924, 1926, 1930, kNewIdentifierLabel, 1932},
                                parent) {}

void CDlgElementImportDuplicate::AttachControls() {
  CDlgElementImportQuestion::AttachControls();
  OnClicked({1926, 1927, 1928, 1929, 1930}, &CDlgElementImportDuplicate::OnImportDuplicateRadio);
}

void CDlgElementImportDuplicate::DoDataExchange(CDataExchange& exchange) {
  CDlgElementImportQuestion::DoDataExchange(exchange);
  exchange.Text(kIdentifier, identifier_);
  // The new identifier is bound to the label beside the edit, on purpose: the label is emptied, and
  // the last choice finds no identifier, whatever was typed.
  exchange.Text(kNewIdentifierLabel, newIdentifier_);
}

}  // namespace vyn
