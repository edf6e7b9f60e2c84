// Tile-compressed FITS images: those that CFITSIO itself makes, and damaged ones, of which the
// library must never see what would lead it out of its memory.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include <fitsio.h>

#include <QElapsedTimer>
#include <QFile>

#include "tests/images/image_bytes.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kWidth = 37, kHeight = 23;

struct Coding {
  const char* name;
  int compression;  ///< 0 for none
  int bitpix;
  int planes;
  long tileWidth, tileHeight;
  float quantization;  ///< 0 keeps real numbers as they are
};

/// Rows of nothing, of noise and of a gentle slope: each kind of RICE block comes about.
std::vector<double> Scene(int planes) {
  std::minstd_rand random(7);
  std::vector<double> values;
  for (int i = 0; i < kWidth * kHeight * planes; ++i) {
    const int row = i / kWidth % kHeight;
    values.push_back(row < 8 ? 50.0 : row < 16 ? random() % 200 : 60.0 + i % kWidth);
  }
  return values;
}

template <class Number>
void Write(fitsfile* file, int type, int planes, int* status) {
  const std::vector<double> scene = Scene(planes);
  std::vector<Number> values(scene.begin(), scene.end());
  fits_write_img(file, type, 1, std::ssize(values), values.data(), status);
}

QByteArray Made(const Coding& coding) {
  void* memory = std::malloc(2880);
  std::size_t size = 2880;
  fitsfile* file = nullptr;
  int status = 0;
  fits_create_memfile(&file, &memory, &size, 2880, std::realloc, &status);
  if (coding.compression != 0) {
    long tile[] = {coding.tileWidth, coding.tileHeight, 1};
    fits_set_compression_type(file, coding.compression, &status);
    fits_set_tile_dim(file, 3, tile, &status);
    fits_set_quantize_level(file, coding.quantization, &status);
  }
  long lengths[] = {kWidth, kHeight, coding.planes};
  fits_create_img(file, coding.bitpix, coding.planes > 1 ? 3 : 2, lengths, &status);
  if (coding.bitpix == 8) Write<unsigned char>(file, TBYTE, coding.planes, &status);
  if (coding.bitpix == 16) Write<short>(file, TSHORT, coding.planes, &status);
  if (coding.bitpix == 32) Write<int>(file, TINT, coding.planes, &status);
  if (coding.bitpix == -32) Write<float>(file, TFLOAT, coding.planes, &status);
  if (coding.bitpix == -64) Write<double>(file, TDOUBLE, coding.planes, &status);
  fits_flush_file(file, &status);
  const QByteArray bytes(static_cast<char*>(memory), static_cast<qsizetype>(size));
  fits_close_file(file, &status);
  std::free(memory);
  EXPECT_EQ(status, 0) << coding.name;
  return bytes;
}

constexpr Coding kRice16{"rice16", RICE_1, 16, 1, 37, 23, 0};
constexpr Coding kGzip16{"gzip16", GZIP_1, 16, 1, 37, 5, 0};
constexpr Coding kHcompress{"hcompress", HCOMPRESS_1, 16, 1, 37, 23, 0};
constexpr Coding kPlio{"plio", PLIO_1, 16, 1, 37, 1, 0};

class TiledFits : public testing::TestWithParam<Coding> {};

TEST_P(TiledFits, IsTheSameImageAsAPlainOne) {
  const Coding& coding = GetParam();
  const Coding plain{"plain", 0, coding.bitpix, coding.planes, 0, 0, 0};
  const QImage image = LoadBytes(Made(coding));
  ASSERT_EQ(image.size(), QSize(kWidth, kHeight));
  EXPECT_LE(Difference(image, LoadBytes(Made(plain))), coding.quantization > 0 ? 2.0 : 0.0);
}

TEST_P(TiledFits, DamageNeverHarms) {
  const QByteArray whole = Made(GetParam());
  const qsizetype data = (whole.indexOf("END     ", whole.indexOf("XTENSION")) / 2880 + 1) * 2880;
  std::minstd_rand random(11);
  QElapsedTimer time;
  time.start();
  for (int round = 0; round < 60; ++round) {
    QByteArray damaged = whole;
    for (int i = 0; i <= round % 6; ++i) {
      const auto place = data + static_cast<qsizetype>(random() % (whole.size() - data));
      damaged[place] = static_cast<char>(round % 3 == 0 ? 0 : random() % 256);
    }
    const QImage image = LoadBytes(damaged);
    EXPECT_TRUE(image.isNull() || image.size() == QSize(kWidth, kHeight));
  }
  EXPECT_LT(time.elapsed(), 20'000);
}

INSTANTIATE_TEST_SUITE_P(, TiledFits,
                         testing::Values(Coding{"rice8", RICE_1, 8, 1, 37, 1, 0}, kRice16,
                                         Coding{"rice32", RICE_1, 32, 1, 10, 10, 0},
                                         Coding{"rice_colors", RICE_1, 16, 3, 37, 23, 0},
                                         Coding{"rice_real", RICE_1, -32, 1, 37, 1, 16}, kGzip16,
                                         Coding{"gzip2_real", GZIP_2, -32, 1, 37, 23, 0},
                                         Coding{"gzip_double", GZIP_1, -64, 1, 20, 5, 0}),
                         [](const auto& info) { return std::string(info.param.name); });

/// Bytes of the table's varying part: behind the rows of 8 bytes for each tile.
qsizetype HeapOf(const QByteArray& file, int tiles) {
  return (file.indexOf("END     ", file.indexOf("XTENSION")) / 2880 + 1) * 2880 + 8 * tiles;
}

TEST(FitsTiles, StreamsThatEndTooEarlyAreRefused) {
  // All zeros: a run without the one that would end it.
  QByteArray rice = Made(kRice16);
  const qsizetype heap = HeapOf(rice, 1);
  rice.replace(heap + 3, rice.size() - heap - 3, QByteArray(rice.size() - heap - 3, '\0'));
  rice[heap + 2] = '\x10';
  EXPECT_TRUE(LoadBytes(rice).isNull());
  // The descriptor says that the stream is shorter than it is.
  for (const Coding& coding : {kRice16, kGzip16}) {
    QByteArray shorter = Made(coding);
    const qsizetype row = HeapOf(shorter, 0);
    for (const int length : {1, 2, 3, 20}) {
      qToBigEndian<qint32>(length, shorter.data() + row);
      EXPECT_TRUE(LoadBytes(shorter).isNull()) << coding.name << ' ' << length;
    }
    shorter.replace(row, 4, QByteArray("\x7F\xFF\xFF\xFF", 4));
    EXPECT_TRUE(LoadBytes(shorter).isNull()) << coding.name;
    shorter.replace(row, 4, QByteArray("\xFF\xFF\xFF\xFF", 4));
    EXPECT_TRUE(LoadBytes(shorter).isNull()) << coding.name;
  }
}

TEST(FitsTiles, AStreamCutAtAnyLengthIsRefusedOrWhole) {
  const QByteArray whole = Made(kRice16);
  const QImage expected = LoadBytes(whole);
  const qsizetype row = HeapOf(whole, 0);
  const int length = qFromBigEndian<qint32>(whole.constData() + row);
  for (int cut = 1; cut <= length; ++cut) {
    QByteArray shorter = whole;
    qToBigEndian(cut, shorter.data() + row);
    const QImage image = LoadBytes(shorter);
    EXPECT_TRUE(image.isNull() || image == expected) << cut;
    EXPECT_EQ(image.isNull(), cut < length) << cut;
  }
}

struct HeaderCase {
  const char* card;
  long long value;
};

TEST(FitsTiles, HostileHeadersAreRefused) {
  const HeaderCase cases[] = {
      {"ZTILE1", 0},  {"ZTILE1", -5},         {"ZTILE1", 38},      {"ZTILE2", 2'000'000'000},
      {"ZVAL1", 0},   {"ZVAL1", -1},          {"ZVAL2", 3},        {"ZVAL2", 0},
      {"ZNAXIS1", 0}, {"ZNAXIS1", 40'000},    {"ZNAXIS2", 24'000}, {"ZNAXIS", 7},
      {"ZNAXIS", 0},  {"ZNAXIS2", 1LL << 40}, {"ZBITPIX", -32},    {"ZBITPIX", -64},
      {"ZBITPIX", 5}, {"NAXIS2", 0},          {"NAXIS1", 0},       {"PCOUNT", 2'000'000'000},
      {"TFIELDS", 0}, {"TFIELDS", 900},
  };
  for (const HeaderCase& row : cases) {
    QByteArray file = Made(kRice16);
    const QByteArray key = QByteArray(row.card).leftJustified(8, ' ') + '=';
    const qsizetype card = file.indexOf(key, file.indexOf("XTENSION"));
    ASSERT_GT(card, 0) << row.card;
    file.replace(card + 10, 20, QByteArray::number(row.value).rightJustified(20, ' '));
    EXPECT_TRUE(LoadBytes(file).isNull()) << row.card << ' ' << row.value;
  }
}

/// What cannot be looked over is not decoded.
TEST(FitsTiles, OtherCompressionsAreRefused) {
  EXPECT_TRUE(LoadBytes(Made(kHcompress)).isNull());
  EXPECT_TRUE(LoadBytes(Made(kPlio)).isNull());
}

}  // namespace
}  // namespace vyn
