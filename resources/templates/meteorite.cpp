// Template 13017: the recorded meteorite falls.
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate Meteorite() {
  return {13017, QStringLiteral("隕石"),
          withButtons(named(tall(wide(control(ControlKind::ObjectList, 11186), 80), 18), u"隕石"),
                      colorButton(11187))};
}

}  // namespace vyn::templates
