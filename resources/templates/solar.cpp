// Template 13019: the belts, the habitable zone, the Oort cloud and the cosmic scale.
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate Solar() {
  // clang-format off
  return {13019, QStringLiteral("太陽系その他"), withButtons(
    column(
      check(11103, u"小惑星メインベルト(&M)"),
      check(11104, u"エッジワース・カイパーベルト(&K)"),
      check(11105, u"ハビタブルゾーン(&Z)"),
      check(11106, u"オールトの雲(&O)"),
      indented(check(11107, u"自動表示(&A)")),
      check(11108, u"宇宙スケール(&S)")),
    colorButton(11183))};
  // clang-format on
}

}  // namespace vyn::templates
