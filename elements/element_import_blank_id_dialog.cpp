#include "elements/element_import_blank_id_dialog.h"

namespace vyn {
namespace {

constexpr int kTemplate = 13007;
constexpr int kIdentifierEdit = 1908;

}  // namespace

CDlgElementImportBlankID::CDlgElementImportBlankID(QWidget* parent)
    : CDlgElementImportQuestion(kTemplate, {1902, 1904, 1906, 1907, kIdentifierEdit}, parent) {}

void CDlgElementImportBlankID::AttachControls() {
  CDlgElementImportQuestion::AttachControls();
  OnClicked({1904, 1905, 1906}, &CDlgElementImportBlankID::OnImportBlankidRadio);
}

void CDlgElementImportBlankID::DoDataExchange(CDataExchange& exchange) {
  CDlgElementImportQuestion::DoDataExchange(exchange);
  exchange.Text(kIdentifierEdit, newIdentifier_);
}

}  // namespace vyn
