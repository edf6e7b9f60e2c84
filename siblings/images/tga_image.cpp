// TGA: colour-mapped, true-colour and grey images, plain or run-length encoded.
// Format: the manual of the TGA file format, version 2.0, 1991.
#include <optional>

#include "siblings/images/byte_reader.h"
#include "siblings/images/image_decoders.h"
#include "siblings/images/image_limits.h"

namespace vyn {
namespace {

constexpr int kHeaderSize = 18;

enum class TgaColor { Mapped = 1, True = 2, Grey = 3 };

struct TgaHeader {
  TgaColor color{};
  bool isRunLength = false;
  QSize size;
  int bytesPerPixel = 0;
  bool hasAlpha = false;
  bool isRightToLeft = false;
  bool isTopDown = false;
  int firstMapEntry = 0;
  int mapEntries = 0;
  int mapEntryBytes = 0;
  qsizetype mapStart = 0;
  qsizetype pixelStart = 0;
};

bool IsDepthOf(TgaColor color, int bits) {
  if (color == TgaColor::True) return bits == 15 || bits == 16 || bits == 24 || bits == 32;
  return bits == 8;
}

bool IsMapDepth(int bits) { return IsDepthOf(TgaColor::True, bits); }

/// Nothing for what is no header: the format has no mark, so every field is looked at.
std::optional<TgaHeader> ReadHeader(const ByteReader& bytes) {
  const int mapType = bytes.Byte(1);
  const int imageType = bytes.Byte(2);
  constexpr int kRunLengthBit = 8;
  const int color = imageType & ~kRunLengthBit;
  const int mapBits = bytes.Byte(7);
  const int bits = bytes.Byte(16);
  const int descriptor = bytes.Byte(17);
  if (color < 1 || color > 3 || mapType > 1 || (color == 1) != (mapType == 1)) return std::nullopt;
  TgaHeader header;
  header.color = static_cast<TgaColor>(color);
  if (!IsDepthOf(header.color, bits) || (mapType == 1 && !IsMapDepth(mapBits))) {
    return std::nullopt;
  }
  header.isRunLength = (imageType & kRunLengthBit) != 0;
  header.size = {bytes.Word(12), bytes.Word(14)};
  header.bytesPerPixel = (bits + 7) / 8;
  header.hasAlpha = color == 2 && bits == 32 && (descriptor & 0x0F) == 8;
  header.isRightToLeft = (descriptor & 0x10) != 0;
  header.isTopDown = (descriptor & 0x20) != 0;
  header.firstMapEntry = bytes.Word(3);
  header.mapEntries = mapType == 1 ? bytes.Word(5) : 0;
  header.mapEntryBytes = (mapBits + 7) / 8;
  header.mapStart = kHeaderSize + bytes.Byte(0);
  header.pixelStart = header.mapStart + qsizetype{header.mapEntries} * header.mapEntryBytes;
  return header;
}

int FromFiveBits(int value) { return (value & 0x1F) * 255 / 31; }

QRgb ColorAt(const ByteReader& bytes, qsizetype offset, int byteCount, bool hasAlpha) {
  if (byteCount == 2) {
    const int packed = bytes.Word(offset);
    return qRgb(FromFiveBits(packed >> 10), FromFiveBits(packed >> 5), FromFiveBits(packed));
  }
  return qRgba(bytes.Byte(offset + 2), bytes.Byte(offset + 1), bytes.Byte(offset),
               hasAlpha ? bytes.Byte(offset + 3) : 255);
}

/// Hands out the pixels in the order of the file.
class TgaPixels {
 public:
  TgaPixels(const TgaHeader& header, const QByteArray& file)
      : header_(header), bytes_(file), size_(file.size()), position_(header.pixelStart) {}

  /// Nothing at the end of a file that was cut short.
  std::optional<QRgb> Next() {
    if (header_.isRunLength && left_ == 0) BeginPacket();
    if (position_ + header_.bytesPerPixel > size_) return std::nullopt;
    const QRgb color = Color();
    --left_;
    if (!repeats_ || left_ == 0) position_ += header_.bytesPerPixel;
    return color;
  }

 private:
  void BeginPacket() {
    const int packet = bytes_.Byte(position_++);
    repeats_ = (packet & 0x80) != 0;
    left_ = (packet & 0x7F) + 1;
  }

  QRgb Color() const {
    if (header_.color == TgaColor::Grey) {
      const int grey = bytes_.Byte(position_);
      return qRgb(grey, grey, grey);
    }
    if (header_.color == TgaColor::True) {
      return ColorAt(bytes_, position_, header_.bytesPerPixel, header_.hasAlpha);
    }
    const int entry = bytes_.Byte(position_) - header_.firstMapEntry;
    if (entry < 0 || entry >= header_.mapEntries) return qRgb(0, 0, 0);
    return ColorAt(bytes_, header_.mapStart + static_cast<qsizetype>(entry) * header_.mapEntryBytes,
                   header_.mapEntryBytes, false);
  }

  const TgaHeader& header_;
  ByteReader bytes_;
  qsizetype size_;
  qsizetype position_;
  int left_ = 0;
  bool repeats_ = false;
};

/// Whether the file is long enough to hold so many pixels.
bool CanHold(const TgaHeader& header, qsizetype fileSize) {
  constexpr int kPixelsPerPacket = 128;
  const qint64 bytes = fileSize - header.pixelStart;
  return header.isRunLength
             ? bytes / (1 + header.bytesPerPixel) * kPixelsPerPacket >= PixelCount(header.size)
             : bytes / header.bytesPerPixel >= PixelCount(header.size);
}

}  // namespace

QImage DecodeTga(const QByteArray& file) {
  if (file.size() < kHeaderSize) return {};
  const auto header = ReadHeader(ByteReader(file));
  if (!header || !IsImageSizeAllowed(header->size, 4) || !CanHold(*header, file.size())) return {};
  QImage image(header->size, header->hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
  TgaPixels pixels(*header, file);
  for (int row = 0; row < image.height(); ++row) {
    auto* line =
        reinterpret_cast<QRgb*>(image.scanLine(header->isTopDown ? row : image.height() - 1 - row));
    for (int x = 0; x < image.width(); ++x) {
      const auto color = pixels.Next();
      if (!color) return {};
      line[header->isRightToLeft ? image.width() - 1 - x : x] = *color;
    }
  }
  return image;
}

}  // namespace vyn
