#include "major_bodies/zodiacal_light_dialog.h"

namespace vyn {
namespace {

constexpr RegionSwitch kRegions[] = {
    {11102, u"solar.ZodiacalLight", u"solar.ZodiacalLight.visible"},
    {11103, u"solar.CounterGlow", u"solar.CounterGlow.visible"},
};

}  // namespace

CDlgZodiacalLight::CDlgZodiacalLight(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CDlgRegions(commandHandle, secondHandle, 13015, kRegions, parent) {}

CDlgZodiacalLight::CDlgZodiacalLight(QWidget* parent)
    : CDlgZodiacalLight(nullptr, nullptr, parent) {}

}  // namespace vyn
