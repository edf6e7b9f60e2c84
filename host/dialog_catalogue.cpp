#include "host/dialog_catalogue.h"

#include <algorithm>

#include "major_bodies/solar_dialog.h"
#include "major_bodies/sun_dialog.h"
#include "major_bodies/zodiacal_light_dialog.h"

namespace vyn {
namespace {

template <class Dialog>
CVynDialog* Make(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent) {
  return new Dialog(commandHandle, secondHandle, parent);
}

constexpr char16_t kSunHelp[] =
    uR"(# 太陽・月

太陽と月の描き方を決めます。変更はすぐに星図に反映されます。

- **表示** 天体を描くかどうか。「表面」は光っている面、「輪郭」は縁と明暗境界線だけを描きます。
- **名称** 日本語または英語の名前。**日付** は名前の後に月日を添えます。
- **コンパス** 円盤の周りに東西南北、**グリッド** は天体の経緯線です。
- **実サイズ表示** を外すと、小さくても位相がわかる大きさ（半径10画素以上）で描きます。
- **光芒** 太陽の周りの輝きです。
- **日食** 太陽系表示で地球に近づくと、地球儀の上に皆既・金環帯と月の影の輪郭を描きます。
- **月食** 月の距離での地球の影（本影・半影）の縁です。
- **地名** と **引出線** は月を拡大したときに見えます。**Ｌ点** はラグランジュ点です。

「キャンセル」は開いたときの状態に戻します。
)";

constexpr char16_t kSolarHelp[] =
    uR"(# 太陽系その他

太陽系の中の領域を描きます。いずれも太陽系表示で見えます。

- **小惑星メインベルト**、**エッジワース・カイパーベルト** は天体の密集する範囲です。
- **ハビタブルゾーン** は水が液体でいられる範囲（0.99から1.70 au）です。
- **オールトの雲** は10万 auまで広がります。「自動表示」では、遠ざかるにつれて現れます。
- **宇宙スケール** は光の届く時間などの目盛りの円です。
)";

constexpr char16_t kZodiacalLightHelp[] =
    uR"(# 黄道光・対日照

惑星間の塵が散らす淡い光を描きます。

- **黄道光** 太陽から黄道に沿って伸びる光です。日没後の西や日の出前の東で目立ちます。
- **対日照** 太陽の反対側のわずかな明るみです。見やすいように強調してあります。
)";

// clang-format off
constexpr DialogEntry kDialogs[] = {
  {13004, u"sun_moon",       u"太陽・月(&S)...",         &Make<CDlgSun>,           u"太陽・月の名称", u"太陽 Sun",   kSunHelp},
  {13019, u"solar_system",   u"太陽系その他(&O)...",     &Make<CDlgSolar>,         u"領域の表示",     u"メインベルト", kSolarHelp},
  {13015, u"zodiacal_light", u"黄道光・対日照(&Z)...",   &Make<CDlgZodiacalLight>, u"",               u"",             kZodiacalLightHelp},
};
// clang-format on

}  // namespace

std::span<const DialogEntry> DialogCatalogue() { return kDialogs; }

const DialogEntry* FindDialog(int templateNumber) {
  const auto found = std::find_if(
      std::begin(kDialogs), std::end(kDialogs),
      [=](const DialogEntry& entry) { return entry.templateNumber == templateNumber; });
  return found != std::end(kDialogs) ? &*found : nullptr;
}

}  // namespace vyn
