#include "resources/templates/image_parts.h"

namespace vyn::templates {

using namespace layout;

TemplateItem PreviewFrame() { return wide(control(ControlKind::Preview, 11100), kPreviewChars); }

TemplateItem NumberLine(int labelId, const char16_t* text, int editId, int spinId, int widthChars) {
  return row(label(labelId, text), tight(row(edit(editId, widthChars), spin(spinId))), stretch());
}

TemplateItem NumberWithUnit(int editId, int spinId, int unit, const char16_t* unitText,
                            int widthChars) {
  return row(tight(row(named(edit(editId, widthChars), unitText), spin(spinId))),
             label(unit, unitText), stretch());
}

TemplateItem DateRows() {
  // clang-format off
  return form(
    row(NumberWithUnit(11121, 11122, 11167, u"年", 5),
        NumberWithUnit(11123, 11124, 11168, u"月"),
        NumberWithUnit(11125, 11126, 11169, u"日", 4)),
    row(NumberWithUnit(11127, 11128, 11170, u"時", 5),
        NumberWithUnit(11129, 11130, 11171, u"分"),
        NumberWithUnit(11140, 11141, 11172, u"秒", 4)));
  // clang-format on
}

TemplateItem PlacementGroup(TemplateItem more) {
  // clang-format off
  return group(11143, u"表示設定(&E)：",
    form(
      row(label(11144, u"X："), NumberWithUnit(11145, 11146, kNoControlId, u"", 6),
          label(11147, u"Y："), NumberWithUnit(11148, 11149, kNoControlId, u"", 6)),
      row(label(11150, u"半径："), NumberWithUnit(11151, 11152, kNoControlId, u"", 6),
          label(11153, u"回転："), NumberWithUnit(11154, 11155, 11173, u"度", 6))),
    std::move(more));
  // clang-format on
}

TemplateItem WithHiddenCancel(TemplateItem content, TemplateItem left) {
  return column(std::move(content), row(std::move(left), stretch(), button(kOkButton, u"閉じる"),
                                        hidden(button(kCancelButton, u"キャンセル")),
                                        button(kHelpButton, u"ヘルプ(&H)")));
}

}  // namespace vyn::templates
