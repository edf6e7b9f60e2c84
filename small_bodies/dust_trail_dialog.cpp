#include "small_bodies/dust_trail_dialog.h"

namespace vyn {
namespace {

using enum ObjectColumnKind;
using enum ColumnUse;

// clang-format off
constexpr ObjectColumn kColumns[] = {
  {.title = u"名称", .path = u".Name", .stretches = true, .isIdentifier = true},
  {.title = u"表示", .kind = Check, .key = 'V', .path = u""},
  {.title = u"軌道", .kind = Check, .key = 'X', .path = u".Orbit", .use = WhenShownInSolarMode},
};
// clang-format on

constexpr QStringView kRestoredPaths[] = {u"", u".Orbit"};

}  // namespace

CDlgDustTrail::CDlgDustTrail(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CDlgListedObjects(commandHandle, secondHandle,
                        {.base = {.templateNumber = 13018,
                                  .registryKey = 13480,
                                  .classPath = QStringLiteral("Solar.DustTrail"),
                                  .listControl = 11184,
                                  .columns = kColumns},
                         .colorButton = 11185,
                         .colorPath = u".DustStream.Color",
                         .restoredPaths = kRestoredPaths,
                         .sendsEmptyScript = true},
                        parent) {}

CDlgDustTrail::CDlgDustTrail(QWidget* parent) : CDlgDustTrail(nullptr, nullptr, parent) {}

}  // namespace vyn
