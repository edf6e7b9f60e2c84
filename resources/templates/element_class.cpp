#include "resources/templates/element_class.h"

namespace vyn::templates {

using namespace layout;

namespace {

constexpr int kListChars = 190, kListRows = 16;
constexpr int kTypeListChars = 26, kTypeListRows = 7;
constexpr int kCountChars = 9;
constexpr int kSliderChars = 24;
constexpr int kMagnitudeChars = 5, kVectorChars = 5;
constexpr int kSearchChars = 26;

TemplateItem Counts(const ElementClassControls& id) {
  return row(label(id.CountLabel(), u"表示数 / 全数："),
             wide(label(id.ShownCount(), u"0"), kCountChars), label(id.CountSlash(), u"/"),
             wide(label(id.TotalCount(), u"0"), kCountChars), label(id.CountUnit(), u"個"),
             stretch());
}

TemplateItem Brighter(const ElementClassControls& id) {
  // clang-format off
  return titled(group(id.BrighterGroup(), u"　　　　　　",
    check(id.BrighterCheck(), u"等級限定(&B)："),
    named(wide(control(ControlKind::Slider, id.BrighterSlider()), kSliderChars), u"限界等級"),
    row(named(edit(id.BrighterEdit(), kMagnitudeChars), u"限界等級"), spin(id.BrighterSpin()),
        label(id.BrighterUnit(), u"等より明るい"), stretch()),
    stretch()));
  // clang-format on
}

TemplateItem Limits(const ElementClassControls& id, TemplateItem moreLimits) {
  return group(
      id.LimitGroup(), u"表示限定：",
      row(Brighter(id), TypeList(id.OrbitalTypeLabel(), u"軌道タイプ(&O)：", id.OrbitalTypeList()),
          std::move(moreLimits)));
}

TemplateItem Vector(const ElementClassControls& id) {
  // clang-format off
  return group(id.VectorGroup(), u"移動量：",
    form(
      row(label(id.SpanLabel(), u"計算期間(&S)："),
          row(edit(id.SpanEdit(), kVectorChars), spin(id.SpanSpin()), label(id.SpanUnit(), u"日"))),
      row(label(id.MultiplierLabel(), u"表示倍率(&M)："),
          row(edit(id.MultiplierEdit(), kVectorChars), spin(id.MultiplierSpin()),
              label(id.MultiplierUnit(), u"倍")))));
  // clang-format on
}

TemplateItem Elements(const ElementClassControls& id) {
  // clang-format off
  return group(id.ElementGroup(), u"軌道要素：",
    row(button(id.NewButton(), u"新規(&N)..."), button(id.EditButton(), u"編集(&E)..."),
        button(id.DeleteButton(), u"削除(&D)...")),
    row(button(id.ImportButton(), u"インポート(&I)..."), button(id.FileButton(), u"ファイル(&F)..."),
        stretch()));
  // clang-format on
}

TemplateItem Search(const ElementClassControls& id) {
  return group(id.SearchGroup(), u"名前で検索(&A)：",
               row(named(wide(control(ControlKind::Combo, id.SearchCombo()), kSearchChars),
                         u"検索する文字列"),
                   button(id.SearchBackward(), u"後方検索"),
                   button(id.SearchForward(), u"前方検索"), stretch()));
}

}  // namespace

TemplateItem TypeList(int labelId, const char16_t* text, int list) {
  TemplateItem types =
      tall(wide(control(ControlKind::ObjectList, list), kTypeListChars), kTypeListRows);
  return column(label(labelId, text), std::move(types));
}

TemplateItem ElementClassContent(const ElementClassControls& id, const char16_t* listName,
                                 TemplateItem moreLimits, TemplateItem moreDisplay) {
  TemplateItem list =
      named(tall(wide(control(ControlKind::ObjectList, id.ObjectList()), kListChars), kListRows),
            listName);
  return column(
      Counts(id), std::move(list),
      row(Limits(id, std::move(moreLimits)), column(Vector(id), std::move(moreDisplay), stretch()),
          column(Elements(id), Search(id), stretch()), stretch()));
}

}  // namespace vyn::templates
