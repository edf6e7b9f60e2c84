// Template 13001: the minor planets of the element file.
#include "resources/templates/element_class.h"
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate MinorPlanet() {
  return {13001, QStringLiteral("小惑星"),
          withButtons(ElementClassContent(
                          kMinorPlanetControls, u"小惑星",
                          TypeList(kSpectralTypeLabel, u"スペクトル型(&P)：", kSpectralTypeList),
                          check(kSymbolicCheck, u"シンボリック表示(&Y)")),
                      colorButton(kMinorPlanetControls.ColorButton()))};
}

}  // namespace vyn::templates
