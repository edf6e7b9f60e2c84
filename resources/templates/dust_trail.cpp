// Template 13018: the dust trails of comets.
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate DustTrail() {
  return {13018, QStringLiteral("ダストトレイル"),
          withButtons(
              named(tall(wide(control(ControlKind::ObjectList, 11184), 74), 18), u"ダストトレイル"),
              button(11185, u"色の設定(&C)..."))};
}

}  // namespace vyn::templates
