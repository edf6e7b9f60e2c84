#include "host/dialog_catalogue.h"

#include <algorithm>

#include "host/image_dialog_help.h"
#include "image_data/corona_dialog.h"
#include "image_data/planet_texture_dialog.h"
#include "image_data/sunspot_dialog.h"
#include "image_data/taken_image_dialog.h"
#include "major_bodies/dwarf_planet_dialog.h"
#include "major_bodies/planet_dialog.h"
#include "major_bodies/satellite_dialog.h"
#include "major_bodies/solar_dialog.h"
#include "major_bodies/sun_dialog.h"
#include "major_bodies/zodiacal_light_dialog.h"
#include "small_bodies/comet_dialog.h"
#include "small_bodies/dust_trail_dialog.h"
#include "small_bodies/meteorite_dialog.h"
#include "small_bodies/minor_planet_dialog.h"

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

constexpr char16_t kPlanetHelp[] =
    uR"(# 惑星

惑星ごとに、名前や補助線を描くかどうかを決めます。列の下の「オン」「オフ」は全惑星をまとめて切り替えます。

- **名称**、**等級表示**、**日付表示** は惑星のそばに並びます。
- **地名** と **引出線** は地球と火星にあります。円盤を大きく映すと見えます。
- **コンパス** は円盤の周りの東西南北、**グリッド** は惑星の経緯線です。
- **Ｌ点** は太陽とのラグランジュ点です。
- **空の軌道** は空の表示で、**軌道** と **軌道面** は太陽系表示で選べます。軌道面には黄道面も添えます。
- **黄道垂線** は軌道から黄道面に下ろした線です。軌道を表示しているときに描きます。
- **表示倍率** は円盤を1から500倍に拡大します。
- **移動量表示** は計算期間に動く量を矢印で描きます。表示倍率は矢印の長さの倍率です。

「キャンセル」は開いたときの状態に戻します。
)";

constexpr char16_t kDwarfPlanetHelp[] =
    uR"(# 準惑星

ケレス、冥王星、ハウメア、マケマケ、エリスの描き方を決めます。使い方は「惑星」と同じです。

- 円盤はたいへん小さいので、コンパスとグリッドは **表示倍率** を上げて拡大すると見えます。
- マケマケの自転軸は知られていないので、グリッドは黄道の北を軸として描きます。
)";

constexpr char16_t kSatelliteHelp[] =
    uR"(# 衛星

惑星と準惑星の衛星を一つずつ切り替えます。左の一覧で惑星を選ぶと、その衛星だけが並びます。

- **表示** (V)、**名称** (N)、**日本語** (J)、**英語** (E)、**番号** (M)、**軌道** (O) はクリックか括弧内のキーで切り替えます。
- 日本語の名前のない衛星は、英語の名前か仮符号で示します。
- 「全衛星」のボタンは、並んでいる衛星をまとめて切り替えます。
- 空では惑星を拡大すると見えます。小さな不規則衛星の位置は目安です。
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

constexpr char16_t kCometHelp[] =
    uR"(# 彗星

彗星を一覧で選び、表示や名称、軌道、テイルを切り替えます。等級と軌道タイプでまとめて表示することもできます。

軌道要素の新規作成、編集、削除、インポートは現在の軌道要素ファイルに書き込まれ、「キャンセル」では元に戻りません。
)";

constexpr char16_t kMinorPlanetHelp[] =
    uR"(# 小惑星

小惑星を一覧で選び、表示や名称、軌道を切り替えます。等級、軌道タイプ、スペクトル型でまとめて表示することもできます。
)";

constexpr char16_t kMeteoriteHelp[] =
    uR"(# 隕石

軌道の知られた隕石の落下を一覧し、表示、名称、軌道を切り替えます。
)";

constexpr char16_t kDustTrailHelp[] =
    uR"(# ダストトレイル

流星群のもとになるダストトレイルを一覧し、表示と軌道を切り替えます。
)";

constexpr char16_t kCometTailHelp[] =
    uR"(# テイル編集

彗星のテイルの描き方を決めます。変更はすぐに星図に反映されます。

- **放出期間** 何日前までに放出された塵やイオンを描くか。**自動調整** では太陽から遠いほど長くなります。
- **βmin**・**βmax** 塵が太陽の光から受ける力と重力との比の範囲です。
- **アウトライン表示** は縁の線を描きます。

「キャンセル」で開いたときの状態に戻ります。
)";

/// Opened on a comet, not from the list of dialogs.
const DialogEntry kCometTail = {13011, u"comet_tail", u"", nullptr, u"", u"", kCometTailHelp};

// Not constexpr: the sanitizers' build takes no view of so long a text as a constant.
// clang-format off
const DialogEntry kDialogs[] = {
  {13004, u"sun_moon",       u"太陽・月(&S)...",         &Make<CDlgSun>,           u"太陽・月の名称", u"太陽 Sun",   kSunHelp},
  {13002, u"planets",        u"惑星(&P)...",             &Make<CDlgPlanet>,        u"惑星の名称",     u"木星 Jupiter", kPlanetHelp},
  {13005, u"dwarf_planets",  u"準惑星(&D)...",           &Make<CDlgDwarfPlanet>,   u"準惑星の名称",   u"冥王星 Pluto", kDwarfPlanetHelp},
  {13003, u"satellites",     u"衛星(&N)...",             &Make<CDlgSat>,           u"衛星の名称",     u"イオ Io",      kSatelliteHelp},
  {13000, u"comets",         u"彗星(&E)...",             &Make<CDlgComet>,         u"彗星の名称",     u"1P ハレー",    kCometHelp},
  {13001, u"minor_planets",  u"小惑星(&M)...",           &Make<CDlgMinorPlanet>,   u"小惑星の名称",   u"4 ベスタ",     kMinorPlanetHelp},
  {13017, u"meteorites",     u"隕石(&F)...",             &Make<CDlgMeteorite>,     u"隕石の名称",     u"プリブラム",   kMeteoriteHelp},
  {13018, u"dust_trails",    u"ダストトレイル(&U)...",   &Make<CDlgDustTrail>,     u"ダストトレイル", u"しし座流星群", kDustTrailHelp},
  {13019, u"solar_system",   u"太陽系その他(&O)...",     &Make<CDlgSolar>,         u"領域の表示",     u"メインベルト", kSolarHelp},
  {13015, u"zodiacal_light", u"黄道光・対日照(&Z)...",   &Make<CDlgZodiacalLight>, u"",               u"",             kZodiacalLightHelp},
  {13016, u"corona",         u"太陽コロナ(&C)...",       &Make<CDlgCorona>,        u"",               u"",             kCoronaHelp},
  {13014, u"sunspots",       u"太陽黒点(&K)...",         &Make<CDlgSunSpot>,       u"",               u"",             kSunspotHelp},
  {13013, u"taken_images",   u"太陽・惑星画像(&I)...",   &Make<CDlgTakenImg>,      u"",               u"",             kTakenImageHelp},
  {13012, u"textures",       u"惑星テクスチャ(&T)...",   &Make<CDlgPlanetTex>,     u"",               u"",             kPlanetTextureHelp},
};
// clang-format on

}  // namespace

std::span<const DialogEntry> DialogCatalogue() { return kDialogs; }

const DialogEntry* FindDialog(int templateNumber) {
  if (templateNumber == kCometTail.templateNumber) return &kCometTail;
  const auto found = std::find_if(
      std::begin(kDialogs), std::end(kDialogs),
      [=](const DialogEntry& entry) { return entry.templateNumber == templateNumber; });
  return found != std::end(kDialogs) ? &*found : nullptr;
}

}  // namespace vyn
