// Template 13015: the zodiacal light and the counterglow.
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate ZodiacalLight() {
  // clang-format off
  return {13015, QStringLiteral("黄道光・対日照"), withButtons(
    column(
      check(11102, u"黄道光(&Z)"),
      check(11103, u"対日照(&P)")))};
  // clang-format on
}

}  // namespace vyn::templates
