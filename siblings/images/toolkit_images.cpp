// BMP, JPEG and PNG, which the toolkit decodes. It takes files that were cut short for whole ones,
// so that is looked at before.
#include <algorithm>

#include <QBuffer>
#include <QImageReader>

#include "siblings/images/byte_reader.h"
#include "siblings/images/image_decoders.h"
#include "siblings/images/image_limits.h"

namespace vyn {
namespace {

constexpr int kFileHeaderSize = 14;
/// The most that a decoder of the toolkit needs for a pixel: four channels of 16 bits.
constexpr int kMostBytesPerPixel = 8;

/// The toolkit's own limit, which counts for the whole program, is smaller than large photographs.
class AllocationLimitGuard {
 public:
  AllocationLimitGuard() : before_(QImageReader::allocationLimit()) {
    constexpr int kMegabytes = static_cast<int>(kMaxImageBytes >> 20);
    if (before_ != 0) QImageReader::setAllocationLimit(std::max(before_, kMegabytes));
  }
  ~AllocationLimitGuard() { QImageReader::setAllocationLimit(before_); }
  Q_DISABLE_COPY_MOVE(AllocationLimitGuard)

 private:
  int before_;
};

QImage DecodeByToolkit(const QByteArray& file, const char* format) {
  QBuffer buffer;
  buffer.setData(file);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer, format);
  reader.setAutoDetectImageFormat(false);
  reader.setAutoTransform(true);
  const AllocationLimitGuard guard;
  const bool isDeep = reader.imageFormat() >= QImage::Format_RGBX64;
  if (!IsImageSizeAllowed(reader.size(), isDeep ? kMostBytesPerPixel : 4)) return {};
  return reader.read();
}

/// The bytes of the pixel rows that a BMP header of the common kind promises; 0 where they cannot
/// be told.
qint64 BmpPixelBytes(const ByteReader& header, qsizetype start) {
  constexpr int kSmallestHeader = 40;
  if (static_cast<int>(header.Long(start)) < kSmallestHeader) return 0;
  const auto width = static_cast<std::int32_t>(header.Long(start + 4));
  const auto height = static_cast<std::int32_t>(header.Long(start + 8));
  const int bitsPerPixel = header.Word(start + 14);
  const std::uint32_t compression = header.Long(start + 16);
  constexpr std::uint32_t kRgb = 0, kBitFields = 3;
  if (compression != kRgb && compression != kBitFields) return header.Long(start + 20);
  const qint64 rowBytes = (static_cast<qint64>(width) * bitsPerPixel + 31) / 32 * 4;
  return rowBytes * std::abs(static_cast<qint64>(height));
}

/// From the segment that begins the picture on, only the picture's end bears its mark.
bool HasJpegEnd(const QByteArray& file) {
  const ByteReader reader(file);
  constexpr int kStartOfScan = 0xDA;
  qsizetype position = 2;
  while (position + 4 <= file.size() && reader.Byte(position) == 0xFF) {
    const int marker = reader.Byte(position + 1);
    if (marker == kStartOfScan) return file.indexOf("\xFF\xD9", position) >= 0;
    const bool isFill = marker == 0xFF;
    const int length = reader.Byte(position + 2) << 8 | reader.Byte(position + 3);
    position += isFill ? 1 : 2 + length;
  }
  return false;
}

}  // namespace

QImage DecodeBmp(const QByteArray& file) {
  const ByteReader reader(file);
  const qint64 end = reader.Long(10) + BmpPixelBytes(reader, kFileHeaderSize);
  return end <= file.size() ? DecodeByToolkit(file, "bmp") : QImage();
}

QImage DecodeDib(const QByteArray& file) {
  const ByteReader reader(file);
  if (reader.Word(12) != 1 || BmpPixelBytes(reader, 0) + 40 > file.size()) return {};
  return DecodeByToolkit(file, "dib");
}

QImage DecodeJpeg(const QByteArray& file) {
  return HasJpegEnd(file) ? DecodeByToolkit(file, "jpeg") : QImage();
}

QImage DecodePng(const QByteArray& file) { return DecodeByToolkit(file, "png"); }

}  // namespace vyn
