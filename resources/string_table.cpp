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
  // The settings keys of the dialogs. They name settings that exist already, so neither the
  // spelling "ZodicalLight" nor the unused 13479 is to be mended.
  {13359, u"Dialog\\Planet"},
  {13360, u"Dialog\\DwarfPlanet"},
  {13361, u"Dialog\\NSat"},
  {13363, u"Dialog\\SunMoon"},
  {13374, u"Dialog\\Comet"},
  {13375, u"Dialog\\MinorPlanet"},
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
