#include "host/satellite_display.h"

#include <array>

#include <QStringList>

#include "engine/reference_engine.h"
#include "host/body_table.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

struct SatelliteSwitch {
  QStringView word;
  bool SatelliteDisplay::*value;
};

// clang-format off
constexpr std::array<SatelliteSwitch, 5> kSwitches{{
  {u"",                      &SatelliteDisplay::isVisible},
  {u".Orbit",                &SatelliteDisplay::orbit},
  {u".JapaneseName.Visible", &SatelliteDisplay::japaneseName},
  {u".EnglishName.Visible",  &SatelliteDisplay::englishName},
  {u".Number.Visible",       &SatelliteDisplay::hasNumber},
}};
// clang-format on
/// Whether anything is drawn is known from the first of them.
constexpr std::size_t kShowingSwitches = 2;

struct SatellitePaths {
  Primary primary;
  int number;
  std::array<QString, kSwitches.size()> paths;
};

SatellitePaths PathsOf(Primary primary, int number) {
  SatellitePaths satellite{primary, number, {}};
  const QString node = RowOf(BodyOf(primary)).path + u".Satellite.No"_s + QString::number(number);
  for (std::size_t i = 0; i < kSwitches.size(); ++i) {
    satellite.paths[i] = node + kSwitches[i].word;
  }
  return satellite;
}

/// Made once: a frame asks for thousands of paths.
const std::vector<SatellitePaths>& AllPaths() {
  static const std::vector<SatellitePaths> paths = [] {
    std::vector<SatellitePaths> all;
    for (const Primary primary : kPrimaries) {
      if (primary == Primary::Earth) continue;
      const int count = static_cast<int>(SatellitesOf(primary).size());
      for (int number = 1; number <= count; ++number) all.push_back(PathsOf(primary, number));
    }
    return all;
  }();
  return paths;
}

}  // namespace

std::vector<SatelliteDisplay> ReadSatelliteDisplay(const ReferenceEngine& engine) {
  std::vector<SatelliteDisplay> displays;
  for (const SatellitePaths& satellite : AllPaths()) {
    SatelliteDisplay display{satellite.primary, satellite.number};
    for (std::size_t i = 0; i < kSwitches.size(); ++i) {
      if (i == kShowingSwitches && !display.isVisible && !display.orbit) break;
      display.*kSwitches[i].value = engine.IsOn(satellite.paths[i]);
    }
    if (display.isVisible || display.orbit) displays.push_back(display);
  }
  return displays;
}

QString NameOf(const Satellite& satellite, bool isJapanese) {
  if (isJapanese && !satellite.japaneseName.empty()) {
    return QStringView(satellite.japaneseName).toString();
  }
  return QString::fromUtf8(satellite.name.data(), static_cast<qsizetype>(satellite.name.size()));
}

QString NumberText(Primary primary, int number) {
  const std::string numeral = SatelliteNumeral(primary, number);
  if (numeral.empty()) return {};
  return RowOf(BodyOf(primary)).japaneseName + QString::fromStdString(numeral);
}

QString LabelText(const SatelliteDisplay& display) {
  QStringList parts;
  if (display.japaneseName || display.englishName) {
    parts << NameOf(display.Facts(), display.japaneseName);
  }
  if (display.hasNumber) parts << NumberText(display.primary, display.number);
  parts.removeAll(QString());
  return parts.join(u' ');
}

}  // namespace vyn
