// Template 13016: photographs of the solar corona.
#include "resources/templates/image_parts.h"
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate Corona() {
  // clang-format off
  return {13016, QStringLiteral("太陽コロナ"), WithHiddenCancel(
    row(
      column(
        PreviewFrame(),
        row(button(11161, u"星図中央に表示(&P)"), stretch(),
            label(12001, u"視野角："), NumberWithUnit(12002, 12003, 12004, u"度", 4)),
        PlacementGroup(),
        stretch()),
      column(
        titled(group(11160, u"",
          check(11108, u"コロナ表示(&C)："),
          NumberLine(11104, u"不透明度：", 11109, 11113, 4),
          row(named(tall(wide(control(ControlKind::List, 11085), 62), 6), u"画像の一覧"),
              column(button(11086, u"追加"), button(11087, u"削除"), stretch())),
          check(11103, u"テクスチャ表示(&T)"),
          row(label(11116, u"名称(&N)："), edit(11117, 50), stretch()),
          label(11110, u"画像ファイル名(&G)："),
          row(readOnly(edit(11111, 47)), button(11112, u"参照(&R)...")))),
        group(11120, u"撮影日時JST・場所(&D)：",
          DateRows(),
          form(
            row(row(radio(11118, u"東経"), radio(11119, u"西経")),
                NumberWithUnit(11131, 11132, kNoControlId, u"度"),
                NumberWithUnit(11133, 11134, kNoControlId, u"分"),
                NumberWithUnit(11156, 11157, kNoControlId, u"秒")),
            row(row(radio(11135, u"北緯"), radio(11136, u"南緯")),
                NumberWithUnit(11137, 11138, kNoControlId, u"度"),
                NumberWithUnit(11139, 11158, kNoControlId, u"分"),
                NumberWithUnit(11159, 11183, kNoControlId, u"秒")),
            row(label(11177, u"標高"), NumberWithUnit(11178, 11179, kNoControlId, u"m", 4))),
          row(stretch(), button(11142, u"星図に設定(&S)"))),
        stretch())))};
  // clang-format on
}

}  // namespace vyn::templates
