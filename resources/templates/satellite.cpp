// Template 13003: the satellites by body, with their toggles under headings.
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

namespace {

// Headings and buttons are equally wide, so that they stand above and below the same toggles.
constexpr int kColumnChars = 10;

TemplateItem Heading(int id, const char16_t* text, const char16_t* key) {
  return tight(column(wide(label(id, text), kColumnChars), wide(note(key), kColumnChars)));
}

TemplateItem ColumnButton(int id, const char16_t* text) {
  return wide(button(id, text), kColumnChars);
}

TemplateItem OnOff(int on, int off) {
  return column(ColumnButton(on, u"オン"), ColumnButton(off, u"オフ"));
}

}  // namespace

DialogTemplate Satellite() {
  // clang-format off
  return {13003, QStringLiteral("衛星"), withButtons(
    row(
      column(label(1520, u"惑星・準惑星(&P)："), wide(control(ControlKind::List, 1521), 20)),
      column(
        row(label(1500, u"衛星(&S)："), stretch(),
          Heading(1501, u"表示", u"(V)"), Heading(1502, u"名称", u"(N)"),
          Heading(1503, u"日", u"(J)"), Heading(1504, u"英", u"(E)"),
          Heading(1505, u"番号", u"(M)"), Heading(1506, u"軌道", u"(O)"),
          scrollBarSpace()),
        wide(control(ControlKind::SatelliteList, 1507), 125),
        row(label(1508, u"全衛星"), stretch(),
          OnOff(1509, 1510), OnOff(1511, 1512),
          column(ColumnButton(1513, u"日本語"), stretch()),
          column(ColumnButton(1514, u"英語"), stretch()),
          OnOff(1515, 1516), OnOff(1517, 1518),
          scrollBarSpace()))),
    colorButton(1519))};
  // clang-format on
}

}  // namespace vyn::templates
