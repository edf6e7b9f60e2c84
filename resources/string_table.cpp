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
