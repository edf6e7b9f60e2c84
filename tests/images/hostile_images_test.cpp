// Small images of every kind, cut at every length and damaged byte by byte: what comes out is the
// image, none, or one of a size that is allowed.
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <random>

#include "tests/images/image_bytes.h"
#include "tests/images/made_images.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kMostSide = 32'767;

QImage SmallImage() {
  QImage image(7, 5, QImage::Format_RGB32);
  for (int i = 0; i < 35; ++i) image.setPixel(i % 7, i / 7, qRgb(i * 7, 255 - i, i * i % 256));
  return image;
}

QByteArray MappedTga(int firstEntry, int entries, int entryBits) {
  QByteArray header = TgaHeader(1, 2, 2, 8);
  header[1] = 1;
  Put<quint16>(header, 3, static_cast<quint16>(firstEntry));
  Put<quint16>(header, 5, static_cast<quint16>(entries));
  header[7] = static_cast<char>(entryBits);
  return header;
}

QByteArray PlainDds() {
  QByteArray header = DdsHeader({3, 2}, 0x41, QByteArray(4, '\0'));
  PutPixelFormat(header, 32, {0xFF0000, 0xFF00, 0xFF, 0xFF000000});
  return header + QByteArray("\1\2\3\xFF\4\5\6\xFF\7\10\11\xFF").repeated(2);
}

QByteArray Fits(const std::vector<QByteArray>& cards, const QByteArray& data) {
  return FitsWriter().Part(kSimple, cards, data).Bytes();
}

QByteArray SmallFits() { return Fits(Shape(16, {3, 2}), BigEndian<qint16>({1, 2, 3, 4, 5, 6})); }

struct Kind {
  const char* name;
  std::function<QByteArray()> bytes;
  int missing;  ///< so many bytes at the end may be missing, as they hold no pixels
};

class EveryKind : public testing::TestWithParam<Kind> {};

TEST_P(EveryKind, CutAtAnyLengthIsRefused) {
  const QByteArray whole = GetParam().bytes();
  const QImage expected = LoadBytes(whole);
  ASSERT_FALSE(expected.isNull());
  for (qsizetype length = 0; length < whole.size(); ++length) {
    const QImage image = LoadBytes(whole.first(length));
    const bool mayBeWhole = length >= whole.size() - GetParam().missing;
    EXPECT_TRUE(image.isNull() || (mayBeWhole && image == expected)) << length;
  }
}

TEST_P(EveryKind, AnyDamagedByteIsSurvived) {
  const QByteArray whole = GetParam().bytes();
  std::minstd_rand random(5);
  for (int round = 0; round < 400; ++round) {
    QByteArray damaged = whole;
    for (int i = 0; i <= round % 3; ++i) {
      // Most of the harm is done in headers.
      const auto reach = std::min<qsizetype>(damaged.size(), round % 2 == 0 ? 160 : 4000);
      const char hostile[] = {'\0', '\x7F', '\xFF', static_cast<char>(random())};
      damaged[static_cast<qsizetype>(random() % reach)] = hostile[random() % 4];
    }
    const QImage image = LoadBytes(damaged);
    EXPECT_LE(image.width(), kMostSide);
    EXPECT_LE(image.height(), kMostSide);
    EXPECT_LE(image.sizeInBytes(), 512LL << 20);
  }
}

const Kind kEveryKind[] = {
    {"bmp", [] { return Encoded(SmallImage(), "BMP"); }, 0},
    {"dib", [] { return Encoded(SmallImage(), "BMP").sliced(14); }, 0},
    {"jpeg", [] { return Encoded(SmallImage(), "JPEG"); }, 0},
    // Behind the pixels: their check sum and the end's mark.
    {"png", [] { return Encoded(SmallImage(), "PNG"); }, 4 + 4 + 12},
    {"tga", [] { return TgaHeader(2, 2, 2, 24).append("\1\2\3\4\5\6\7\10\11\1\2\3", 12); }, 0},
    {"tga_packets", [] { return TgaHeader(10, 3, 2, 24).append("\x84\1\2\3\0\4\5\6", 8); }, 0},
    {"tga_map", [] { return MappedTga(0, 2, 24).append("\1\2\3\4\5\6\0\1\1\0", 10); }, 0},
    {"tga_grey", [] { return TgaHeader(11, 2, 2, 8).append("\3\1\2\3\4", 5); }, 0},
    {"dds", PlainDds, 0},
    {"dds_dxt1",
     [] {
       return DdsHeader({5, 3}, 4, "DXT1").append(16, '\x5A');
     },
     0},
    {"dds_dxt5",
     [] {
       return DdsHeader({1, 1}, 4, "DXT5").append(16, '\x5A');
     },
     0},
    // What fills the last block.
    {"fits", SmallFits, 2880 - 12},
};

INSTANTIATE_TEST_SUITE_P(, EveryKind, testing::ValuesIn(kEveryKind),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(HostileTga, NothingIsReadBehindTheFile) {
  const QByteArray pixels(64, '\1');
  EXPECT_TRUE(LoadBytes(TgaHeader(2, 0, 4, 24) + pixels).isNull());
  EXPECT_TRUE(LoadBytes(TgaHeader(2, 4, 0, 24) + pixels).isNull());
  EXPECT_TRUE(LoadBytes(TgaHeader(2, 65'535, 65'535, 32) + pixels).isNull());
  EXPECT_TRUE(LoadBytes(TgaHeader(0, 2, 2, 24) + pixels).isNull());
  EXPECT_TRUE(LoadBytes(TgaHeader(2, 2, 2, 17) + pixels).isNull());
  EXPECT_TRUE(LoadBytes(TgaHeader(1, 2, 2, 8) + pixels).isNull()) << "a map that is not there";
  // A remark, and a map, that reach beyond the end.
  QByteArray remark = TgaHeader(2, 2, 2, 24);
  remark[0] = '\xFF';
  EXPECT_TRUE(LoadBytes(remark + pixels).isNull());
  EXPECT_TRUE(LoadBytes(MappedTga(0, 65'535, 32) + pixels).isNull());
  // Entries below the map's first and behind its last are black.
  const QImage mapped =
      LoadBytes(MappedTga(5, 1, 24) + QByteArray("\1\2\3", 3) + QByteArray("\4\5\6\xFF", 4));
  ASSERT_FALSE(mapped.isNull());
  EXPECT_EQ(mapped.pixel(0, 1), qRgb(0, 0, 0));
  EXPECT_EQ(mapped.pixel(1, 1), qRgb(3, 2, 1));
  EXPECT_EQ(mapped.pixel(0, 0), qRgb(0, 0, 0));
  // A packet of more pixels than the image has left stops at its end.
  const QImage packet = LoadBytes(TgaHeader(10, 2, 1, 24) + QByteArray("\xFF\1\2\3", 4));
  EXPECT_EQ(packet.pixel(1, 0), qRgb(3, 2, 1));
}

TEST(HostileDds, SizesAndMipmapsAreNotTrusted) {
  const QByteArray blocks(16, '\x5A');
  for (const auto& [width, height] : {std::pair{0, 4}, {4, 0}, {-4, 4}, {32'768, 1}, {32'767, 9}}) {
    EXPECT_TRUE(LoadBytes(DdsHeader({width, height}, 4, "DXT1") + blocks).isNull()) << width;
  }
  QByteArray mipmaps = DdsHeader({4, 4}, 4, "DXT1");
  Put<quint32>(mipmaps, 8, 0x000A1007);
  Put<quint32>(mipmaps, 28, 0xFFFFFFFF);
  EXPECT_EQ(LoadBytes(mipmaps + blocks).size(), QSize(4, 4));
  EXPECT_TRUE(LoadBytes(DdsHeader({4, 4}, 4, "DX10")).isNull()) << "cut in its second header";
  EXPECT_TRUE(LoadBytes(DdsHeader({4, 4}, 4, "dxt1") + blocks).isNull());
  QByteArray noMask = PlainDds();
  Put<quint32>(noMask, 92, 0);
  EXPECT_TRUE(LoadBytes(noMask).isNull());
  QByteArray bits = PlainDds();
  Put<quint32>(bits, 88, 0xFFFFFFFF);
  EXPECT_TRUE(LoadBytes(bits).isNull());
}

TEST(HostileBmp, SizesAreNotTrusted) {
  for (const auto& [width, height] :
       {std::pair{0, 5}, {7, 0}, {-7, 5}, {0x7FFFFFFF, 5}, {7, -0x7FFFFFFF}, {40'000, 1}}) {
    QByteArray bmp = Encoded(SmallImage(), "BMP");
    Put<qint32>(bmp, 18, width);
    Put<qint32>(bmp, 22, height);
    EXPECT_TRUE(LoadBytes(bmp).isNull()) << width << ' ' << height;
  }
}

TEST(FitsAxes, TheImageIsInTheFirstTwoOrThree) {
  const auto load = [](std::initializer_list<int> lengths, int values) {
    std::vector<double> ramp;
    for (int i = 0; i < values; ++i) ramp.push_back(i * 7);
    return LoadBytes(Fits(Shape(8, lengths), BigEndian<quint8>(ramp)));
  };
  EXPECT_TRUE(load({}, 0).isNull());
  EXPECT_TRUE(load({9}, 9).isNull());
  EXPECT_TRUE(load({3, 0}, 9).isNull());
  EXPECT_TRUE(load({3, -2}, 9).isNull());
  EXPECT_EQ(load({3, 2}, 6).format(), QImage::Format_Grayscale8);
  EXPECT_EQ(load({3, 2, 1}, 6).size(), QSize(3, 2));
  // Of four planes, and of four axes, the first image counts.
  EXPECT_EQ(load({3, 2, 4}, 24), load({3, 2}, 6));
  EXPECT_EQ(load({3, 2, 1, 4}, 24), load({3, 2}, 6));
  EXPECT_EQ(load({3, 2, 3, 2}, 36).format(), QImage::Format_RGB32);
  EXPECT_TRUE(load({3, 2, 3}, 0).isNull()) << "without data";
}

TEST(FitsAxes, ParametersBeforeTheImageDoNotMoveItOutOfTheFile) {
  std::vector<QByteArray> cards = Shape(16, {3, 2});
  cards.push_back(IntCard("PCOUNT", 5000));
  cards.push_back(IntCard("GCOUNT", 1));
  EXPECT_TRUE(LoadBytes(Fits(cards, BigEndian<qint16>({1, 2, 3, 4, 5, 6}))).isNull());
}

/// Texts as long as these end a program that reads them as whole numbers.
TEST(FitsCards, NumbersAreNumbers) {
  const QByteArray data = BigEndian<qint16>({1, 2, 3, 4, 5, 6});
  const auto load = [&data](const QByteArray& card) {
    std::vector<QByteArray> cards = Shape(16, {3, 2});
    cards.push_back(card);
    return LoadBytes(Fits(cards, data));
  };
  const QByteArray text = "= 'no number, and no end of the quotation that it begins with";
  for (const char* key : {"BLANK   ", "PCOUNT  ", "BZERO   ", "NAXIS3  "}) {
    EXPECT_TRUE(load(key + text).isNull()) << key;
  }
  EXPECT_TRUE(load("HIERARCH BLANK " + text).isNull());
  for (const char* card : {"BZERO   = 1.5D2 / an exponent", "BLANK   =", "OBJECT  = 'BLANK'",
                           "HIERARCH SITE NAXIS = 'of the telescope'"}) {
    EXPECT_FALSE(load(card).isNull()) << card;
  }
}

TEST(FitsValues, BlanksAndWhatIsNoNumberAreBlack) {
  std::vector<QByteArray> cards = Shape(16, {4, 1});
  cards.push_back(IntCard("BLANK", -32768));
  cards.push_back("BSCALE  =                 -0.5");
  cards.push_back(IntCard("BZERO", 10));
  const QImage blank = LoadBytes(Fits(cards, BigEndian<qint16>({20, -32768, 0, 10})));
  EXPECT_EQ(qGray(blank.pixel(0, 0)), 0);
  EXPECT_EQ(qGray(blank.pixel(1, 0)), 0);
  EXPECT_EQ(qGray(blank.pixel(2, 0)), 255);
  EXPECT_EQ(qGray(blank.pixel(3, 0)), 128);
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  const auto load = [](const std::vector<double>& values) {
    return LoadBytes(Fits(Shape(-64, {4, 1}), BigEndian<double>(values)));
  };
  const QImage real = load({kNan, kInfinity, 1e-3, 3e-3});
  EXPECT_EQ(qGray(real.pixel(0, 0)), 0);
  EXPECT_EQ(qGray(real.pixel(2, 0)), 0);
  EXPECT_EQ(qGray(real.pixel(3, 0)), 255);
  const QImage none = load({kNan, kNan, kNan, kNan});
  EXPECT_EQ(none.size(), QSize(4, 1));
  EXPECT_EQ(qGray(none.pixel(3, 0)), 0);
  // One value alone is neither bright nor dark; what matters is that nothing is divided by 0.
  EXPECT_EQ(load({7, 7, 7, 7}).size(), QSize(4, 1));
}

}  // namespace
}  // namespace vyn
