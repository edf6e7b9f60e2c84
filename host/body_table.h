// The Sun, the Moon and the planets as the demo planetarium shows them: paths, names, colours.
#pragma once

#include <array>
#include <optional>

#include <QColor>
#include <QStringView>

#include "engine/sky/bodies.h"

namespace vyn {

struct BodyRow {
  Body body;
  QStringView path;  ///< in the core engine's property tree
  QStringView japaneseName;
  QStringView englishName;
  QRgb color;
};

// clang-format off
inline constexpr std::array<BodyRow, kBodyCount> kBodies{{
  {Body::Sun,     u"Solar.Sun",            u"太陽",   u"Sun",     0xFFFFF2C8},
  {Body::Moon,    u"Solar.Moon",           u"月",     u"Moon",    0xFFD8D4C8},
  {Body::Mercury, u"Solar.Planet.Mercury", u"水星",   u"Mercury", 0xFFD0C4B4},
  {Body::Venus,   u"Solar.Planet.Venus",   u"金星",   u"Venus",   0xFFFFF4D0},
  {Body::Earth,   u"Solar.Planet.Earth",   u"地球",   u"Earth",   0xFF4F86D8},
  {Body::Mars,    u"Solar.Planet.Mars",    u"火星",   u"Mars",    0xFFFF9A6B},
  {Body::Jupiter, u"Solar.Planet.Jupiter", u"木星",   u"Jupiter", 0xFFFFDDB0},
  {Body::Saturn,  u"Solar.Planet.Saturn",  u"土星",   u"Saturn",  0xFFF2DE9C},
  {Body::Uranus,  u"Solar.Planet.Uranus",  u"天王星", u"Uranus",  0xFFA8E8E8},
  {Body::Neptune, u"Solar.Planet.Neptune", u"海王星", u"Neptune", 0xFF86A8FF},
}};
// clang-format on

constexpr std::size_t IndexOf(Body body) { return static_cast<std::size_t>(body); }
constexpr const BodyRow& RowOf(Body body) { return kBodies[IndexOf(body)]; }
constexpr bool IsPlanet(Body body) { return body >= Body::Mercury; }

/// The body with this path in any casing and by any of its names; nothing for other objects.
std::optional<Body> BodyOfPath(QStringView path);

}  // namespace vyn
