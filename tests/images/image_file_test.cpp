// Image files of every kind, real ones against their known pixels and made ones with hostile
// contents.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

#include <QGuiApplication>

#include "tests/images/image_bytes.h"
#include "tests/images/made_images.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

QString DataPath(const char* name) {
  return QStringLiteral(VYN_TEST_DATA "/") + QString::fromLatin1(name);
}

struct RealCase {
  const char* file;
  const char* expected;
  double tolerance;
};

class RealImage : public testing::TestWithParam<RealCase> {};

TEST_P(RealImage, LooksAsItShould) {
  const QImage expected(DataPath(GetParam().expected));
  EXPECT_LE(Difference(LoadImageFile(DataPath(GetParam().file)), expected), GetParam().tolerance);
}

INSTANTIATE_TEST_SUITE_P(
    , RealImage,
    testing::Values(RealCase{"earth_512x256.png", "earth_512x256.png", 0.0},
                    RealCase{"earth_512x256_alpha.png", "earth_512x256_alpha.png", 0.0},
                    RealCase{"earth_512x256_exif6.jpg", "earth_512x256.png", 4.0},
                    RealCase{"earth_512x256_dxt1.dds", "earth_512x256.png", 4.0},
                    RealCase{"earth_512x256_alpha_dxt5_mips.dds", "earth_512x256_alpha.png", 4.0},
                    RealCase{"earth_512x256_rle32.tga", "earth_512x256_alpha.png", 0.0}),
    [](const auto& info) {
      return QString::fromLatin1(info.param.file).replace(u'.', u'_').toStdString();
    });

TEST(ImageFile, IsKnownByItsContent) {
  const QImage expected(DataPath("earth_512x256.png"));
  EXPECT_EQ(Difference(LoadBytes(DataBytes("earth_512x256.png"), u"a.fits"_s), expected), 0.0);
  EXPECT_LE(Difference(LoadBytes(DataBytes("earth_512x256_dxt1.dds"), u"a.jpg"_s), expected), 4.0);
  EXPECT_TRUE(LoadBytes("GIF89a\1\0\1\0\0\0\0,", u"a.png"_s).isNull());
  EXPECT_TRUE(LoadBytes("", u"a.png"_s).isNull());
  EXPECT_TRUE(LoadImageFile(u"/no/such/file.png"_s).isNull());
  EXPECT_TRUE(LoadImageFile(QStringLiteral(VYN_TEST_DATA)).isNull());
}

TEST(ImageFile, CutShortIsRefused) {
  for (const char* name : {"earth_512x256.png", "earth_512x256_exif6.jpg", "earth_512x256_dxt1.dds",
                           "earth_512x256_rle32.tga", "made_sun193_256_int16.fits",
                           "made_sun193_256_tile_rice_1.fits"}) {
    const QByteArray whole = DataBytes(name);
    for (const qsizetype length : {whole.size() * 2 / 5, qsizetype{60}, qsizetype{7}}) {
      EXPECT_TRUE(LoadBytes(whole.first(length), QString::fromLatin1(name)).isNull())
          << name << ' ' << length;
    }
  }
  const QByteArray bmp = Encoded(QImage(DataPath("earth_512x256.png")), "BMP");
  EXPECT_FALSE(LoadBytes(bmp, u"a.bmp"_s).isNull());
  EXPECT_TRUE(LoadBytes(bmp.first(bmp.size() / 2), u"a.bmp"_s).isNull());
}

TEST(ImageFile, ABitmapMayLackItsFileHeader) {
  const QImage expected(DataPath("earth_512x256.png"));
  EXPECT_EQ(Difference(LoadBytes(Encoded(expected, "BMP").sliced(14), u"a.dib"_s), expected), 0.0);
}

TEST(ImageFile, TooLargeIsRefusedBeforeMemoryIsTaken) {
  QImage line(40'000, 1, QImage::Format_Grayscale8);
  line.fill(0);
  EXPECT_TRUE(LoadBytes(Encoded(line, "PNG"), u"wide.png"_s).isNull());
  QByteArray tga(18, '\0');
  tga[2] = 10;
  Put<quint16>(tga, 12, 32'000);
  Put<quint16>(tga, 14, 32'000);
  tga[16] = 24;
  EXPECT_TRUE(LoadBytes(tga + "\xFF\1\2\3", u"bomb.tga"_s).isNull());
  QByteArray dds = DataBytes("earth_512x256_dxt1.dds");
  Put<quint32>(dds, 12, 0xFFFFFFFF);
  Put<quint32>(dds, 16, 0x80000000);
  EXPECT_TRUE(LoadBytes(dds, u"bomb.dds"_s).isNull());
  QByteArray bmp = Encoded(QImage(DataPath("earth_512x256.png")), "BMP");
  Put<qint32>(bmp, 18, 30'000);
  Put<qint32>(bmp, 22, -30'000);
  EXPECT_TRUE(LoadBytes(bmp, u"bomb.bmp"_s).isNull());
}

TEST(Tga, EachKindOfPixel) {
  const QImage bottomUp = LoadBytes(TgaHeader(2, 1, 2, 24, 0) + "\1\2\3\4\5\6", u"a.tga"_s);
  EXPECT_EQ(bottomUp.pixel(0, 1), qRgb(3, 2, 1));
  EXPECT_EQ(bottomUp.pixel(0, 0), qRgb(6, 5, 4));
  const QImage mirrored = LoadBytes(TgaHeader(3, 2, 1, 8, 0x30) + "\x10\x20", u"a.trg"_s);
  EXPECT_EQ(mirrored.pixel(0, 0), qRgb(0x20, 0x20, 0x20));
  const QImage packed = LoadBytes(TgaHeader(2, 1, 1, 16, 0x20) + "\x1F\x7C", u"a.tga"_s);
  EXPECT_EQ(packed.pixel(0, 0), qRgb(255, 0, 255));
  QByteArray mapped = TgaHeader(9, 3, 1, 8, 0x20);
  mapped[1] = 1;
  Put<quint16>(mapped, 5, 2);
  mapped[7] = 24;
  const QByteArray mapAndPackets("\1\1\1\2\2\2\x81\1\0\7", 10);
  const QImage colors = LoadBytes(mapped + mapAndPackets, u"a.tga"_s);
  EXPECT_EQ(colors.pixel(0, 0), qRgb(2, 2, 2));
  EXPECT_EQ(colors.pixel(1, 0), qRgb(2, 2, 2));
  EXPECT_EQ(colors.pixel(2, 0), qRgb(0, 0, 0));  // beyond the map
}

TEST(Dds, UncompressedPixelsFollowTheirMasks) {
  QByteArray dds = DdsHeader({2, 1}, 0x41, QByteArray(4, '\0'));
  PutPixelFormat(dds, 16, {0x0F00, 0x00F0, 0x000F, 0xF000});
  const QImage image = LoadBytes(dds + QByteArray("\x21\xF3\x0F\x00", 4), u"a.dds"_s);
  EXPECT_EQ(image.pixel(0, 0), qRgba(0x33, 0x22, 0x11, 0xFF));
  EXPECT_TRUE(LoadBytes(dds + "\x21\xF3", u"a.dds"_s).isNull());
}

/// All pixels red; where there is an alpha, half of it.
TEST(Dds, EachKindOfBlock) {
  const QByteArray red("\x00\xF8\x00\xF8\0\0\0\0", 8);
  const QByteArray halfByFourBits(8, '\x88');
  const QByteArray halfByEnds("\x88\x88\0\0\0\0\0\0", 8);
  const auto extended = [](char number) -> QByteArray {
    return DdsHeader({4, 4}, 4, "DX10") + QByteArray(1, number) + QByteArray(19, '\0');
  };
  const std::pair<QByteArray, int> cases[] = {
      {DdsHeader({4, 4}, 4, "DXT1") + red, 255},
      {DdsHeader({4, 4}, 4, "DXT3") + halfByFourBits + red, 0x88},
      {DdsHeader({4, 4}, 4, "DXT5") + halfByEnds + red, 0x88},
      {extended(71) + red, 255},
      {extended(74) + halfByFourBits + red, 0x88},
      {extended(77) + halfByEnds + red, 0x88},
  };
  for (const auto& [bytes, alpha] : cases) {
    EXPECT_EQ(LoadBytes(bytes, u"a.dds"_s).pixel(3, 3), qRgba(255, 0, 0, alpha))
        << bytes.constData();
    EXPECT_TRUE(LoadBytes(bytes.chopped(1), u"a.dds"_s).isNull());
  }
  const QByteArray grey = DdsHeader({4, 4}, 4, "ATI1") + halfByEnds;
  EXPECT_EQ(qRed(LoadBytes(grey, u"a.dds"_s).pixel(3, 3)), 0x88);
  EXPECT_TRUE(LoadBytes(DdsHeader({4, 4}, 4, "BC7?") + halfByFourBits + red, u"a.dds"_s).isNull());
}

/// The first corner of the stored picture is dark.
TEST(ImageFile, EveryOrientationOfAPhotographIsCarriedOut) {
  QImage stored(16, 8, QImage::Format_RGB32);
  stored.fill(Qt::white);
  for (int i = 0; i < 16; ++i) stored.setPixel(i % 4, i / 4, qRgb(0, 0, 0));
  const QByteArray jpeg = Encoded(stored, "JPEG");
  const QPoint dark[] = {{1, 1}, {14, 1}, {14, 6}, {1, 6}, {1, 1}, {6, 1}, {6, 14}, {1, 14}};
  for (int orientation = 1; orientation <= 8; ++orientation) {
    QByteArray exif("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0?\0\0\0\0\0\0\0", 32);
    exif[24] = static_cast<char>(orientation);
    const QByteArray segment = QByteArray("\xFF\xE1\0", 3) + char(2 + exif.size()) + exif;
    const QImage image = LoadBytes(jpeg.first(2) + segment + jpeg.sliced(2), u"a.jpe"_s);
    EXPECT_EQ(image.size(), orientation < 5 ? QSize(16, 8) : QSize(8, 16)) << orientation;
    EXPECT_LT(qGray(image.pixel(dark[orientation - 1])), 60) << orientation;
    EXPECT_GT(qGray(image.pixel(image.width() / 2, image.height() / 2)), 200) << orientation;
  }
}

/// A ramp of 0, 1 ... 5, upwards row by row, is black at the bottom left.
void ExpectRamp(const QImage& image) {
  ASSERT_EQ(image.size(), QSize(3, 2));
  EXPECT_EQ(qGray(image.pixel(0, 1)), 0);
  EXPECT_EQ(qGray(image.pixel(2, 1)), 102);
  EXPECT_EQ(qGray(image.pixel(0, 0)), 153);
  EXPECT_EQ(qGray(image.pixel(2, 0)), 255);
}

TEST(Fits, EveryKindOfNumberIsStretched) {
  const std::vector<double> ramp{0, 1, 2, 3, 4, 5};
  const std::pair<int, QByteArray> cases[] = {
      {8, BigEndian<quint8>(ramp)},  {16, BigEndian<qint16>(ramp)}, {32, BigEndian<qint32>(ramp)},
      {64, BigEndian<qint64>(ramp)}, {-32, BigEndian<float>(ramp)}, {-64, BigEndian<double>(ramp)},
  };
  for (const auto& [bitpix, data] : cases) {
    SCOPED_TRACE(bitpix);
    ExpectRamp(
        LoadBytes(FitsWriter().Part(kSimple, Shape(bitpix, {3, 2}), data).Bytes(), u"a.fit"_s));
  }
}

TEST(Fits, HonoursScaleAndBlanks) {
  auto cards = Shape(16, {3, 2});
  cards.push_back("BSCALE  =                 -2.0");
  cards.push_back("BZERO   =              32768.0");
  const QByteArray falling = BigEndian<qint16>({0, -1, -2, -3, -4, -5});
  ExpectRamp(LoadBytes(FitsWriter().Part(kSimple, cards, falling).Bytes(), u"a.fts"_s));
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const QImage holed =
      LoadBytes(FitsWriter()
                    .Part(kSimple, Shape(-32, {3, 2}), BigEndian<float>({10, nan, 12, 13, 14, 15}))
                    .Bytes(),
                u"a.fits"_s);
  EXPECT_EQ(qGray(holed.pixel(1, 1)), 0);
  EXPECT_EQ(qGray(holed.pixel(2, 1)), 102);
}

TEST(Fits, TakesTheFirstImageAndColorPlanes) {
  FitsWriter extended;
  extended.Part(kSimple, {IntCard("BITPIX", 8), IntCard("NAXIS", 0)}, {});
  auto cards = Shape(8, {3, 2});
  cards.push_back(IntCard("PCOUNT", 0));
  cards.push_back(IntCard("GCOUNT", 1));
  extended.Part("XTENSION= 'IMAGE   '", cards, BigEndian<quint8>({0, 1, 2, 3, 4, 5}));
  ExpectRamp(LoadBytes(extended.Bytes(), u"a.fits"_s));
  const QByteArray planes = BigEndian<quint8>({0, 255, 255, 0, 0, 0});
  const QImage colors =
      LoadBytes(FitsWriter().Part(kSimple, Shape(8, {2, 1, 3}), planes).Bytes(), u"a.fits"_s);
  EXPECT_EQ(colors.pixel(0, 0), qRgb(0, 255, 0));
  EXPECT_EQ(colors.pixel(1, 0), qRgb(255, 0, 0));
}

TEST(Fits, TilesAreTheSameImage) {
  const QImage plain = LoadImageFile(DataPath("made_sun193_256_int16.fits"));
  EXPECT_EQ(plain.size(), QSize(256, 256));
  EXPECT_LE(Difference(LoadImageFile(DataPath("made_sun193_256_tile_rice_1.fits")), plain), 1.0);
}

TEST(Fits, HostileHeadersAreRefused) {
  const QByteArray data(2880, '\1');
  EXPECT_TRUE(
      LoadBytes(FitsWriter().Part(kSimple, Shape(-64, {30'000, 30'000}), data).Bytes(), u"a.fits"_s)
          .isNull());
  EXPECT_TRUE(
      LoadBytes(FitsWriter().Part(kSimple, Shape(8, {100'000, 2}), data).Bytes(), u"a.fits"_s)
          .isNull());
  EXPECT_TRUE(
      LoadBytes(FitsWriter().Part(kSimple, Shape(17, {3, 2}), data).Bytes(), u"a.fits"_s).isNull());
  QByteArray tiles = DataBytes("made_sun193_256_tile_rice_1.fits");
  const qsizetype tile = tiles.indexOf("ZTILE1");
  ASSERT_GT(tile, 0);
  tiles.replace(tile + 10, 20, QByteArray("2000000000").rightJustified(20));
  EXPECT_TRUE(LoadBytes(tiles, u"a.fits"_s).isNull());
}

}  // namespace
}  // namespace vyn

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const QGuiApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
