#include "elements/element_import_progress_dialog.h"

#include "resources/string_table.h"
#include "siblings/controls/controls.h"

namespace vyn {
namespace {

constexpr int kTemplate = 13010;
constexpr int kBar = 1940;
constexpr int kStop = 1941;

}  // namespace

CDlgElementImportProgress::CDlgElementImportProgress(int captionStringId, QWidget* parent)
    : CVynDialog(nullptr, nullptr, kTemplate, {}, parent), captionStringId_(captionStringId) {}

CDlgElementImportProgress::~CDlgElementImportProgress() { FreeParent(); }

bool CDlgElementImportProgress::OnInitDialog() {
  CVynDialog::OnInitDialog();
  setWindowTitle(LoadString(captionStringId_));
  continues_ = true;
  static_cast<QProgressBar*>(GetDlgItem(kBar))->setValue(0);
  return true;
}

void CDlgElementImportProgress::AttachControls() {
  CVynDialog::AttachControls();
  OnClicked({kStop}, &CDlgElementImportProgress::OnStop);
}

bool CDlgElementImportProgress::SetProgress(int percent) {
  if (parentWidget() != nullptr && parentWidget()->isEnabled()) {
    parentWidget()->setEnabled(false);
    setEnabled(true);  // the toolkit disables a window's children, this one too
    holdsParent_ = true;
  }
  static_cast<QProgressBar*>(GetDlgItem(kBar))->setValue(percent);
  return continues_;
}

void CDlgElementImportProgress::DestroyWindow() {
  FreeParent();
  CVynDialog::OnCancel();
}

/// The window stays until the run ends, so Esc and the close box only ask it to.
void CDlgElementImportProgress::OnCancel() { OnStop(); }

void CDlgElementImportProgress::OnOK() {}

void CDlgElementImportProgress::FreeParent() {
  if (holdsParent_ && parentWidget() != nullptr) parentWidget()->setEnabled(true);
  holdsParent_ = false;
}

}  // namespace vyn
