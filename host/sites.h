// Places from which the demo planetarium looks at the sky.
#pragma once

#include <array>

#include <QStringView>

namespace vyn {

struct NamedSite {
  QStringView name;
  double longitudeDeg;  ///< east positive
  double latitudeDeg;
  int heightMeters;
};

// clang-format off
inline constexpr std::array<NamedSite, 14> kSites{{
  {u"札幌",               141.35,  43.06,   20},
  {u"仙台",               140.87,  38.27,   40},
  {u"東京",               139.75,  35.65,   40},
  {u"名古屋",             136.91,  35.18,   15},
  {u"大阪",               135.50,  34.69,   10},
  {u"福岡",               130.40,  33.59,    5},
  {u"那覇",               127.68,  26.21,   10},
  {u"ホノルル",          -157.86,  21.31,    5},
  {u"ロンドン",            -0.13,  51.51,   25},
  {u"ニューヨーク",       -74.01,  40.71,   10},
  {u"レイキャビク",       -21.94,  64.15,   20},
  {u"シドニー",           151.21, -33.87,   20},
  {u"サンティアゴ",       -70.67, -33.45,  570},
  {u"アムンゼン・スコット基地", 0.00, -90.00, 2835},
}};
// clang-format on

}  // namespace vyn
