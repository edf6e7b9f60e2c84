#include "major_bodies/regions_dialog.h"

#include "core_link/statement.h"
#include "resources/string_table.h"

namespace vyn {

CDlgRegions::CDlgRegions(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
                         std::span<const RegionSwitch> regions, QWidget* parent)
    : CVynLiveDialog(commandHandle, secondHandle, templateNumber, LoadString(13478), parent),
      regions_(regions) {}

void CDlgRegions::AttachControls() {
  CVynLiveDialog::AttachControls();
  for (const RegionSwitch& region : regions_) OnClicked({region.control}, &CDlgRegions::OnApply);
}

void CDlgRegions::Init() {
  for (const RegionSwitch& region : regions_) {
    SetValue(region.control, GetBool(region.readingPath.toString()));
  }
  UpdateData(false);
}

void CDlgRegions::WriteScript(QString& out) {
  for (const RegionSwitch& region : regions_) {
    out += statement::Visible(region.path, IsOn(region.control));
  }
}

}  // namespace vyn
