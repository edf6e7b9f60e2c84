#include "resources/string_table.h"

#include <algorithm>
#include <iterator>

namespace vyn {
namespace {

struct NumberedText {
  int number;
  const char16_t* text;
};

// clang-format off
constexpr NumberedText kTexts[] = {
  // The fields of the element editor: name and how its bounds are shown.
  {13300, u"近日点通過年| %d | %d "},
  {13301, u"近日点通過月| %d | %d "},
  {13302, u"近日点通過日| %.0f | %.0f "},
  {13303, u"離心率| %.0f | %.0f "},
  {13304, u"近日点距離| %.0f | %.0f "},
  {13305, u"近日点引数| %.0f | %.0f "},
  {13306, u"昇交点黄経| %.0f | %.0f "},
  {13307, u"軌道傾斜角| %.0f | %.0f "},
  {13308, u"分点| %.0f | %.0f "},
  {13309, u"絶対光度| %.0f | %.0f "},
  {13310, u"光度係数| %.0f | %.0f "},
  {13311, u"スロープパラメータ| %.0f | %.0f "},
  {13312, u"ダストテイルの長さ| %.0f | %.0f "},
  {13313, u"イオンテイルの長さ| %.0f | %.0f "},
  {13314, u"βmax| %.0f | %.0f "},
  {13315, u"元期年| %d | %d "},
  {13316, u"元期月| %d | %d "},
  {13317, u"元期日| %.0f | %.0f "},
  {13318, u"適用範囲開始年| %d | %d "},
  {13319, u"適用範囲開始月| %d | %d "},
  {13320, u"適用範囲開始日| %.0f | %.0f "},
  {13321, u"適用範囲終了年| %d | %d "},
  {13322, u"適用範囲終了月| %d | %d "},
  {13323, u"適用範囲終了日| %.0f | %.0f "},
  // Labels that follow the kind of the object.
  {13324, u"確定符号："},
  {13325, u"光度係数 (K)："},
  {13326, u"スロープパラメータ(G)："},
  // What the element editor refuses.
  {13327, u"正しい日付を入力してください。"},
  {13328, u"適用範囲には、正しい日付を入力してください。"},
  {13329, u"すべての軌道要素を削除することはできません。"},
  {13330, u"放物線に近い楕円または放物線、双曲線軌道では、元期と平均近点角による入力はできません。"},
  {13331, u"近日点距離が 0 以下または 100 以上になる軌道長半径／離心率は設定できません"},
  {13332, u"この認識符号はすでに使用されています"},
  {13333, u"認識符号は必ず入力してください。"},
  {13334, u"正しい数値を入力してください。"},
  {13335, u"元期年月日の一部を省略することはできません。"},
  {13336, u"適用範囲開始年月日の一部を省略することはできません。"},
  {13337, u"適用範囲終了年月日の一部を省略することはできません。"},
  {13338, u"近日点距離には 0 以下の値を入力できません。"},
  {13339, u"近日点距離には 100 未満の値を入力してください。"},
  {13340, u"近日点距離には 0 より大きい値を入力してください。"},
  {13341, u"元期を入力してください。"},
  {13342, u"認識符号を入力してください。"},
  {13344, u"放物線および双曲線軌道では、軌道長半径は指定できません。"},
  {13345, u"適用範囲開始日は、終了日よりも前にしてください。"},
  // Ranges by which of their bounds belong to them: both, the lower, the upper, none.
  {13346, u"%sには %s 以上 %s 以下の値を入力してください。"},
  {13347, u"%sには %s 以上 %s 未満の値を入力してください。"},
  {13348, u"%sには%sより大きく%s以下の値を入力してください。"},
  {13349, u"%sには%sより大きく%s未満の値を入力してください。"},
  // The keys "Dialog\\..." name settings that exist already, so neither the spelling "ZodicalLight"
  // nor the unused 13479 is to be mended.
  {13359, u"Dialog\\Planet"},
  {13360, u"Dialog\\DwarfPlanet"},
  {13361, u"Dialog\\NSat"},
  {13362, u"Solar.Planet.Satellite.Name.Color"},
  {13363, u"Dialog\\SunMoon"},
  {13368, u"表示倍率には %d から %d までの値を入力してください。"},
  {13374, u"Dialog\\Comet"},
  {13375, u"Dialog\\MinorPlanet"},
  {13380, u"計算期間には %.2f から %.2f までの値を入力してください。"},
  {13381, u"表示倍率には %.2f から %.2f までの値を入力してください。"},
  {13389, u"インポート中"},
  // The larger satellites, name and designation.
  {13397, u"月"}, {13398, u"地球I"},
  {13399, u"フォボス"}, {13400, u"火星I"},
  {13401, u"ダイモス"}, {13402, u"火星II"},
  {13403, u"イオ"}, {13404, u"木星I"},
  {13405, u"エウロパ"}, {13406, u"木星II"},
  {13407, u"ガニメデ"}, {13408, u"木星III"},
  {13409, u"カリスト"}, {13410, u"木星IV"},
  {13411, u"アマルテア"}, {13412, u"木星V"},
  {13413, u"ミマス"}, {13414, u"土星I"},
  {13415, u"エンケラドス"}, {13416, u"土星II"},
  {13417, u"テチス"}, {13418, u"土星III"},
  {13419, u"ディオネ"}, {13420, u"土星IV"},
  {13421, u"レア"}, {13422, u"土星V"},
  {13423, u"タイタン"}, {13424, u"土星VI"},
  {13425, u"ハイペリオン"}, {13426, u"土星VII"},
  {13427, u"イアペタス"}, {13428, u"土星VIII"},
  {13429, u"アリエル"}, {13430, u"天王星I"},
  {13431, u"ウンブリエル"}, {13432, u"天王星II"},
  {13433, u"タイタニア"}, {13434, u"天王星III"},
  {13435, u"オベロン"}, {13436, u"天王星IV"},
  {13437, u"ミランダ"}, {13438, u"天王星V"},
  {13439, u"トリトン"}, {13440, u"海王星I"},
  {13441, u"ネレイド"}, {13442, u"海王星II"},
  {13443, u"カロン"}, {13444, u"冥王星I"},
  {13475, u"Dialog\\PlanetTex"},
  {13478, u"Dialog\\ZodicalLight"},
  {13479, u"Dialog\\Solar"},
  {13480, u"Dialog\\DustTrail"},
  {13481, u"Dialog\\Meteorite"},
};
// clang-format on

static_assert(std::ranges::is_sorted(kTexts, {}, &NumberedText::number));

}  // namespace

QString LoadString(int number) {
  const auto found = std::ranges::lower_bound(kTexts, number, {}, &NumberedText::number);
  if (found == std::end(kTexts) || found->number != number) return {};
  return QString::fromUtf16(found->text);
}

}  // namespace vyn
