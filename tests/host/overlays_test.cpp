// Photographs and sunspots over the disks: where their parts come to lie in the picture.
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "engine/reference_engine.h"
#include "engine/sky/time_scales.h"
#include "host/frame.h"
#include "host/overlay_painter.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kSide = 240;
const QRgb kUp = qRgb(255, 0, 0), kRight = qRgb(0, 255, 0), kDown = qRgb(0, 0, 255),
           kLeft = qRgb(255, 255, 0);

/// Four triangles that meet in the middle of the disk.
QString WritePhotograph(const QTemporaryDir& folder, QPoint middle) {
  QImage image(kSide, kSide + 60, QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QPoint at = QPoint(x, y) - middle;
      const bool isUpright = std::abs(at.y()) > std::abs(at.x());
      image.setPixel(x, y, isUpright ? (at.y() < 0 ? kUp : kDown) : (at.x() < 0 ? kLeft : kRight));
    }
  }
  const QString path = folder.filePath(u"photograph.png"_s);
  EXPECT_TRUE(image.save(path));
  return path;
}

/// A disk in the middle of a picture whose north points up, or elsewhere, in degrees clockwise.
Disk DiskInPicture(double northDeg) {
  Disk disk;
  disk.center = {200.0, 200.0};
  disk.radius = 50.0;
  const double angle = northDeg * 3.14159265358979 / 180.0;
  disk.north = {std::sin(angle), std::cos(angle), 0.0};
  return disk;
}

QImage Painted(const Disk& disk, const ImageOverlay& overlay) {
  QImage picture(400, 400, QImage::Format_RGB32);
  picture.fill(Qt::black);
  QPainter painter(&picture);
  BodyOverlays overlays;
  overlays.images.push_back(overlay);
  PaintImageOverlays(painter, disk, overlays);
  return picture;
}

QString ColorAt(const QImage& picture, int x, int y) { return picture.pixelColor(x, y).name(); }
QString NameOf(QRgb color) { return QColor(color).name(); }

TEST(OverlayTest, APhotographLiesWhereItsDiskIs) {
  const QTemporaryDir folder;
  // The disk is 24 right and 12 above the image's middle, and 60 in radius.
  const QString path = WritePhotograph(folder, {kSide / 2 + 24, kSide / 2 + 30 - 12});
  const Placement placement{0.1, -0.05, 0.25, 0.0};
  const QImage upright = Painted(DiskInPicture(0.0), {path, placement});
  EXPECT_EQ(ColorAt(upright, 200, 160), NameOf(kUp));
  EXPECT_EQ(ColorAt(upright, 240, 200), NameOf(kRight));
  EXPECT_EQ(ColorAt(upright, 200, 240), NameOf(kDown));
  EXPECT_EQ(ColorAt(upright, 160, 200), NameOf(kLeft));
  // Its edges: 96 of 120 pixels to the right, at 50 pixels for 60.
  EXPECT_EQ(ColorAt(upright, 200 + 78, 200), NameOf(kRight));
  EXPECT_EQ(ColorAt(upright, 200 + 83, 200), u"#000000"_s);
  EXPECT_EQ(ColorAt(upright, 200 - 118, 200), NameOf(kLeft));
  EXPECT_EQ(ColorAt(upright, 200 - 123, 200), u"#000000"_s);
}

TEST(OverlayTest, NorthOfAPhotographPointsToTheCelestialPole) {
  const QTemporaryDir folder;
  const QString path = WritePhotograph(folder, {kSide / 2, kSide / 2 + 30});
  Placement placement{0.0, 0.0, 0.25, 90.0};
  // North is to the right in the image, and up in the picture.
  EXPECT_EQ(ColorAt(Painted(DiskInPicture(0.0), {path, placement}), 200, 160), NameOf(kRight));
  // North is up in the image, and to the right in the picture.
  placement.rollDeg = 0.0;
  EXPECT_EQ(ColorAt(Painted(DiskInPicture(90.0), {path, placement}), 240, 200), NameOf(kUp));
}

TEST(OverlayTest, OpacityMixesAndAMissingFileShowsNothing) {
  const QTemporaryDir folder;
  const QString path = WritePhotograph(folder, {kSide / 2, kSide / 2 + 30});
  const QImage half = Painted(DiskInPicture(0.0), {path, {}, 0.5});
  EXPECT_NEAR(qRed(half.pixel(200, 170)), 128, 2);
  const QImage none = Painted(DiskInPicture(0.0), {folder.filePath(u"none.png"_s), {}});
  EXPECT_EQ(ColorAt(none, 200, 170), u"#000000"_s);
}

/// The engine with its starting state, looking at the body.
class OverlaySkyTest : public testing::Test {
 protected:
  OverlaySkyTest() { engine_.LoadStartingState(); }

  QImage Picture(const QString& commands) {
    engine_.Doit(commands);
    QImage image(480, 480, QImage::Format_RGB32);
    QPainter painter(&image);
    PaintFrame(painter, ReadFrame(engine_, image.size()));
    return image;
  }

  QTemporaryDir folder_;
  ReferenceEngine engine_;
};

TEST_F(OverlaySkyTest, SwitchesDecideWhichPhotographsAreShown) {
  const QString path = WritePhotograph(folder_, {kSide / 2, kSide / 2 + 30});
  engine_.Doit(
      u"solar.sun.corona.Add(); solar.sun.corona.#1.imagefile = %1;"
      u"solar.sun.TakenImage.Add(); solar.sun.takenImage.#1.imagefile = %1;"
      u"solar.planet.mars.surface.#3.file = %1; solar.planet.mars.surface.#3.visible = true"_s.arg(
          path));
  const auto images = [this] { return ReadOverlays(engine_).sun.images.size(); };
  EXPECT_EQ(images(), 0U);
  engine_.Doit(u"solar.sun.corona.visible = true; solar.sun.corona.brightness = 0.5"_s);
  ASSERT_EQ(images(), 1U);
  EXPECT_EQ(ReadOverlays(engine_).sun.images[0].opacity, 0.5);
  engine_.Doit(u"solar.sun.takenImage.visible = true"_s);
  EXPECT_EQ(images(), 2U);
  engine_.Doit(u"solar.sun.corona.#1.visible = false"_s);
  EXPECT_EQ(images(), 1U);
  EXPECT_EQ(ReadOverlays(engine_).mars.layers.size(), 1U);
}

TEST_F(OverlaySkyTest, TheSkyShowsACoronaAroundTheSun) {
  const QString path = WritePhotograph(folder_, {kSide / 2, kSide / 2 + 30});
  const QImage before = Picture(
      u"View.Center = Solar.Sun; View.Center.Track = TRUE; View.Angle = 3;"
      u"solar.sun.halo.visible = FALSE"_s);
  const QImage after = Picture(
      u"solar.sun.corona.Add(); solar.sun.corona.#1.imagefile = %1;"
      u"solar.sun.corona.visible = true"_s.arg(path));
  // One and a half solar radii off the middle, to all sides.
  for (const QPoint off : {QPoint(60, 0), QPoint(-60, 0), QPoint(0, 60), QPoint(0, -60)}) {
    const QPoint at = QPoint(240, 240) + off;
    EXPECT_NE(before.pixel(at), after.pixel(at)) << off.x() << ' ' << off.y();
  }
}

TEST_F(OverlaySkyTest, ASpotStandsAtItsHeliographicPlace) {
  const QImage before = Picture(
      u"View.Center = Solar.Sun; View.Center.Track = TRUE; View.Angle = 1;"
      u"solar.sun.sunspot.Add()"_s);
  const double longitude = engine_.Doit(u"? solar.sun.sunspot.#1.CM"_s).toDouble();
  const double latitude = engine_.Doit(u"? solar.sun.sunspot.#1.De"_s).toDouble();
  const QString add = u"solar.sun.sunspot.visible = true; solar.sun.sunspot.#1.Add(%1, %2, 4"_s;
  const QImage middle = Picture(add.arg(longitude).arg(latitude));
  EXPECT_LT(qGray(middle.pixel(240, 240)), qGray(before.pixel(240, 240)) / 2);
  engine_.Doit(u"solar.sun.sunspot.#1.Delete(1)"_s);
  EXPECT_EQ(Picture(add.arg(longitude + 180.0).arg(latitude)), before);
}

/// Mars on a day, with a layer of the photograph taken `days` before.
class SurfaceLayerTest : public testing::Test {
 protected:
  QImage Painted(double daysBefore, double rangeDeg) {
    const double jdUt = CalcJd(2025, 1, 16.0);
    const double jdTt = TtFromUt(jdUt);
    SceneBody mars{SkyBody::Mars, HeliocentricState(SkyBody::Mars, jdTt).position};
    mars.seen = mars.heliocentric - HeliocentricState(SkyBody::Earth, jdTt).position;
    const Vector3 pole = Transposed(ToBodyFixed(SkyBody::Mars, jdTt)) * Vector3{0.0, 0.0, 1.0};
    const Vector3 right = Normalized(Cross(mars.seen, pole));
    const Vector3 up = Normalized(Cross(right, mars.seen));
    const double lightDays = Length(mars.seen) / kLightAuPerDay;
    Disk disk = DiskOf(mars, jdTt - lightDays, mars.seen, {right, up}, pole);
    disk.center = {200.0, 200.0};
    disk.radius = 150.0;
    QImage picture(400, 400, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    const QString path = WritePhotograph(folder_, {kSide / 2, kSide / 2 + 30});
    BodyOverlays overlays;
    overlays.layers.push_back({{path, {0.0, 0.0, 0.4, 0.0}}, jdUt - daysBefore, rangeDeg});
    PaintSurfaceOverlays(painter, SkyBody::Mars, disk, overlays);
    return picture;
  }

  QTemporaryDir folder_;
};

TEST_F(SurfaceLayerTest, IsThePhotographAtTheMomentWhenItWasTaken) {
  const QImage picture = Painted(0.0, 90.0);
  EXPECT_EQ(ColorAt(picture, 200, 120), NameOf(kUp));
  EXPECT_EQ(ColorAt(picture, 280, 200), NameOf(kRight));
  EXPECT_EQ(ColorAt(picture, 200, 280), NameOf(kDown));
  EXPECT_EQ(ColorAt(picture, 120, 200), NameOf(kLeft));
  EXPECT_EQ(ColorAt(picture, 200 + 155, 200), u"#000000"_s);
}

TEST_F(SurfaceLayerTest, TurnsWithTheBody) {
  // A quarter of a turn of Mars later its west has come from the middle to the right.
  constexpr double kMarsDay = 1.02595676;
  const QImage quarter = Painted(kMarsDay / 4.0, 90.0);
  EXPECT_EQ(ColorAt(quarter, 215, 200), NameOf(kLeft));
  EXPECT_EQ(ColorAt(quarter, 120, 200), u"#000000"_s);
  EXPECT_EQ(ColorAt(Painted(kMarsDay, 90.0), 280, 200), NameOf(kRight));
}

TEST_F(SurfaceLayerTest, ReachesAsFarAsItsRange) {
  const QImage picture = Painted(0.0, 30.0);
  EXPECT_EQ(ColorAt(picture, 200 + 70, 200), NameOf(kRight));
  EXPECT_EQ(ColorAt(picture, 200 + 80, 200), u"#000000"_s);
}

}  // namespace
}  // namespace vyn
