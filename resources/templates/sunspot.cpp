// Template 13014: dated sets of sunspots.
#include "resources/templates/image_parts.h"
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate Sunspot() {
  // clang-format off
  return {13014, QStringLiteral("太陽黒点"), WithHiddenCancel(
    row(
      column(
        PreviewFrame(),
        row(button(11161, u"星図中央に表示(&P)"), stretch(),
            label(11164, u"倍率："), NumberWithUnit(11162, 11163, 11165, u"倍")),
        check(11108, u"表示(&W)："),
        stretch()),
      column(
        group(11144, u"黒点セット(&K)：",
          row(tall(wide(control(ControlKind::List, 11089), 50), 6),
              column(check(11103, u"表示(&T)"), button(11086, u"追加"), button(11087, u"削除"),
                     stretch())),
          group(11120, u"日時JST(&D)：",
            DateRows(),
            row(label(11105, u"中央子午線："), readOnly(edit(11101, 6)), note(u"度"), stretch(),
                label(11106, u"中心緯度："), readOnly(edit(11102, 6)), note(u"度"), stretch()),
            row(stretch(), button(11142, u"星図に設定(&S)")))),
        group(11104, u"黒点(&U)：",
          row(tall(wide(control(ControlKind::List, 11099), 50), 6),
              column(button(11088, u"削除"), stretch()))),
        group(11143, u"表示設定(&E)：",
          row(label(11093, u"経度："), NumberWithUnit(11094, 11095, kNoControlId, u"度", 6),
              label(11096, u"緯度："), NumberWithUnit(11097, 11098, kNoControlId, u"度", 6),
              label(11090, u"タイプ："), NumberWithUnit(11091, 11092, kNoControlId, u""))),
        stretch())))};
  // clang-format on
}

}  // namespace vyn::templates
