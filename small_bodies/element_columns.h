// The columns that the lists of comets and of minor planets have in common, in their order.
#pragma once

#include <array>

#include "small_bodies/object_column.h"

namespace vyn {

// clang-format off
inline constexpr std::array kNameColumns{
  ObjectColumn{.title = u"名称(日本語)", .path = u".JapaneseName", .stretches = true},
  ObjectColumn{.title = u"名称(英語)",   .path = u".EnglishName",  .stretches = true},
  ObjectColumn{.title = u"個別",         .kind = ObjectColumnKind::Check,     .key = 'V', .path = u".Individual"},
  ObjectColumn{.title = u"等級限定",     .kind = ObjectColumnKind::Indicator, .path = u".Brighter",    .bitmap = 13200},
  ObjectColumn{.title = u"軌道タイプ",   .kind = ObjectColumnKind::Indicator, .path = u".OrbitalType", .bitmap = 13201},
};

inline constexpr std::array kSwitchColumns{
  ObjectColumn{.title = u"符号",         .kind = ObjectColumnKind::Check, .key = 'Q', .path = u".ID.Visible",           .use = ColumnUse::WhenShown},
  ObjectColumn{.title = u"名称(日本語)", .kind = ObjectColumnKind::Check, .key = 'J', .path = u".JapaneseName.Visible", .use = ColumnUse::WhenShown},
  ObjectColumn{.title = u"名称(英語)",   .kind = ObjectColumnKind::Check, .key = 'G', .path = u".EnglishName.Visible",  .use = ColumnUse::WhenShown},
  ObjectColumn{.title = u"等級",         .kind = ObjectColumnKind::Check, .key = 'T', .path = u".Magnitude",            .use = ColumnUse::WhenShown},
  ObjectColumn{.title = u"日付",         .kind = ObjectColumnKind::Check, .key = 'U', .path = u".Date",                 .use = ColumnUse::WhenShown},
  ObjectColumn{.title = u"移動量",       .kind = ObjectColumnKind::Check, .key = 'R', .path = u".Vector",               .use = ColumnUse::WhenShown},
  ObjectColumn{.title = u"空の軌道",     .kind = ObjectColumnKind::Check, .key = 'K', .path = u".Orbit.InTheSky",       .use = ColumnUse::WhenShownInSky},
  ObjectColumn{.title = u"軌道",         .kind = ObjectColumnKind::Check, .key = 'X', .path = u".Orbit",                .use = ColumnUse::WhenShownInSolarMode},
  ObjectColumn{.title = u"軌道面",       .kind = ObjectColumnKind::Check, .key = 'Z', .path = u".OrbitalPlane",         .use = ColumnUse::WhenShownInSolarMode, .secondPath = u".EclipticPlane"},
  ObjectColumn{.title = u"黄道垂線",     .kind = ObjectColumnKind::Check, .key = 'L', .path = u".Orbit.Perpendicular",  .use = ColumnUse::WhenShownInSolarMode},
};
// clang-format on

/// The column of identifiers, as wide as the sample.
constexpr std::array<ObjectColumn, 1> IdentifierColumn(QStringView sample) {
  return {{{.title = u"認識符号", .path = u".ID", .sample = sample, .isIdentifier = true}}};
}

/// One table of the parts.
template <std::size_t... Counts>
constexpr auto JoinedColumns(const std::array<ObjectColumn, Counts>&... parts) {
  std::array<ObjectColumn, (Counts + ...)> columns;
  std::size_t next = 0;
  const auto append = [&](const auto& part) {
    for (const ObjectColumn& column : part) columns[next++] = column;
  };
  (append(parts), ...);
  return columns;
}

}  // namespace vyn
