// What the dialogs of check boxes for whole regions of the solar system share: a table of regions
// that is read, shown and written in its order.
#pragma once

#include <span>

#include <QStringView>

#include "core_link/live_dialog.h"

namespace vyn {

/// A check box that switches a region on or off.
struct RegionSwitch {
  int control;
  QStringView path;         ///< given to the visibility statement
  QStringView readingPath;  ///< asked at opening
};

class VYN_EXPORT CDlgRegions : public CVynLiveDialog {
  Q_OBJECT

 protected:
  /// `regions` lives as long as the program.
  CDlgRegions(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
              std::span<const RegionSwitch> regions, QWidget* parent);

  void AttachControls() override;
  void Init() override;
  void WriteScript(QString& out) override;
  virtual void OnApply() { Apply(); }

 private:
  std::span<const RegionSwitch> regions_;
};

}  // namespace vyn
