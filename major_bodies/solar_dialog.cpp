#include "major_bodies/solar_dialog.h"

namespace vyn {
namespace {

constexpr int kOortCloud = 11106, kAutoFade = 11107;

// clang-format off
constexpr RegionSwitch kRegions[] = {
  {11103, u"solar.MainBelt",           u"solar.MainBelt.visible"},
  {11104, u"solar.KuiperBelt",         u"solar.KuiperBelt.visible"},
  {11105, u"solar.HabitableZone",      u"solar.HabitableZone.visible"},
  {11106, u"solar.OortCloud",          u"solar.OortCloud.visible"},
  // Read from the property itself, written as a visibility like the others.
  {11107, u"solar.OortCloud.AutoFade", u"solar.OortCloud.AutoFade"},
  {11108, u"CosmicScale",              u"CosmicScale.visible"},
};
// clang-format on

}  // namespace

CDlgSolar::CDlgSolar(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CDlgRegions(commandHandle, secondHandle, 13019, kRegions, parent) {}

CDlgSolar::CDlgSolar(QWidget* parent) : CDlgSolar(nullptr, nullptr, parent) {}

void CDlgSolar::AttachControls() {
  CDlgRegions::AttachControls();
  AttachColorButton(11183, &CDlgSolar::OnButtonFont);
}

void CDlgSolar::OnApply() {
  Apply();
  OnUpdateControl();
}

void CDlgSolar::OnUpdateControl() {
  UpdateData(true);
  Enable(kAutoFade, IsOn(kOortCloud));
}

void CDlgSolar::OnButtonFont() { ChooseColorAndFont(QStringLiteral("Solar.MainBelt.Color")); }

}  // namespace vyn
