// The state with which the demo planetarium starts.
#include <gtest/gtest.h>

#include "tests/engine/engine_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

class StartingState : public testing::Test {
 protected:
  void SetUp() override { engine_.LoadStartingState(); }
  QString Ask(const QString& path) { return engine_.Doit(u"? "_s + path); }
  ReferenceEngine engine_;
};

TEST_F(StartingState, IsAnEveningInTokyo) {
  EXPECT_EQ(Ask(u"time"_s), u"jst(2026, 1, 1, 21, 0, 0.000000)"_s);
  EXPECT_EQ(engine_.JulianDate(), 2461042.0);
  EXPECT_NEAR(engine_.Number(u"location.longitude"), 139.75, 0.01);
  EXPECT_EQ(Ask(u"View.Coordinate"_s), u"Horizon"_s);
}

/// What a dialog asks of a body it shows must not come back empty.
TEST_F(StartingState, EveryBodyHasItsSwitchesAndNames) {
  const QStringList features{u"visible"_s,      u"japanesename.visible"_s, u"englishname.visible"_s,
                             u"date.visible"_s, u"disk.compass.visible"_s, u"disk.grid.visible"_s};
  for (int body = 0; body <= 9; ++body) {
    const QString path = engine_.ObjNumToName(body);
    for (const QString& feature : features) {
      EXPECT_NE(Ask(path + u'.' + feature), u""_s) << path.toStdString();
    }
    EXPECT_TRUE(engine_.IsOn(path));
    EXPECT_FALSE(Ask(path + u".JapaneseName").isEmpty());
  }
  EXPECT_EQ(engine_.ObjNumToName(10) + engine_.ObjNumToName(-1), u""_s);
}

TEST_F(StartingState, CountsAgreeWithTheSatellitesThatAnswer) {
  const QStringList bodies{
      u"planet.mercury"_s,    u"planet.venus"_s,      u"planet.earth"_s,
      u"planet.mars"_s,       u"planet.jupiter"_s,    u"planet.saturn"_s,
      u"planet.uranus"_s,     u"planet.neptune"_s,    u"dwarfplanet.pluto"_s,
      u"dwarfplanet.eris"_s,  u"dwarfplanet.ceres"_s, u"dwarfplanet.makemake"_s,
      u"dwarfplanet.haumea"_s};
  int total = 0;
  for (const QString& body : bodies) {
    const QString satellites = u"solar.%1.satellite"_s.arg(body);
    const int count = Ask(satellites + u".count").toInt();
    for (int n = 1; n <= count; ++n) {
      EXPECT_NE(Ask(satellites + u".no%1.name"_s.arg(n)), u""_s);
      EXPECT_EQ(Ask(satellites + u".no%1.Visible"_s.arg(n)), u"TRUE"_s);
    }
    EXPECT_EQ(Ask(satellites + u".no%1.Visible"_s.arg(count + 1)), u""_s);
    total += count;
  }
  EXPECT_EQ(Ask(u"solar.planet.satellite.count"_s).toInt(), total);
}

TEST_F(StartingState, SatellitesHaveTheirNamesAndNumbers) {
  const auto called = [this](const QString& satellite) {
    const QString path = u"solar."_s + satellite;
    return QStringList{Ask(path + u".name"), Ask(path + u".englishname"), Ask(path + u".number")};
  };
  using Words = QStringList;
  EXPECT_EQ(called(u"moon"_s), (Words{u"月"_s, u"Moon"_s, u"I"_s}));
  EXPECT_EQ(called(u"planet.jupiter.Satellite.no5"_s),
            (Words{u"アマルテア"_s, u"Amalthea"_s, u"V"_s}));
  EXPECT_EQ(called(u"planet.saturn.Satellite.no8"_s),
            (Words{u"イアペタス"_s, u"Iapetus"_s, u"VIII"_s}));
  EXPECT_EQ(called(u"dwarfplanet.pluto.Satellite.no1"_s),
            (Words{u"カロン"_s, u"Charon"_s, u"I"_s}));
  EXPECT_EQ(called(u"planet.saturn.Satellite.no55"_s),
            (Words{u"Angrboda"_s, u"Angrboda"_s, u"LV"_s}));
  EXPECT_EQ(called(u"planet.jupiter.Satellite.no73"_s),
            (Words{u"S/2003 J 2"_s, u"S/2003 J 2"_s, u""_s}));
}

TEST_F(StartingState, IsTheSameOnEveryCallAndAfterInit) {
  const QString state = Ask(u"Status"_s);
  engine_.Doit(
      u"Solar.Planet.Visible = FALSE; Solar.Moon.Orbit = TRUE; time.year = 1; extra = 1"_s);
  engine_.LoadStartingState();
  EXPECT_EQ(Ask(u"Status"_s), state);
  engine_.Doit(
      u"Solar.Planet.Visible = FALSE; Solar.Moon.Orbit = TRUE; Solar.Comet.Orbit = TRUE"_s);
  engine_.Doit(u"Solar.Init()"_s);
  EXPECT_EQ(Ask(u"Status"_s), state);
}

TEST_F(StartingState, LeavesWhatWasPutInPlace) {
  engine_.SetProperty(u"View.Projection"_s, u"SolarSystem"_s);
  engine_.LoadStartingState();
  EXPECT_EQ(Ask(u"View.Projection"_s), u"SolarSystem"_s);
}

}  // namespace
}  // namespace vyn
