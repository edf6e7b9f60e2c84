// Templates 13013 and 13020: the user's own photographs, and adding one.
#include "resources/templates/image_parts.h"
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate TakenImage() {
  // clang-format off
  return {13013, QStringLiteral("太陽・惑星画像"), withButtons(
    row(
      column(
        PreviewFrame(),
        row(label(11098, u"天体(&O)："), control(ControlKind::Combo, 11101), stretch(),
            label(11164, u"倍率："), NumberWithUnit(11162, 11163, 11165, u"倍")),
        row(button(11161, u"星図中央に表示(&P)"), stretch()),
        PlacementGroup(row(label(11156, u"範囲："),
                           NumberWithUnit(11157, 11158, kNoControlId, u"", 6))),
        stretch()),
      column(
        titled(group(11160, u"",
          check(11108, u"画像表示(&W)："),
          NumberLine(11107, u"全体の不透明度：", 11109, 11113, 4),
          row(named(tall(wide(control(ControlKind::List, 11085), 62), 6), u"画像の一覧"),
              column(button(11086, u"追加(&A)..."), button(11087, u"削除"), stretch())),
          row(check(11103, u"表示(&T)"), check(11114, u"アクティブ(&V)"),
              NumberLine(11104, u"不透明度：", 11105, 11106, 4)))),
        group(11110, u"画像(&G)：",
          row(label(11115, u"ファイル名："), readOnly(edit(11111, 40)), stretch(),
              button(11112, u"参照(&R)..."))),
        group(11120, u"撮影日時JST(&D)：",
          DateRows(),
          row(stretch(), button(11142, u"星図に設定(&S)"))),
        stretch())))};
  // clang-format on
}

DialogTemplate TakenImageNew() {
  // clang-format off
  return {13020, QStringLiteral("太陽・惑星画像 追加"), column(
    column(
      group(11110, u"画像(&G)：",
        row(label(11109, u"ファイル名："), edit(11111, 40), button(11112, u"参照(&R)..."))),
      group(11120, u"撮影日時JST(&D)：", DateRows())),
    row(stretch(), button(kOkButton, u"OK"), button(kCancelButton, u"キャンセル"),
        button(kHelpButton, u"ヘルプ(&H)")))};
  // clang-format on
}

}  // namespace vyn::templates
