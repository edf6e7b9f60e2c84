// Which objects of an element class are shown, by types and by brightness; orbits of meteorites.
#include <cmath>
#include <fstream>
#include <set>

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "engine/element_table.h"
#include "engine/sky/bodies.h"
#include "engine/sky/dust_trails.h"
#include "engine/sky/meteorites.h"
#include "engine/sky/sky_snapshot.h"
#include "engine/sky/time_scales.h"
#include "engine/small_body_types.h"
#include "tests/engine/engine_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

class DisplayLimitsTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(
        engine_.LoadElements(ElementKind::Comet, QStringLiteral(VYN_DATA_DIR "/comets.eld")));
    engine_.LoadStartingState();
    Ask(u"Solar.Comet.Individual.Visible = FALSE"_s);
  }

  QString Ask(const QString& command) { return engine_.Doit(command); }
  int CountShown() { return Ask(u"? Solar.Comet.CountOfVisible"_s).toInt(); }

  ReferenceEngine engine_;
};

TEST_F(DisplayLimitsTest, EveryCometHasOneTypeAndEachTypeShowsItsOwn) {
  EXPECT_EQ(CountShown(), 0);
  const int types = Ask(u"? Solar.Comet.OrbitalType.Count"_s).toInt();
  int total = 0;
  for (int n = 1; n <= types; ++n) {
    const QString member = u"? Solar.Comet.OrbitalType.#"_s + QString::number(n);
    EXPECT_FALSE(Ask(member + u".LocalName").isEmpty());
    const QString type = u"Solar.Comet.OrbitalType."_s + Ask(member + u".ObjectName");
    Ask(type + u".Visible = true");
    total += CountShown();
    Ask(type + u".Visible = false");
  }
  EXPECT_EQ(total, Ask(u"? Solar.Comet.Count"_s).toInt());
}

TEST_F(DisplayLimitsTest, AnObjectTellsWhyItIsShown) {
  const int halley = engine_.Elements(ElementKind::Comet).IndexOf(u"1P");
  ASSERT_GE(halley, 0);
  const QString path = u"? Solar.Comet.No"_s + QString::number(halley + 1);
  const auto reasons = [&] {
    return Ask(path + u"; "_s + path + u".Individual; "_s + path + u".Brighter; "_s + path +
               u".OrbitalType");
  };
  EXPECT_EQ(reasons(), u"FALSEFALSEFALSEFALSE"_s);
  Ask(u"Solar.Comet.OrbitalType.HalleyType = true"_s);
  EXPECT_EQ(reasons(), u"TRUEFALSEFALSETRUE"_s);
  Ask(u"Solar.Comet.OrbitalType.HalleyType = false; Solar.Comet.Brighter.Visible = True;"
      u"Solar.Comet.Brighter.Magnitude = 30.0"_s);
  EXPECT_EQ(reasons(), u"TRUEFALSETRUEFALSE"_s);
  Ask(path.sliced(2) + u".Brighter = FALSE; Solar.Comet.Brighter.Visible = False");
  EXPECT_EQ(reasons(), u"FALSEFALSEFALSEFALSE"_s) << "what is told cannot be set";
}

TEST_F(DisplayLimitsTest, TheMagnitudeLimitFollowsTheMomentShown) {
  Ask(u"Solar.Comet.Brighter.Visible = True; Solar.Comet.Brighter.Magnitude = 6.0"_s);
  const QString halley =
      u"? Solar.Comet.No%1.Brighter"_s.arg(engine_.Elements(ElementKind::Comet).IndexOf(u"1P") + 1);
  EXPECT_EQ(Ask(halley), u"FALSE"_s);
  Ask(u"time = jst(2061, 8, 6, 0, 0, 0)"_s);
  EXPECT_EQ(Ask(halley), u"TRUE"_s);
  const auto shown = engine_.ShownObjects(ElementKind::Comet);
  EXPECT_EQ(CountShown(), static_cast<int>(shown.size()));
  const double jdTt = TtFromUt(engine_.JulianDate());
  const StateVector earth = HeliocentricState(Body::Earth, jdTt);
  std::vector<int> bright;
  const ElementTable& table = engine_.Elements(ElementKind::Comet);
  for (int i = 0; i < table.Count(); ++i) {
    const SmallBody body = table.BodyAt(i, jdTt);
    const Vector3 place = PositionAt(body.orbit, jdTt);
    const double coefficient = body.magnitudeCoefficient;
    const double magnitude =
        CometMagnitude(body.absoluteMagnitude, std::isnan(coefficient) ? 4.0 : coefficient,
                       IlluminationOf(place, place - earth.position));
    if (magnitude <= 6.0) bright.push_back(i);
  }
  EXPECT_EQ(shown, bright);
}

TEST_F(DisplayLimitsTest, TheScriptBringsLimitsBack) {
  Ask(u"Solar.Comet.OrbitalType.EnckeType = true; Solar.Comet.No3.Individual = true;"
      u"Solar.Comet.Brighter.Visible = True; Solar.Comet.No2.Dusttail.BetaMin = 0.5"_s);
  const int shown = CountShown();
  const QString script = Ask(u"? Solar.Comet.Status"_s);
  const QString state = Ask(u"? Status"_s);
  Ask(u"Solar.Comet.Init()"_s);
  EXPECT_EQ(CountShown(), Ask(u"? Solar.Comet.Count"_s).toInt()) << "all start shown";
  Ask(script);
  EXPECT_EQ(CountShown(), shown);
  EXPECT_EQ(Ask(u"? Status"_s), state);
}

struct TypeCase {
  const char* body;
  ElementKind kind;
  double q, e, inclinationDeg;
  const char16_t* type;
};

// Elements: Minor Planet Center, rounded.
TEST(SmallBodyTypesTest, WellKnownBodiesAreOfTheirTypes) {
  constexpr auto kComet = ElementKind::Comet;
  constexpr auto kMinor = ElementKind::MinorPlanet;
  const TypeCase cases[] = {
      {"Halley", kComet, 0.571, 0.968, 162.2, u"HalleyType"},
      {"Encke", kComet, 0.339, 0.847, 11.3, u"EnckeType"},
      {"Churyumov-Gerasimenko", kComet, 1.21, 0.650, 3.9, u"JupiterFamily"},
      {"Chiron", kComet, 8.51, 0.379, 6.9, u"ChironType"},
      {"Hale-Bopp", kComet, 0.922, 0.9949, 89.8, u"LongPeriod"},
      {"a parabola", kComet, 1.0, 1.0, 40.0, u"Parabolic"},
      {"Borisov", kComet, 2.007, 3.36, 44.1, u"Hyperbolic"},
      {"Aten", kMinor, 0.790, 0.183, 18.9, u"Aten"},
      {"Apollo", kMinor, 0.647, 0.560, 6.4, u"Apollo"},
      {"Amor", kMinor, 1.083, 0.436, 11.9, u"Amor"},
      {"Aethra", kMinor, 1.594, 0.389, 25.0, u"MarsCrosser"},
      {"Hungaria", kMinor, 1.801, 0.074, 22.5, u"InnerBelt"},
      {"Vesta", kMinor, 2.151, 0.089, 7.1, u"MainBelt"},
      {"Hilda", kMinor, 3.415, 0.141, 7.8, u"OuterBelt"},
      {"Achilles", kMinor, 4.443, 0.147, 10.3, u"JupiterTrojan"},
      {"Hidalgo", kMinor, 1.944, 0.661, 42.5, u"Centaur"},
      {"Eris", kMinor, 38.3, 0.436, 44.0, u"TransNeptunian"},
  };
  for (const TypeCase& row : cases) {
    const OrbitElements orbit{
        .perihelionDistanceAu = row.q, .eccentricity = row.e, .inclinationDeg = row.inclinationDeg};
    const int type = OrbitalTypeOf(row.kind, orbit);
    EXPECT_EQ(OrbitalTypesOf(row.kind)[type].objectName, QStringView(row.type)) << row.body;
  }
}

/// The first comets of the demo's file, made minor planets with these numbers.
TEST(SmallBodyTypesTest, SpectralTypesAreCountedByNumber) {
  constexpr int kRecordSize = 417;
  constexpr const char* kNumbers[] = {"4", "(16)", "00003", "999999"};
  std::ifstream source(VYN_DATA_DIR "/comets.eld", std::ios::binary);
  std::string records(4 * kRecordSize, ' ');
  source.read(records.data(), static_cast<std::streamsize>(records.size()));
  for (int i = 0; i < 4; ++i) {
    records[i * kRecordSize] = 'M';
    records.replace(i * kRecordSize + 9, 10, (kNumbers[i] + std::string(10, ' ')).substr(0, 10));
  }
  QTemporaryDir folder;
  const QString file = folder.filePath(u"minor.eld"_s);
  std::ofstream(file.toStdString(), std::ios::binary) << records;
  ReferenceEngine engine;
  ASSERT_TRUE(engine.LoadElements(ElementKind::MinorPlanet, file));
  const auto ask = [&](const QString& feature) {
    return engine.Doit(u"? Solar.MinorPlanet."_s + feature);
  };
  EXPECT_EQ(ask(u"SpectralType.S.Count"_s), QString()) << "the bare engine knows no types";
  engine.LoadStartingState();
  engine.Doit(u"Solar.MinorPlanet.Individual.Visible = FALSE"_s);
  EXPECT_EQ(ask(u"SpectralType.S.Count"_s) + ask(u"SpectralType.m.Count"_s) +
                ask(u"SpectralType.V.Count"_s) + ask(u"SpectralType.C.Count"_s),
            u"1110"_s);
  engine.Doit(u"Solar.MinorPlanet.SpectralType.M.Visible = true"_s);
  EXPECT_EQ(ask(u"CountOfVisible"_s) + ask(u"No2.SpectralType"_s) + ask(u"No3.SpectralType"_s),
            u"1TRUEFALSE"_s);
  std::ofstream(file.toStdString() + ".new", std::ios::binary) << records.substr(kRecordSize);
  std::rename((file.toStdString() + ".new").c_str(), file.toStdString().c_str());
  engine.Doit(u"Solar.MinorPlanet.No1.DataRemove = True"_s);
  EXPECT_EQ(ask(u"SpectralType.V.Count"_s) + ask(u"No1.SpectralType"_s), u"0TRUE"_s);
}

/// A digit mistaken in the table would lead the body past the Earth.
TEST(MeteoritesTest, EachMeetsTheEarthWhenItFell) {
  for (const Meteorite& meteorite : RecordedMeteorites()) {
    const double jd = TtFromUt(meteorite.FallJdUt());
    const Vector3 earth = HeliocentricState(Body::Earth, jd).position;
    EXPECT_LT(Length(PositionAt(meteorite.Orbit(), jd) - earth), 0.04)
        << meteorite.englishName.toString().toStdString();
  }
}

TEST(DustTrailsTest, EachComesNearTheEarthsOrbit) {
  for (const DustTrail& trail : KnownDustTrails()) {
    double nearest = 10.0;
    for (const Vector3& place : OrbitPolyline(trail.orbit, 4000, 3.0)) {
      nearest = std::min(nearest, std::hypot(std::hypot(place.x, place.y) - 1.0, place.z));
    }
    EXPECT_LT(nearest, 0.25) << trail.parent.toString().toStdString();
  }
}

TEST_F(DisplayLimitsTest, MeteoritesAndTrailsAnswerWhatTheirListsAsk) {
  const int meteorites = Ask(u"? Solar.Meteorite.Count"_s).toInt();
  ASSERT_GT(meteorites, 10);
  EXPECT_EQ(Ask(u"? Solar.Meteorite.No1.JapaneseName; ? Solar.Meteorite.No1.Visible"_s),
            u"プリブラムFALSE"_s);
  EXPECT_NEAR(Ask(u"? Solar.Meteorite.No1.TimeOfFall"_s).toDouble(), 2436666.3127, 1e-4);
  Ask(u"Solar.Meteorite.Visible = true; Solar.Meteorite.JapaneseName.Visible = false"_s);
  EXPECT_EQ(
      Ask(u"? Solar.Meteorite.No%1; ? Solar.Meteorite.No1.JapaneseName.Visible"_s.arg(meteorites)),
      u"truefalse"_s);
  EXPECT_EQ(Ask(u"? Solar.DustTrail.No11.Name"_s), u"しし座流星群 (55P/Tempel-Tuttle)"_s);
}

}  // namespace
}  // namespace vyn
