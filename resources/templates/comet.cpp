// Template 13000: the comets of the element file.
#include "resources/templates/element_class.h"
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate Comet() {
  return {13000, QStringLiteral("彗星"),
          withButtons(ElementClassContent(kCometControls, u"彗星", stretch(), stretch()),
                      colorButton(kCometControls.ColorButton()))};
}

}  // namespace vyn::templates
