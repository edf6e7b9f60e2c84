// What the dialogs of comets, minor planets, meteorites, dust trails and comet tails switch has to
// change the picture.
#include <algorithm>
#include <fstream>

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "engine/reference_engine.h"
#include "host/frame.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

const QString kComets = QStringLiteral(VYN_DATA_DIR "/comets.eld");

QImage Picture(ReferenceEngine& engine) {
  QImage image(640, 480, QImage::Format_RGB32);
  QPainter painter(&image);
  PaintFrame(painter, ReadFrame(engine, image.size()));
  return image;
}

constexpr char16_t kSpace[] =
    u"View.Projection = SolarSystem; View.Center = Solar.Sun; View.Outside.Distance = 3";
constexpr char16_t kSky[] = u"View.Projection = Stereographic; View.Coordinate = Ecliptic";

struct SwitchCase {
  const char* name;
  const char16_t* before;
  const char16_t* click;
  bool inSpace;
  bool inTheSky;
};

/// No2 is Hale-Bopp, shown near the Sun in 1997.
constexpr SwitchCase kCases[]{
    {"individual", u"", u"Solar.Comet.No2.Individual = FALSE", true, true},
    {"id", u"", u"Solar.Comet.No2.ID.Visible = true", true, true},
    {"japanese", u"", u"Solar.Comet.No2.JapaneseName.Visible = true", true, true},
    {"english", u"", u"Solar.Comet.No2.EnglishName.Visible = true", true, true},
    {"magnitude", u"", u"Solar.Comet.No2.Magnitude = true", true, true},
    {"date", u"", u"Solar.Comet.No2.Date = true", true, true},
    {"vector", u"Solar.Comet.No2.Vector.Span = 9; Solar.Comet.Vector.Span = 9",
     u"Solar.Comet.No2.Vector = true", true, true},
    {"multiplier", u"Solar.Comet.Vector.Span = 9; Solar.Comet.No2.Vector = true",
     u"Solar.Comet.Vector.Multiplier = 3", true, true},
    {"orbit", u"", u"Solar.Comet.No2.Orbit = true", true, false},
    {"orbit_in_the_sky", u"", u"Solar.Comet.No2.Orbit.InTheSky = true", false, true},
    {"orbital_plane", u"", u"Solar.Comet.No2.OrbitalPlane = true", true, false},
    {"ecliptic_plane", u"", u"Solar.Comet.No2.EclipticPlane = true", true, false},
    {"perpendicular", u"", u"Solar.Comet.No2.Orbit.Perpendicular = true", true, false},
    {"ion_tail", u"", u"Solar.Comet.No2.IonTail = true", true, true},
    {"dust_tail", u"", u"Solar.Comet.No2.DustTail = true", true, true},
    {"outline", u"Solar.Comet.No2.DustTail = true", u"Solar.Comet.No2.DustTail.Outline = true",
     true, true},
    {"emission", u"Solar.Comet.No2.DustTail = true",
     u"Solar.Comet.No2.Dusttail.EmissionSpan = 50.000000", true, true},
    {"beta_max", u"Solar.Comet.No2.DustTail = true", u"Solar.Comet.No2.Dusttail.BetaMax = 3.000000",
     true, true},
    {"beta_min", u"Solar.Comet.No2.DustTail = true", u"Solar.Comet.No2.Dusttail.BetaMin = 0.900000",
     true, true},
    {"ion_emission", u"Solar.Comet.No2.IonTail = true",
     u"Solar.Comet.No2.Iontail.EmissionSpan = 9.000000", true, true},
    {"auto_span", u"time = jst(1997, 8, 1, 0, 0, 0); Solar.Comet.No2.DustTail = true",
     u"Solar.Comet.No2.AutoEmissionSpan = FALSE", true, false},
    {"type", u"Solar.Comet.Individual = False",
     u"Solar.Comet.OrbitalType.LongPeriod.Visible = true", true, true},
    {"brighter", u"Solar.Comet.Individual = False", u"Solar.Comet.Brighter.Visible = True", true,
     true},
    {"all_comets", u"", u"Solar.Comet = FALSE", true, true},
    {"meteorite", u"View.Angle = 200", u"Solar.Meteorite.No22.Visible = true", true, true},
    {"meteorite_name", u"View.Angle = 200; Solar.Meteorite.No22.Visible = true",
     u"Solar.Meteorite.No22.JapaneseName.Visible = false", true, true},
    {"meteorite_orbit", u"View.Angle = 200; Solar.Meteorite.No22.Visible = true",
     u"Solar.Meteorite.No22.Orbit.Visible = false", true, false},
    {"dust_trail", u"View.Angle = 200", u"Solar.DustTrail.No11.Visible = true", true, true},
    {"dust_trail_orbit", u"View.Angle = 200; Solar.DustTrail.No11.Visible = true",
     u"Solar.DustTrail.No11.Orbit.Visible = false", true, false},
    {"dust_trail_color", u"View.Angle = 200; Solar.DustTrail.No11.Visible = true",
     u"Solar.DustTrail.DustStream.Color = #ff00ff", true, true},
};

class SmallBodySwitch : public testing::TestWithParam<SwitchCase> {};

TEST_P(SmallBodySwitch, ChangesThePicturesItIsFor) {
  const SwitchCase& row = GetParam();
  ReferenceEngine engine;
  ASSERT_TRUE(engine.LoadElements(ElementKind::Comet, kComets));
  engine.LoadStartingState();
  engine.Doit(
      u"time = jst(1997, 4, 1, 21, 0, 0); Solar.Comet.Individual = False;"
      u"Solar.Comet.No2.Individual = true; View.Longitude = 45; View.Latitude = 30;"
      u"View.Angle = 60; Solar.Planet.Visible = FALSE; Solar.Sun.Visible = FALSE"_s);
  engine.Doit(QString::fromUtf16(row.before));
  const QString views[] = {QString::fromUtf16(kSpace), QString::fromUtf16(kSky)};
  QImage before[2];
  for (int i = 0; i < 2; ++i) {
    engine.Doit(views[i]);
    before[i] = Picture(engine);
  }
  engine.Doit(QString::fromUtf16(row.click));
  const bool expected[] = {row.inSpace, row.inTheSky};
  for (int i = 0; i < 2; ++i) {
    engine.Doit(views[i]);
    EXPECT_EQ(Picture(engine) != before[i], expected[i]) << (i == 0 ? "in space" : "in the sky");
  }
}

INSTANTIATE_TEST_SUITE_P(All, SmallBodySwitch, testing::ValuesIn(kCases),
                         [](const auto& info) { return info.param.name; });

/// The demo's comets, made minor planets.
TEST(MinorPlanets, AreShownAsPointsAndSymbolsAndWithTheirAids) {
  std::ifstream source(kComets.toStdString(), std::ios::binary);
  std::string records{std::istreambuf_iterator<char>(source), {}};
  for (std::size_t at = 0; at < records.size(); at += 417) records[at] = 'M';
  QTemporaryDir folder;
  const QString file = folder.filePath(u"minor.eld"_s);
  std::ofstream(file.toStdString(), std::ios::binary) << records;
  ReferenceEngine engine;
  ASSERT_TRUE(engine.LoadElements(ElementKind::MinorPlanet, file));
  engine.LoadStartingState();
  engine.Doit(QString::fromUtf16(kSpace));
  QImage last = Picture(engine);
  for (const char16_t* click :
       {u"Solar.MinorPlanet.Symbolic = True", u"Solar.MinorPlanet.No1.Orbit.Visible = true",
        u"Solar.MinorPlanet.Individual.Visible = false", u"time = jst(2030, 1, 1, 0, 0, 0)",
        u"Solar.MinorPlanet.OrbitalType.Apollo.Visible = true"}) {
    engine.Doit(QString::fromUtf16(click));
    const QImage next = Picture(engine);
    EXPECT_NE(next, last) << QString::fromUtf16(click).toStdString();
    last = next;
  }
}

}  // namespace
}  // namespace vyn
