#include "tools/vyn-drive/dialog_table.h"

#include <algorithm>
#include <array>

#include "image_data/corona_dialog.h"
#include "image_data/planet_texture_dialog.h"
#include "image_data/sunspot_dialog.h"
#include "image_data/taken_image_dialog.h"
#include "major_bodies/dwarf_planet_dialog.h"
#include "major_bodies/planet_dialog.h"
#include "major_bodies/satellite_dialog.h"
#include "major_bodies/solar_dialog.h"
#include "major_bodies/sun_dialog.h"
#include "major_bodies/zodiacal_light_dialog.h"
#include "small_bodies/comet_tail_dialog.h"
#include "small_bodies/comet_dialog.h"
#include "small_bodies/dust_trail_dialog.h"
#include "small_bodies/meteorite_dialog.h"
#include "small_bodies/minor_planet_dialog.h"
#include "tools/vyn-drive/element_dialogs.h"
#include "tools/vyn-drive/script.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

template <class Dialog>
std::unique_ptr<CVynDialog> Make(const DialogMaking& making, Arguments& words) {
  words.End();
  if (making.commandHandle == nullptr) return std::make_unique<Dialog>(making.parent);
  return std::make_unique<Dialog>(making.commandHandle, making.secondHandle, making.parent);
}

/// Opened for the comet at a path.
std::unique_ptr<CVynDialog> MakeCometTail(const DialogMaking& making, Arguments& words) {
  const QString path = words.Word(u"the comet's path");
  words.End();
  auto dialog = std::make_unique<CDlgCometTail>(path, making.parent);
  dialog->SetCorVyn(making.commandHandle, making.secondHandle);
  return dialog;
}

struct DialogClass {
  QStringView name;
  std::unique_ptr<CVynDialog> (*make)(const DialogMaking&, Arguments&);
};

// A new dialog takes one line here. One whose constructor takes more than the handles and the
// parent has a function of its own instead of Make.
constexpr std::array kClasses = {
    DialogClass{u"CDlgCometTail", MakeCometTail},
    DialogClass{u"CDlgComet", Make<CDlgComet>},
    DialogClass{u"CDlgDustTrail", Make<CDlgDustTrail>},
    DialogClass{u"CDlgCorona", Make<CDlgCorona>},
    DialogClass{u"CDlgDwarfPlanet", Make<CDlgDwarfPlanet>},
    DialogClass{u"CDlgElementImportBlankID", MakeBlankIdQuestion},
    DialogClass{u"CDlgElementImportDuplicate", MakeDuplicateQuestion},
    DialogClass{u"CDlgElementManEdit", MakeElementEditor},
    DialogClass{u"CDlgMeteorite", Make<CDlgMeteorite>},
    DialogClass{u"CDlgMinorPlanet", Make<CDlgMinorPlanet>},
    DialogClass{u"CDlgPlanet", Make<CDlgPlanet>},
    DialogClass{u"CDlgPlanetTex", Make<CDlgPlanetTex>},
    DialogClass{u"CDlgSat", Make<CDlgSat>},
    DialogClass{u"CDlgSolar", Make<CDlgSolar>},
    DialogClass{u"CDlgSun", Make<CDlgSun>},
    DialogClass{u"CDlgSunSpot", Make<CDlgSunSpot>},
    DialogClass{u"CDlgTakenImg", Make<CDlgTakenImg>},
    DialogClass{u"CDlgZodiacalLight", Make<CDlgZodiacalLight>},
};

}  // namespace

std::unique_ptr<CVynDialog> MakeDialog(const QString& className, const DialogMaking& making,
                                       Arguments& words) {
  const auto found = std::ranges::find(kClasses, QStringView(className), &DialogClass::name);
  if (found == kClasses.end()) throw ScriptError{u"unknown dialog class: "_s + className};
  return found->make(making, words);
}

QString ClassName(const QObject& window) {
  return QString::fromLatin1(window.metaObject()->className()).section(u"::"_s, -1);
}

}  // namespace vyn::drive
