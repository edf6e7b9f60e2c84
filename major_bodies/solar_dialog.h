// The dialog "太陽系その他": the belts, the habitable zone, the Oort cloud and the cosmic scale.
#pragma once

#include "major_bodies/regions_dialog.h"

namespace vyn {

class VYN_EXPORT CDlgSolar final : public CDlgRegions {
  Q_OBJECT

 public:
  CDlgSolar(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgSolar(QWidget* parent);

 private:
  void AttachControls() override;
  void UpdateControls() override { OnUpdateControl(); }
  void OnApply() override;
  void OnUpdateControl();
  void OnButtonFont();
};

}  // namespace vyn
