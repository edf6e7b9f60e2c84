// FITS: the first image of a file, stretched to 8 bits. CFITSIO decodes it, from memory, so that no
// part of a file's name means anything to it.
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <vector>

#include <fitsio.h>

#include "siblings/images/fits_header.h"
#include "siblings/images/fits_tiles.h"
#include "siblings/images/image_decoders.h"
#include "siblings/images/image_limits.h"

namespace vyn {
namespace {

constexpr int kMaxAxes = 9;
constexpr int kColorPlanes = 3;
/// More images than any real file has before its first that is not empty.
constexpr int kMaxParts = 100;
/// The part of the values that is cut off at either end.
constexpr double kCutFraction = 0.0025;
/// So many values, spread evenly, tell where to cut.
constexpr std::size_t kMaxSamples = 1 << 20;

/// The bytes up to the end of their last block: the library reads whole blocks, beyond the end of a
/// file that was cut off.
QByteArray FilledUp(const QByteArray& file) {
  constexpr qsizetype kBlockSize = 2880;
  const qsizetype blocks = (file.size() + kBlockSize - 1) / kBlockSize;
  return file.size() == blocks * kBlockSize ? file : file.leftJustified(blocks * kBlockSize, '\0');
}

/// A file held in memory, open for reading.
class FitsFile {
 public:
  explicit FitsFile(const QByteArray& file)
      : blocks_(FilledUp(file)),
        bytes_(const_cast<char*>(blocks_.constData())),
        size_(static_cast<std::size_t>(blocks_.size())) {
    fits_open_memfile(&file_, "memory", READONLY, &bytes_, &size_, 0, nullptr, &status);
  }
  ~FitsFile() {
    int closing = 0;
    if (file_ != nullptr) fits_close_file(file_, &closing);
    fits_clear_errmsg();
  }
  Q_DISABLE_COPY_MOVE(FitsFile)

  fitsfile* Handle() const { return file_; }
  bool IsGood() const { return status == 0; }
  qint64 Size() const { return blocks_.size(); }

  int status = 0;

 private:
  fitsfile* file_ = nullptr;
  QByteArray blocks_;
  void* bytes_;
  std::size_t size_;
};

struct FitsShape {
  QSize size;
  int planes = 1;
  int bytesPerValue = 1;
};

/// The shape of the image at which the file stands; nothing for an empty one.
std::optional<FitsShape> ShapeOf(FitsFile& file) {
  int bitsPerValue = 0;
  int axes = 0;
  std::array<long, kMaxAxes> lengths{};
  fits_get_img_param(file.Handle(), kMaxAxes, &bitsPerValue, &axes, lengths.data(), &file.status);
  if (!file.IsGood() || axes < 2 || axes > kMaxAxes) return std::nullopt;
  if (lengths[0] < 1 || lengths[1] < 1) return std::nullopt;
  const auto side = [&](int axis) {
    return static_cast<int>(std::min<long>(lengths[axis], 1 << 30));
  };
  const bool hasColors = axes >= 3 && lengths[2] == kColorPlanes;
  return FitsShape{{side(0), side(1)}, hasColors ? kColorPlanes : 1, std::abs(bitsPerValue) / 8};
}

/// Where the data of the part at which the file stands begin and where the next part does.
struct PartPlace {
  qint64 data = 0;
  qint64 end = 0;
};

PartPlace PlaceOf(FitsFile& file) {
  LONGLONG data = 0;
  LONGLONG end = 0;
  fits_get_hduaddrll(file.Handle(), nullptr, &data, &end, &file.status);
  return {data, end};
}

/// Goes to the first part that holds an image.
std::optional<FitsShape> FindImage(FitsFile& file, const QByteArray& bytes) {
  qint64 start = 0;
  for (int part = 1; part <= kMaxParts && file.IsGood(); ++part) {
    if (!IsHeaderSound(bytes, start)) break;
    int kind = 0;
    fits_movabs_hdu(file.Handle(), part, &kind, &file.status);
    if (!file.IsGood()) break;
    start = PlaceOf(file).end;
    if (kind != IMAGE_HDU) continue;
    if (const auto shape = ShapeOf(file)) return shape;
  }
  return std::nullopt;
}

/// Whether the image is small enough and all of it is in the file. What fills the last block of an
/// uncompressed one may be missing.
bool IsAllowed(FitsFile& file, const FitsShape& shape, qint64 fileSize) {
  if (!IsImageSizeAllowed(shape.size, shape.planes * static_cast<int>(sizeof(float)))) return false;
  const PartPlace place = PlaceOf(file);
  // The end lies further than the pixels tell where the header speaks of parameters before them.
  if (!file.IsGood() || place.end > file.Size()) return false;
  int status = 0;
  if (fits_is_compressed_image(file.Handle(), &status)) {
    return place.end <= fileSize && AreTilesSound(file.Handle(), shape.planes, fileSize);
  }
  return place.data + PixelCount(shape.size) * shape.planes * shape.bytesPerValue <= fileSize;
}

std::vector<float> ReadValues(FitsFile& file, const FitsShape& shape) {
  std::vector<float> values(static_cast<std::size_t>(PixelCount(shape.size)) * shape.planes);
  float blank = std::numeric_limits<float>::quiet_NaN();
  int hasBlanks = 0;
  fits_read_img(file.Handle(), TFLOAT, 1, static_cast<LONGLONG>(values.size()), &blank,
                values.data(), &hasBlanks, &file.status);
  if (!file.IsGood()) values.clear();
  return values;
}

/// From the value that becomes black to the one that becomes white.
struct Stretch {
  float black = 0.0f;
  float white = 0.0f;

  uchar Grey(float value) const {
    if (!(value > black)) return 0;  // also for what is no number
    if (value >= white) return 255;
    return static_cast<uchar>((value - black) / (white - black) * 255.0f + 0.5f);
  }
};

Stretch StretchOf(const std::vector<float>& values) {
  const std::size_t stride = values.size() / kMaxSamples + 1;
  std::vector<float> samples;
  samples.reserve(values.size() / stride + 1);
  for (std::size_t i = 0; i < values.size(); i += stride) {
    if (std::isfinite(values[i])) samples.push_back(values[i]);
  }
  if (samples.empty()) return {};
  const auto valueAt = [&samples](double fraction) {
    const auto place =
        samples.begin() + std::lround(fraction * static_cast<double>(samples.size() - 1));
    std::nth_element(samples.begin(), place, samples.end());
    return *place;
  };
  return {valueAt(kCutFraction), valueAt(1.0 - kCutFraction)};
}

/// Rows are stored from the bottom up.
const float* RowOf(const std::vector<float>& values, QSize size, int plane, int row) {
  const qint64 fromBottom = size.height() - 1 - row;
  return values.data() + plane * PixelCount(size) + fromBottom * size.width();
}

QImage GreyImage(const std::vector<float>& values, QSize size, const Stretch& stretch) {
  QImage image(size, QImage::Format_Grayscale8);
  for (int row = 0; row < size.height(); ++row) {
    const float* source = RowOf(values, size, 0, row);
    std::transform(source, source + size.width(), image.scanLine(row),
                   [&stretch](float value) { return stretch.Grey(value); });
  }
  return image;
}

QImage ColorImage(const std::vector<float>& values, QSize size, const Stretch& stretch) {
  QImage image(size, QImage::Format_RGB32);
  for (int row = 0; row < size.height(); ++row) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(row));
    const float* red = RowOf(values, size, 0, row);
    const float* green = RowOf(values, size, 1, row);
    const float* blue = RowOf(values, size, 2, row);
    for (int x = 0; x < size.width(); ++x) {
      line[x] = qRgb(stretch.Grey(red[x]), stretch.Grey(green[x]), stretch.Grey(blue[x]));
    }
  }
  return image;
}

}  // namespace

QImage DecodeFits(const QByteArray& file) {
  FitsFile fits(file);
  if (!fits.IsGood()) return {};
  const auto shape = FindImage(fits, file);
  if (!shape || !IsAllowed(fits, *shape, file.size())) return {};
  const std::vector<float> values = ReadValues(fits, *shape);
  if (values.empty()) return {};
  const Stretch stretch = StretchOf(values);
  return shape->planes == kColorPlanes ? ColorImage(values, shape->size, stretch)
                                       : GreyImage(values, shape->size, stretch);
}

}  // namespace vyn
