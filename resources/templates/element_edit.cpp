// Template 13006: the orbital elements of one comet or minor planet.
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

namespace {

/// The edits of a date, with their numbers, behind the label that names it. `what` is the label's
/// meaning for screen readers.
struct DateEdits {
  int year;
  int month;
  int day;
  const char16_t* yearName;
  const char16_t* monthName;
  const char16_t* dayName;
};

TemplateItem Year(const DateEdits& date) { return named(edit(date.year, 4), date.yearName); }
TemplateItem Month(const DateEdits& date) { return named(edit(date.month, 2), date.monthName); }
TemplateItem Day(const DateEdits& date) { return named(edit(date.day, 9), date.dayName); }

constexpr DateEdits kPerihelion{1614,           1615, 1616, u"近日点通過年", u"近日点通過月",
                                u"近日点通過日"};
constexpr DateEdits kEpoch{1618, 1619, 1620, u"元期年", u"元期月", u"元期日"};
constexpr DateEdits kValidFrom{
    1647, 1648, 1649, u"適用範囲開始年", u"適用範囲開始月", u"適用範囲開始日"};
constexpr DateEdits kValidTo{
    1651, 1652, 1653, u"適用範囲終了年", u"適用範囲終了月", u"適用範囲終了日"};

/// Labels of forms that stand one above the other end at the same place, inside a group and
/// outside.
constexpr int kLabelChars = 15;
constexpr int kInnerLabelChars = 16;

TemplateItem Names() {
  // clang-format off
  return wide(form(
    row(label(1600, u"認識符号："), row(edit(1601, 15), stretch(),
      label(1602, u"仮符号："), edit(1603, 6), stretch(),
      label(1604, u"確定符号："), edit(1605, 10))),
    row(label(1606, u"日本語名(&N)："), edit(1607, 60)),
    row(label(1608, u"英語名(&E)："), edit(1609, 30))), kLabelChars);
  // clang-format on
}

/// The units of T and M can be disabled together with their edits, so they have numbers.
TemplateItem Time() {
  // clang-format off
  return group(1610, u"時刻(&T)：",
    row(radio(1611, u"近日点通過"), radio(1612, u"元期"), stretch()),
    wide(form(
      row(label(1613, u"近日点通過(T)："), row(Year(kPerihelion), label(1680, u"年"),
        Month(kPerihelion), label(1681, u"月"), Day(kPerihelion), label(1682, u"日"))),
      row(label(1617, u"元期(Epoch)："), row(Year(kEpoch), note(u"年"),
        Month(kEpoch), note(u"月"), Day(kEpoch), note(u"日"))),
      row(label(1621, u"平均近点角(Ｍ)："), row(edit(1622, 11), label(1683, u"°")))), kInnerLabelChars));
  // clang-format on
}

TemplateItem Distance() {
  // clang-format off
  return group(1623, u"距離(&A)：",
    row(radio(1624, u"近日点距離"), radio(1625, u"軌道長半径"), stretch()),
    wide(form(
      row(label(1626, u"近日点距離(q)："), row(edit(1627, 11), label(1628, u"au"))),
      row(label(1629, u"軌道長半径(a)："), row(edit(1630, 11), label(1631, u"au")))), kInnerLabelChars));
  // clang-format on
}

TemplateItem ShapeAndBrightness() {
  // clang-format off
  return form(
    row(label(1632, u"離心率(e)："), edit(1633, 10)),
    row(label(1634, u"近日点引数(ω)："), row(edit(1635, 10), note(u"°"))),
    row(label(1636, u"昇交点黄経(Ω)："), row(edit(1637, 10), note(u"°"))),
    row(label(1638, u"軌道傾斜角(ｉ)："), row(edit(1639, 10), note(u"°"))),
    row(label(1640, u"絶対光度(H)："), edit(1641, 6)),
    row(label(1642, u"スロープパラメータ(G)："), edit(1643, 5)),
    row(label(1644, u"分点："), edit(1645, 6)));
  // clang-format on
}

TemplateItem ValidityAndMemo() {
  // clang-format off
  return wide(form(
    row(label(1646, u"適用範囲："), row(
      Year(kValidFrom), note(u"年"), Month(kValidFrom), note(u"月"), Day(kValidFrom),
      label(1650, u"日～"),
      Year(kValidTo), note(u"年"), Month(kValidTo), note(u"月"), Day(kValidTo), note(u"日"))),
    row(label(1654, u"メモ："), edit(1655, 60))), kLabelChars);
  // clang-format on
}

TemplateItem Tail() {
  // clang-format off
  return group(1656, u"テイル(&L)：",
    form(
      row(label(1657, u"イオン："), row(edit(1658, 4), label(1659, u"au"))),
      row(label(1660, u"ダスト："), row(edit(1661, 4), label(1662, u"au"))),
      row(label(1663, u"βmax："), edit(1664, 3))));
  // clang-format on
}

TemplateItem Pages() {
  // clang-format off
  return column(label(1668, u"ページ(&P)："),
    row(tall(wide(control(ControlKind::List, 1669), 10), 4),
      column(button(1670, u"追加"), button(1671, u"削除"), stretch())));
  // clang-format on
}

}  // namespace

DialogTemplate ElementEdit() {
  // clang-format off
  return {13006, QStringLiteral("軌道要素編集"), column(
    column(
      Names(),
      row(
        column(Time(), Distance()),
        column(ShapeAndBrightness(), stretch()),
        stretch()),
      ValidityAndMemo(),
      row(
        Tail(),
        group(1665, u"周期：", row(label(1666, u""), label(1667, u"年"), stretch()), stretch()),
        column(Pages(), stretch()),
        stretch())),
    row(stretch(), button(kOkButton, u"OK"), button(kCancelButton, u"キャンセル"),
      button(kHelpButton, u"ヘルプ(&H)")))};
  // clang-format on
}

}  // namespace vyn::templates
