// The Sun, the Moon, the planets and the dwarf planets as the demo planetarium shows them: paths,
// names, colours.
#pragma once

#include <array>
#include <optional>

#include <QColor>
#include <QStringView>

#include "host/sky_body.h"

namespace vyn {

struct BodyRow {
  SkyBody body;
  QStringView path;  ///< in the core engine's property tree
  QStringView japaneseName;
  QStringView englishName;
  QRgb color;
};

// clang-format off
inline constexpr std::array<BodyRow, kSkyBodyCount> kBodies{{
  {SkyBody::Sun,     u"Solar.Sun",            u"太陽",   u"Sun",     0xFFFFF2C8},
  {SkyBody::Moon,    u"Solar.Moon",           u"月",     u"Moon",    0xFFD8D4C8},
  {SkyBody::Mercury, u"Solar.Planet.Mercury", u"水星",   u"Mercury", 0xFFD0C4B4},
  {SkyBody::Venus,   u"Solar.Planet.Venus",   u"金星",   u"Venus",   0xFFFFF4D0},
  {SkyBody::Earth,   u"Solar.Planet.Earth",   u"地球",   u"Earth",   0xFF4F86D8},
  {SkyBody::Mars,    u"Solar.Planet.Mars",    u"火星",   u"Mars",    0xFFFF9A6B},
  {SkyBody::Jupiter, u"Solar.Planet.Jupiter", u"木星",   u"Jupiter", 0xFFFFDDB0},
  {SkyBody::Saturn,  u"Solar.Planet.Saturn",  u"土星",   u"Saturn",  0xFFF2DE9C},
  {SkyBody::Uranus,  u"Solar.Planet.Uranus",  u"天王星", u"Uranus",  0xFFA8E8E8},
  {SkyBody::Neptune, u"Solar.Planet.Neptune", u"海王星", u"Neptune", 0xFF86A8FF},
  {SkyBody::Ceres,    u"Solar.DwarfPlanet.Ceres",    u"ケレス",   u"Ceres",    0xFFC8BEB4},
  {SkyBody::Pluto,    u"Solar.DwarfPlanet.Pluto",    u"冥王星",   u"Pluto",    0xFFE6C8A8},
  {SkyBody::Haumea,   u"Solar.DwarfPlanet.Haumea",   u"ハウメア", u"Haumea",   0xFFD8E0E8},
  {SkyBody::Makemake, u"Solar.DwarfPlanet.Makemake", u"マケマケ", u"Makemake", 0xFFE8B090},
  {SkyBody::Eris,     u"Solar.DwarfPlanet.Eris",     u"エリス",   u"Eris",     0xFFE0E0F0},
}};
// clang-format on

constexpr std::size_t IndexOf(SkyBody body) { return static_cast<std::size_t>(body); }
constexpr const BodyRow& RowOf(SkyBody body) { return kBodies[IndexOf(body)]; }

/// Lines about a body have its colour, fainter.
inline QColor OrbitColor(SkyBody body) {
  QColor color = QColor::fromRgb(RowOf(body).color);
  color.setAlpha(150);
  return color;
}
inline QColor PerpendicularColor(SkyBody body) {
  QColor color = QColor::fromRgb(RowOf(body).color);
  color.setAlpha(80);
  return color;
}

/// The body with this path in any casing and by any of its names; nothing for other objects.
std::optional<SkyBody> BodyOfPath(QStringView path);

}  // namespace vyn
