// Template 13011: how the tails of one comet are drawn.
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

namespace {

constexpr int kValueChars = 6;
constexpr int kLabelChars = 12;

/// A labelled value by slider, edit and spin button, with its unit.
TemplateItem Value(int labelId, const char16_t* text, TemplateItem unit = stretch()) {
  return row(label(labelId, text), control(ControlKind::Slider, labelId + 1),
             named(edit(labelId + 2, kValueChars), text), spin(labelId + 3), std::move(unit));
}

}  // namespace

DialogTemplate CometTail() {
  // clang-format off
  return {13011, QStringLiteral("テイル編集"), withButtons(
    column(
      row(label(1950, u"彗星名："), label(1951, u""), stretch()),
      check(1952, u"日心距離による放出期間の自動調整(&A)"),
      group(1953, u"ダストテイル(&D)：",
        wide(form(
          Value(1954, u"放出期間：", label(1958, u"日")),
          Value(1959, u"βmin："),
          Value(1963, u"βmax：")), kLabelChars),
        check(1967, u"アウトライン表示(&O)")),
      group(1968, u"イオンテイル(&I)：",
        wide(form(
          Value(1969, u"放出期間：", label(1973, u"日"))), kLabelChars),
        check(1974, u"アウトライン表示(&T)"))))};
  // clang-format on
}

}  // namespace vyn::templates
