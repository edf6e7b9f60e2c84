#include "host/surface_places.h"

#include "host/moon_features.h"

namespace vyn {
namespace {

// clang-format off
constexpr SurfacePlace kEarth[] = {
  {u"太平洋",           u"Pacific Ocean",    -160.0,   0.0, 12000},
  {u"アジア",           u"Asia",               90.0,  48.0,  8000},
  {u"アフリカ",         u"Africa",             20.0,   3.0,  7500},
  {u"大西洋",           u"Atlantic Ocean",    -38.0,  22.0,  7000},
  {u"インド洋",         u"Indian Ocean",       80.0, -22.0,  7000},
  {u"北アメリカ",       u"North America",    -100.0,  46.0,  6500},
  {u"南アメリカ",       u"South America",     -58.0, -14.0,  6000},
  {u"南極大陸",         u"Antarctica",         70.0, -80.0,  4500},
  {u"サハラ砂漠",       u"Sahara",             12.0,  23.0,  4500},
  {u"オーストラリア",   u"Australia",         134.0, -25.0,  4000},
  {u"北極海",           u"Arctic Ocean",     -170.0,  83.0,  4000},
  {u"ヨーロッパ",       u"Europe",             22.0,  52.0,  4000},
  {u"アンデス山脈",     u"Andes",             -68.5, -22.0,  3500},
  {u"地中海",           u"Mediterranean Sea",  18.0,  35.0,  3500},
  {u"カリブ海",         u"Caribbean Sea",     -75.0,  15.0,  2600},
  {u"ヒマラヤ山脈",     u"Himalaya",           84.0,  28.5,  2400},
  {u"グリーンランド",   u"Greenland",         -41.0,  73.0,  2200},
  {u"日本",             u"Japan",             138.0,  36.5,  2000},
  {u"ニューギニア",     u"New Guinea",        141.0,  -5.0,  1700},
  {u"マダガスカル",     u"Madagascar",         46.7, -19.0,  1500},
  {u"ニュージーランド", u"New Zealand",       172.0, -42.0,  1500},
  {u"メキシコ湾",       u"Gulf of Mexico",    -90.0,  25.0,  1500},
  {u"日本海",           u"Sea of Japan",      134.5,  40.0,  1100},
  {u"アルプス山脈",     u"Alps",               10.0,  46.5,  1000},
  {u"アイスランド",     u"Iceland",           -18.7,  64.9,   500},
  {u"ハワイ",           u"Hawaii",           -157.0,  20.5,   500},
  {u"エベレスト",       u"Mount Everest",      86.9,  28.0,    60},
  {u"東京",             u"Tokyo",             139.8,  35.7,    60},
  {u"北京",             u"Beijing",           116.4,  39.9,    60},
  {u"シンガポール",     u"Singapore",         103.8,   1.3,    60},
  {u"デリー",           u"Delhi",              77.2,  28.6,    60},
  {u"シドニー",         u"Sydney",            151.2, -33.9,    60},
  {u"カイロ",           u"Cairo",              31.2,  30.0,    60},
  {u"ケープタウン",     u"Cape Town",          18.4, -33.9,    60},
  {u"ロンドン",         u"London",             -0.1,  51.5,    60},
  {u"パリ",             u"Paris",               2.4,  48.9,    60},
  {u"ニューヨーク",     u"New York",          -74.0,  40.7,    60},
  {u"ロサンゼルス",     u"Los Angeles",      -118.2,  34.1,    60},
  {u"リオデジャネイロ", u"Rio de Janeiro",    -43.2, -22.9,    60},
  {u"サンティアゴ",     u"Santiago",          -70.7, -33.5,    60},
};

constexpr SurfacePlace kMars[] = {
  {u"アラビア大陸",         u"Arabia Terra",         5.7,  21.3, 4851},
  {u"マリネリス峡谷",       u"Valles Marineris",   301.4, -14.0, 3761},
  {u"ユートピア平原",       u"Utopia Planitia",    117.5,  46.7, 3560},
  {u"アキダリア平原",       u"Acidalia Planitia",  339.3,  49.8, 3363},
  {u"エリシウム平原",       u"Elysium Planitia",   154.7,   3.0, 3000},
  {u"アマゾニス平原",       u"Amazonis Planitia",  197.1,  25.7, 2772},
  {u"ヘラス平原",           u"Hellas Planitia",     70.5, -42.4, 2300},
  {u"アルカディア平原",     u"Arcadia Planitia",   184.3,  47.2, 1872},
  {u"ルナ高原",             u"Lunae Planum",       294.5,  10.9, 1817},
  {u"ソリス高原",           u"Solis Planum",       270.9, -26.6, 1692},
  {u"カセイ峡谷",           u"Kasei Valles",       297.1,  25.1, 1580},
  {u"クリュセ平原",         u"Chryse Planitia",    319.7,  28.4, 1542},
  {u"南極高原",             u"Planum Australe",    157.7, -83.4, 1450},
  {u"大シルチス",           u"Syrtis Major Planum", 67.1,   9.2, 1350},
  {u"イシディス平原",       u"Isidis Planitia",     88.4,  13.9, 1225},
  {u"夜の迷路",             u"Noctis Labyrinthus", 258.8,  -6.4, 1190},
  {u"北極高原",             u"Planum Boreum",       55.0,  87.3, 1066},
  {u"子午線高原",           u"Meridiani Planum",   356.9,   0.0, 1059},
  {u"アルギュレ平原",       u"Argyre Planitia",    316.7, -49.8,  893},
  {u"オリンポス山",         u"Olympus Mons",       226.2,  18.7,  610},
  {u"アルバ山",             u"Alba Mons",          250.4,  40.5,  530},
  {u"アルシア山",           u"Arsia Mons",         239.9,  -8.4,  470},
  {u"ホイヘンス",           u"Huygens",             55.6, -13.9,  467},
  {u"アスクレウス山",       u"Ascraeus Mons",      255.9,  11.9,  456},
  {u"スキャパレリ",         u"Schiaparelli",        16.8,  -2.7,  446},
  {u"エリシウム山",         u"Elysium Mons",       147.2,  25.0,  401},
  {u"パヴォニス山",         u"Pavonis Mons",       247.0,   1.5,  366},
  {u"グセフ",               u"Gusev",              175.5, -14.5,  158},
  {u"ゲール",               u"Gale",               137.8,  -5.4,  154},
  {u"ジェゼロ",             u"Jezero",              77.7,  18.4,   48},
};
// clang-format on

}  // namespace

std::span<const SurfacePlace> PlacesOn(SkyBody body) {
  switch (body) {
    case SkyBody::Earth:
      return kEarth;
    case SkyBody::Moon:
      return MoonFeatures();
    case SkyBody::Mars:
      return kMars;
    default:
      return {};
  }
}

}  // namespace vyn
