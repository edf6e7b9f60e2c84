// The dialog "小惑星": the minor planets of the element file.
#pragma once

#include "small_bodies/element_class_dialog.h"

namespace vyn {

/// As the dialog on comets, with spectral types and symbols in place of tails.
class VYN_EXPORT CDlgMinorPlanet final : public CDlgElementClass {
  Q_OBJECT

 public:
  CDlgMinorPlanet(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgMinorPlanet(QWidget* parent);

 private:
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void InitDisplay() override;
  void InitMoreTypes() override;
  void OnBnClickedChkSymbolic();

  int symbolicFlag_ = 0;
};

}  // namespace vyn
