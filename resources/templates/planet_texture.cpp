// Template 13012: photographs as surface layers of planets.
#include "resources/templates/image_parts.h"
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate PlanetTexture() {
  // clang-format off
  return {13012, QStringLiteral("惑星テクスチャ"), withButtons(
    row(
      column(
        PreviewFrame(),
        row(label(11098, u"惑星："), control(ControlKind::Combo, 11101), stretch(),
            label(11164, u"倍率："), NumberWithUnit(11162, 11163, 11165, u"倍")),
        row(button(11161, u"星図中央に表示(&P)"), stretch()),
        stretch()),
      column(
        row(check(11103, u"テクスチャ表示"), stretch(),
            label(11099, u"番号："), control(ControlKind::Combo, 11102),
            label(11104, u"不透明度："), tight(row(edit(11105, 4), spin(11106)))),
        group(11110, u"画像(&G)：",
          row(label(11109, u"ファイル名："), readOnly(edit(11111, 40)),
              button(11112, u"参照(&R)..."))),
        group(11120, u"撮影日時(&D)：",
          DateRows(),
          row(stretch(), button(11142, u"星図に設定(&S)"))),
        PlacementGroup(row(label(11156, u"範囲："), NumberWithUnit(11157, 11158, kNoControlId, u"", 6))),
        check(11107, u"初期値として保存(&I)"),
        stretch())))};
  // clang-format on
}

}  // namespace vyn::templates
