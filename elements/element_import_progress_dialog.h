// How far an import is, with a button that stops it.
#pragma once

#include "core_link/dialog.h"

namespace vyn {

/// A modeless window beside the dialog that runs the import. Shown by Create(), closed by
/// DestroyWindow(). From the first step until then the parent takes no input, so that no second run
/// can be started.
class VYN_EXPORT CDlgElementImportProgress final : public CVynDialog {
  Q_OBJECT

 public:
  /// `captionStringId` is the number of the caption's text.
  CDlgElementImportProgress(int captionStringId, QWidget* parent);
  ~CDlgElementImportProgress() override;

  /// Moves the bar to `percent` (0 to 100). False when the user has stopped the run.
  bool SetProgress(int percent);

  /// Lets the parent take input again and closes the window.
  void DestroyWindow();

 private:
  bool OnInitDialog() override;
  void AttachControls() override;
  void OnOK() override;
  void OnCancel() override;
  void OnStop() { continues_ = false; }
  void FreeParent();

  const int captionStringId_;
  bool continues_ = true;
  bool holdsParent_ = false;
};

}  // namespace vyn
