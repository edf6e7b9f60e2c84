// Template 13004: how the Sun and the Moon are drawn.
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

DialogTemplate Sun() {
  // clang-format off
  return {13004, QStringLiteral("太陽・月"), withButtons(
    row(
      group(1000, u"太陽(&S)：",
        check(1001, u"表示"),
        indented(row(radio(1002, u"表面"), radio(1003, u"輪郭"), stretch())),
        check(1004, u"名称"),
        indented(row(radio(1005, u"日本語"), radio(1006, u"英語"), stretch())),
        check(1007, u"日付"),
        check(1008, u"コンパス"),
        check(1009, u"グリッド"),
        check(1010, u"実サイズ表示"),
        check(1011, u"光芒"),
        stretch(),
        group(1012, u"日食(&E)：",
          check(1014, u"皆既・金環帯"),
          check(1015, u"本影・半影の輪郭"))),
      group(1016, u"月(&M)：",
        check(1017, u"表示"),
        indented(row(radio(1018, u"表面"), radio(1019, u"輪郭"), stretch())),
        check(1020, u"名称"),
        indented(row(radio(1021, u"日本語"), radio(1022, u"英語"), stretch())),
        check(1023, u"日付"),
        check(1024, u"コンパス"),
        check(1025, u"グリッド"),
        check(1026, u"実サイズ表示"),
        check(1027, u"地名"),
        indented(check(1028, u"引出線")),
        check(1029, u"Ｌ点"),
        check(1030, u"軌道"),
        group(1031, u"月食(&N)：",
          check(1032, u"本影・半影の輪郭")))),
    colorButton(1033))};
  // clang-format on
}

}  // namespace vyn::templates
