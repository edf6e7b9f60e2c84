#include "host/moon_features.h"

namespace vyn {
namespace {

// clang-format off
constexpr SurfacePlace kFeatures[] = {
  {u"嵐の大洋",         u"Oceanus Procellarum", -56.7,  20.7, 2592},
  {u"雨の海",           u"Mare Imbrium",        -14.9,  34.7, 1146},
  {u"静かの海",         u"Mare Tranquillitatis", 30.8,   8.3,  876},
  {u"豊かの海",         u"Mare Fecunditatis",    53.7,  -7.8,  840},
  {u"雲の海",           u"Mare Nubium",         -17.3, -20.6,  714},
  {u"晴れの海",         u"Mare Serenitatis",     18.4,  27.3,  674},
  {u"危機の海",         u"Mare Crisium",         59.1,  16.2,  556},
  {u"湿りの海",         u"Mare Humorum",        -38.6, -24.5,  420},
  {u"神酒の海",         u"Mare Nectaris",        34.6, -15.2,  340},
  {u"寒さの海",         u"Mare Frigoris",         0.0,  57.6,  300},
  {u"蒸気の海",         u"Mare Vaporum",          4.1,  13.2,  242},
  {u"クラヴィウス",     u"Clavius",             -14.1, -58.8,  231},
  {u"ペタヴィウス",     u"Petavius",             60.4, -25.1,  184},
  {u"グリマルディ",     u"Grimaldi",            -68.3,  -5.5,  173},
  {u"プトレマイオス",   u"Ptolemaeus",           -1.9,  -9.3,  154},
  {u"ラングレヌス",     u"Langrenus",            61.1,  -8.9,  132},
  {u"エンデュミオン",   u"Endymion",             57.0,  53.9,  122},
  {u"プラトン",         u"Plato",                -9.4,  51.6,  101},
  {u"ガッサンディ",     u"Gassendi",            -40.1, -17.6,  101},
  {u"テオフィルス",     u"Theophilus",           26.4, -11.4,   99},
  {u"コペルニクス",     u"Copernicus",          -20.1,   9.6,   96},
  {u"ティコ",           u"Tycho",               -11.4, -43.3,   86},
  {u"アルキメデス",     u"Archimedes",           -4.0,  29.7,   81},
  {u"アリスタルコス",   u"Aristarchus",         -47.5,  23.7,   40},
  {u"ケプラー",         u"Kepler",              -38.0,   8.1,   30},
};

constexpr MoonSpot kSpots[] = {
  // Oceanus Procellarum, from north to south.
  {-58.0,  42.0,  9.0}, {-58.0,  28.0, 12.0}, {-55.0,  14.0, 13.0}, {-45.0,   3.0, 12.0}, {-52.0,  -4.0,  9.0},
  {-36.0,  18.0,  8.0},
  // Mare Imbrium with the Bay of Rainbows.
  {-16.0,  34.0, 17.5}, {-31.0,  44.0,  5.0},
  // Mare Serenitatis, Tranquillitatis, Crisium, Fecunditatis, Nectaris.
  { 18.0,  27.0, 10.5}, { 26.0,   9.0,  9.0}, { 36.0,   7.0,  9.0}, { 59.0,  17.0,  7.5},
  { 51.0,  -2.0,  8.0}, { 53.0, -12.0,  7.0}, { 34.5, -15.0,  5.5},
  // Mare Vaporum, Cognitum, Nubium, Humorum.
  {  4.0,  13.0,  4.0}, {-22.0,  -9.0,  7.0}, {-15.0, -20.0,  9.0}, {-38.5, -24.0,  6.5},
  // Mare Frigoris, a long band.
  {-30.0,  57.0,  4.0}, {-18.0,  58.0,  4.0}, { -5.0,  57.0,  4.0}, {  8.0,  56.0,  4.0}, { 20.0,  55.0,  4.0},
  // Grimaldi and Plato.
  {-68.3,  -5.5,  2.8}, { -9.4,  51.6,  1.7},
};
// clang-format on

}  // namespace

std::span<const SurfacePlace> MoonFeatures() { return kFeatures; }

std::span<const MoonSpot> MoonSpots() { return kSpots; }

}  // namespace vyn
