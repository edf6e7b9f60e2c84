// DDS: the first surface of a texture, uncompressed or in compressed blocks.
// Format: "DDS file layout", "Programming guide for DDS".
#include <algorithm>
#include <array>
#include <bit>
#include <optional>

#include <squish.h>

#include "siblings/images/byte_reader.h"
#include "siblings/images/image_decoders.h"
#include "siblings/images/image_limits.h"

namespace vyn {
namespace {

constexpr qsizetype kHeaderEnd = 128;
constexpr qsizetype kExtendedHeaderEnd = 148;

// Offsets of the header's fields in the file.
constexpr qsizetype kHeight = 12, kWidth = 16, kPixelFlags = 80, kFourCc = 84, kBitCount = 88;
constexpr qsizetype kRedMask = 92, kGreenMask = 96, kBlueMask = 100, kAlphaMask = 104;
constexpr qsizetype kDxgiFormat = 128;

constexpr std::uint32_t kHasAlpha = 0x1, kIsFourCc = 0x4, kIsLuminance = 0x20000;

constexpr std::uint32_t FourCc(const char (&name)[5]) {
  std::uint32_t code = 0;
  for (int i = 3; i >= 0; --i) code = code << 8 | static_cast<unsigned char>(name[i]);
  return code;
}

struct BlockFormat {
  std::uint32_t code;
  int squishFlags;
  int bytesPerBlock;
  bool isPremultiplied = false;
  bool isGrey = false;
};

// clang-format off
constexpr std::array kByFourCc{
  BlockFormat{FourCc("DXT1"), squish::kDxt1, 8},
  BlockFormat{FourCc("DXT2"), squish::kDxt3, 16, true},
  BlockFormat{FourCc("DXT3"), squish::kDxt3, 16},
  BlockFormat{FourCc("DXT4"), squish::kDxt5, 16, true},
  BlockFormat{FourCc("DXT5"), squish::kDxt5, 16},
  BlockFormat{FourCc("ATI1"), squish::kDxt5, 8, false, true},
  BlockFormat{FourCc("BC4U"), squish::kDxt5, 8, false, true},
};

/// By the number of an extended header.
constexpr std::array kByDxgi{
  BlockFormat{71, squish::kDxt1, 8},  BlockFormat{72, squish::kDxt1, 8},
  BlockFormat{74, squish::kDxt3, 16}, BlockFormat{75, squish::kDxt3, 16},
  BlockFormat{77, squish::kDxt5, 16}, BlockFormat{78, squish::kDxt5, 16},
  BlockFormat{80, squish::kDxt5, 8, false, true},
};

/// How the bits of an uncompressed pixel are shared out. A grey one has all in `red`.
struct PixelFormat {
  int bytesPerPixel;
  std::uint32_t red, green, blue, alpha;
};

struct DxgiPixelFormat {
  std::uint32_t code;
  PixelFormat format;
};

constexpr std::array kPlainByDxgi{
  DxgiPixelFormat{28, {4, 0xFF,     0xFF00, 0xFF0000, 0xFF000000}},
  DxgiPixelFormat{29, {4, 0xFF,     0xFF00, 0xFF0000, 0xFF000000}},
  DxgiPixelFormat{87, {4, 0xFF0000, 0xFF00, 0xFF,     0xFF000000}},
  DxgiPixelFormat{91, {4, 0xFF0000, 0xFF00, 0xFF,     0xFF000000}},
  DxgiPixelFormat{88, {4, 0xFF0000, 0xFF00, 0xFF,     0}},
  DxgiPixelFormat{93, {4, 0xFF0000, 0xFF00, 0xFF,     0}},
  DxgiPixelFormat{61, {1, 0xFF,     0xFF,   0xFF,     0}},
};
// clang-format on

template <class Format, std::size_t N>
const Format* Find(const std::array<Format, N>& formats, std::uint32_t code) {
  for (const Format& format : formats) {
    if (format.code == code) return &format;
  }
  return nullptr;
}

/// The bits under a mask as a value of 0 to 255.
int Channel(std::uint32_t pixel, std::uint32_t mask) {
  if (mask == 0) return 0;
  const std::uint64_t most = mask >> std::countr_zero(mask);
  const std::uint64_t value = (pixel & mask) >> std::countr_zero(mask);
  return static_cast<int>(value * 255 / most);
}

std::uint32_t PixelAt(const ByteReader& bytes, qsizetype offset, int byteCount) {
  std::uint32_t pixel = 0;
  for (int i = 0; i < byteCount; ++i) pixel |= std::uint32_t{bytes.Byte(offset + i)} << 8 * i;
  return pixel;
}

QImage DecodePixels(const QByteArray& file, qsizetype start, QSize size,
                    const PixelFormat& format) {
  if (start + PixelCount(size) * format.bytesPerPixel > file.size()) return {};
  const ByteReader bytes(file);
  QImage image(size, format.alpha != 0 ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  for (int row = 0; row < size.height(); ++row) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(row));
    for (int x = 0; x < size.width(); ++x, start += format.bytesPerPixel) {
      const std::uint32_t pixel = PixelAt(bytes, start, format.bytesPerPixel);
      line[x] = qRgba(Channel(pixel, format.red), Channel(pixel, format.green),
                      Channel(pixel, format.blue),
                      format.alpha != 0 ? Channel(pixel, format.alpha) : 255);
    }
  }
  return image;
}

/// Grey blocks are the opacity of DXT5 blocks, of which these are all black.
QByteArray WithColors(const char* greyBlocks, qint64 count) {
  constexpr int kHalf = 8;
  QByteArray blocks(count * 2 * kHalf, '\0');
  for (qint64 i = 0; i < count; ++i) {
    std::copy_n(greyBlocks + i * kHalf, kHalf, blocks.data() + i * 2 * kHalf);
  }
  return blocks;
}

QImage OpacityAsGrey(const QImage& image) {
  QImage grey = image.convertToFormat(QImage::Format_Alpha8);
  grey.reinterpretAsFormat(QImage::Format_Grayscale8);
  return grey;
}

QImage DecodeBlocks(const QByteArray& file, qsizetype start, QSize size,
                    const BlockFormat& format) {
  const qint64 blocks = static_cast<qint64>((size.width() + 3) / 4) * ((size.height() + 3) / 4);
  if (start + blocks * format.bytesPerBlock > file.size()) return {};
  QImage image(size, format.isPremultiplied ? QImage::Format_RGBA8888_Premultiplied
                                            : QImage::Format_RGBA8888);
  const char* data = file.constData() + start;
  const QByteArray colored = format.isGrey ? WithColors(data, blocks) : QByteArray();
  squish::DecompressImage(image.bits(), size.width(), size.height(),
                          static_cast<int>(image.bytesPerLine()),
                          format.isGrey ? colored.constData() : data, format.squishFlags);
  if (format.isGrey) return OpacityAsGrey(image);
  return std::move(image).convertToFormat(QImage::Format_ARGB32);
}

/// Nothing for a pixel that is made of neither colours nor grey.
std::optional<PixelFormat> PlainFormat(const ByteReader& bytes) {
  const std::uint32_t flags = bytes.Long(kPixelFlags);
  const std::uint32_t bits = bytes.Long(kBitCount);
  if (bits != 8 && bits != 16 && bits != 24 && bits != 32) return std::nullopt;
  const std::uint32_t red = bytes.Long(kRedMask);
  const bool isGrey = (flags & kIsLuminance) != 0;
  if (red == 0) return std::nullopt;
  return PixelFormat{static_cast<int>(bits / 8), red, isGrey ? red : bytes.Long(kGreenMask),
                     isGrey ? red : bytes.Long(kBlueMask),
                     (flags & kHasAlpha) != 0 ? bytes.Long(kAlphaMask) : 0};
}

QImage DecodeExtended(const QByteArray& file, const ByteReader& bytes, QSize size) {
  const std::uint32_t code = bytes.Long(kDxgiFormat);
  if (const BlockFormat* blocks = Find(kByDxgi, code)) {
    return DecodeBlocks(file, kExtendedHeaderEnd, size, *blocks);
  }
  const DxgiPixelFormat* plain = Find(kPlainByDxgi, code);
  return plain != nullptr ? DecodePixels(file, kExtendedHeaderEnd, size, plain->format) : QImage();
}

}  // namespace

QImage DecodeDds(const QByteArray& file) {
  const ByteReader bytes(file);
  if (bytes.Long(kWidth) > kMaxImageSide || bytes.Long(kHeight) > kMaxImageSide) return {};
  const QSize size(static_cast<int>(bytes.Long(kWidth)), static_cast<int>(bytes.Long(kHeight)));
  if (!IsImageSizeAllowed(size, 4)) return {};
  if ((bytes.Long(kPixelFlags) & kIsFourCc) == 0) {
    const auto plain = PlainFormat(bytes);
    return plain ? DecodePixels(file, kHeaderEnd, size, *plain) : QImage();
  }
  const std::uint32_t code = bytes.Long(kFourCc);
  if (code == FourCc("DX10")) return DecodeExtended(file, bytes, size);
  const BlockFormat* blocks = Find(kByFourCc, code);
  return blocks != nullptr ? DecodeBlocks(file, kHeaderEnd, size, *blocks) : QImage();
}

}  // namespace vyn
