// Format of the tiles: "Tiled Image Convention", FITS standard 4.0, section 10. A RICE stream
// begins with the first pixel, whole. Then for every block of pixels comes a code of a few bits: 0
// for a block of no differences, the highest for plain differences, any other one more than the
// number of low bits that follow each difference's high bits, which are counted in zeros before a
// one.
#include "siblings/images/fits_tiles.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <optional>
#include <vector>

#include "siblings/images/image_limits.h"

/// A function of CFITSIO that its header does not tell. Without a way to get more memory it stops
/// at the end of what it has.
extern "C" int uncompress2mem_from_mem(char* stream, std::size_t streamSize, char** buffer,
                                       std::size_t* bufferSize,
                                       void* (*enlarge)(void* memory, std::size_t size),
                                       std::size_t* size, int* status);

namespace vyn {
namespace {

constexpr int kPlaneAxis = 2;

/// Walks over bits, highest first; what is not there fails.
class BitWalker {
 public:
  explicit BitWalker(const std::vector<std::uint8_t>& bytes)
      : bytes_(bytes), size_(static_cast<qint64>(bytes.size()) * 8) {}

  bool Skip(qint64 count) {
    position_ += count;
    return position_ <= size_;
  }

  std::optional<int> Read(int count) {
    int value = 0;
    for (int i = 0; i < count; ++i) {
      if (position_ >= size_) return std::nullopt;
      value = value << 1 | (bytes_[position_ / 8] >> (7 - position_ % 8) & 1);
      ++position_;
    }
    return value;
  }

  /// Zeros and the one behind them.
  bool SkipZeros() {
    while (position_ < size_) {
      const auto rest = static_cast<std::uint8_t>(bytes_[position_ / 8] << position_ % 8);
      if (rest != 0) return Skip(std::countl_zero(rest) + 1);
      position_ += 8 - position_ % 8;
    }
    return false;
  }

 private:
  const std::vector<std::uint8_t>& bytes_;
  qint64 size_;
  qint64 position_ = 0;
};

struct RiceCoding {
  int bytesPerPixel;
  int codeBits;
  int plainCode;  ///< of the blocks whose differences stand as they are
};

RiceCoding RiceCodingOf(int bytesPerPixel) {
  if (bytesPerPixel == 1) return {1, 3, 7};
  if (bytesPerPixel == 2) return {2, 4, 15};
  return {4, 5, 26};
}

bool WalkBlock(BitWalker& bits, const RiceCoding& coding, qint64 pixels) {
  const auto code = bits.Read(coding.codeBits);
  if (!code || *code > coding.plainCode) return false;
  if (*code == 0) return true;
  if (*code == coding.plainCode) return bits.Skip(pixels * coding.bytesPerPixel * 8);
  for (qint64 i = 0; i < pixels; ++i) {
    if (!bits.SkipZeros() || !bits.Skip(*code - 1)) return false;
  }
  return true;
}

/// Compressed bytes of one tile.
using Stream = std::vector<std::uint8_t>;

bool IsRiceSound(const Stream& stream, const FITSfile& image, qint64 pixels) {
  const RiceCoding coding = RiceCodingOf(image.rice_bytepix);
  BitWalker bits(stream);
  // The byte behind the first pixel is read even where no block follows.
  if (std::ssize(stream) <= coding.bytesPerPixel || !bits.Skip(coding.bytesPerPixel * 8)) {
    return false;
  }
  for (qint64 done = 0; done < pixels; done += image.rice_blocksize) {
    const qint64 block = std::min<qint64>(image.rice_blocksize, pixels - done);
    if (!WalkBlock(bits, coding, block)) return false;
  }
  return true;
}

/// The size of what a stream unzips to; nothing for a damaged one and for one of more than 8 bytes
/// for each pixel. For a stream without an end the library would ask for memory for ever.
std::optional<qint64> UnzippedSize(Stream& stream, qint64 pixels) {
  constexpr qint64 kMostBytesPerPixel = 8;
  std::vector<char> pixelBytes(static_cast<std::size_t>(pixels * kMostBytesPerPixel));
  char* buffer = pixelBytes.data();
  std::size_t bufferSize = pixelBytes.size();
  std::size_t size = 0;
  int status = 0;
  uncompress2mem_from_mem(reinterpret_cast<char*>(stream.data()), stream.size(), &buffer,
                          &bufferSize, nullptr, &size, &status);
  return status == 0 ? std::optional(static_cast<qint64>(size)) : std::nullopt;
}

/// Real numbers are kept as whole ones with a scale, or as they are.
bool IsQuantized(const FITSfile& image) { return image.zbitpix < 0 && image.cn_zscale != 0; }

bool IsGzipSound(Stream& stream, const FITSfile& image, bool isAsItIs, qint64 pixels) {
  const auto size = UnzippedSize(stream, pixels);
  if (!size) return false;
  if (image.zbitpix < 0 && isAsItIs) return *size == pixels * 4 || *size == pixels * 8;
  return *size == pixels || *size == pixels * 2 || *size == pixels * 4;
}

/// Whether tiles are no larger than the image and the image is one that can be held.
bool IsShapeSound(const FITSfile& image) {
  if (image.zndim < 1 || image.zndim > MAX_COMPRESS_DIM) return false;
  constexpr qint64 kMostTilePixels = kMaxImageBytes / static_cast<qint64>(sizeof(float));
  qint64 tilePixels = 1;
  for (int axis = 0; axis < image.zndim; ++axis) {
    const long side = image.tilesize[axis];
    if (side < 1 || side > image.znaxis[axis] || side > kMostTilePixels) return false;
    tilePixels *= side;
    if (tilePixels > kMostTilePixels) return false;
  }
  return true;
}

bool IsCodingSound(const FITSfile& image) {
  constexpr std::array kKindsOfNumber{8, 16, 32, 64, -32, -64};
  if (std::ranges::find(kKindsOfNumber, image.zbitpix) == kKindsOfNumber.end()) return false;
  if (image.compress_type == GZIP_1 || image.compress_type == GZIP_2) return true;
  if (image.compress_type != RICE_1 || image.rice_blocksize < 1) return false;
  if (image.zbitpix < 0) return IsQuantized(image) && image.rice_bytepix == 4;
  return image.rice_bytepix == 1 || image.rice_bytepix == 2 || image.rice_bytepix == 4;
}

qint64 TilesAlong(const FITSfile& image, int axis) {
  return (image.znaxis[axis] - 1) / image.tilesize[axis] + 1;
}

/// The tiles that hold the first planes come first.
qint64 TilesOf(const FITSfile& image, int planes) {
  qint64 tiles = 1;
  for (int axis = 0; axis < std::min(image.zndim, kPlaneAxis); ++axis) {
    tiles *= TilesAlong(image, axis);
  }
  return image.zndim > kPlaneAxis ? tiles * ((planes - 1) / image.tilesize[kPlaneAxis] + 1) : tiles;
}

/// Tiles at the far ends are smaller.
qint64 PixelsOfTile(const FITSfile& image, qint64 tile) {
  qint64 pixels = 1;
  for (int axis = 0; axis < image.zndim; ++axis) {
    const qint64 start = tile % TilesAlong(image, axis) * image.tilesize[axis];
    pixels *= std::min<qint64>(image.tilesize[axis], image.znaxis[axis] - start);
    tile /= TilesAlong(image, axis);
  }
  return pixels;
}

/// How much a row of the table has of a column of varying length; 0 without the column.
qint64 LengthOf(fitsfile* file, int column, qint64 row, int* status) {
  LONGLONG length = 0;
  LONGLONG start = 0;
  if (column >= 1) fits_read_descriptll(file, column, row, &length, &start, status);
  return length;
}

std::optional<Stream> ReadStream(fitsfile* file, int column, qint64 row, qint64 length) {
  Stream stream(static_cast<std::size_t>(length));
  int status = 0;
  fits_read_col(file, TBYTE, column, row, 1, length, nullptr, stream.data(), nullptr, &status);
  return status == 0 ? std::optional(std::move(stream)) : std::nullopt;
}

bool IsStreamSound(fitsfile* file, int column, qint64 row, qint64 length, qint64 pixels) {
  auto stream = ReadStream(file, column, row, length);
  if (!stream) return false;
  const FITSfile& image = *file->Fptr;
  const bool isUsual = column == image.cn_compressed;
  if (isUsual && image.compress_type == RICE_1) return IsRiceSound(*stream, image, pixels);
  return IsGzipSound(*stream, image, !isUsual || !IsQuantized(image), pixels);
}

/// A tile that is not compressed as the others are stands in a column of its own, plain or zipped.
bool IsTileSound(fitsfile* file, qint64 tile, qint64 fileSize) {
  const FITSfile& image = *file->Fptr;
  const qint64 row = tile + 1;
  const qint64 pixels = PixelsOfTile(image, tile);
  int status = 0;
  const qint64 plain = LengthOf(file, image.cn_uncompressed, row, &status);
  if (plain != 0 && plain != pixels) return false;
  bool isThere = plain != 0;
  for (const int column : {image.cn_compressed, image.cn_gzip_data}) {
    const qint64 length = LengthOf(file, column, row, &status);
    if (status != 0 || length < 0 || length > fileSize) return false;
    if (length > 0 && !IsStreamSound(file, column, row, length, pixels)) return false;
    isThere = isThere || length > 0;
  }
  return isThere;
}

}  // namespace

bool AreTilesSound(fitsfile* file, int planes, qint64 fileSize) {
  const FITSfile& image = *file->Fptr;
  if (!IsShapeSound(image) || !IsCodingSound(image)) return false;
  const qint64 tiles = TilesOf(image, planes);
  if (tiles > image.numrows) return false;
  for (qint64 tile = 0; tile < tiles; ++tile) {
    if (!IsTileSound(file, tile, fileSize)) return false;
  }
  return true;
}

}  // namespace vyn
