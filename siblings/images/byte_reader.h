// Reads numbers out of the bytes of an image file, lowest byte first.
#pragma once

#include <cstdint>

#include <QByteArrayView>

namespace vyn {

/// What lies behind the end reads as 0.
class ByteReader {
 public:
  explicit ByteReader(QByteArrayView bytes) : bytes_(bytes) {}

  std::uint8_t Byte(qsizetype offset) const {
    return offset < bytes_.size() ? static_cast<std::uint8_t>(bytes_[offset]) : 0;
  }
  std::uint16_t Word(qsizetype offset) const {
    return static_cast<std::uint16_t>(Byte(offset) | Byte(offset + 1) << 8);
  }
  std::uint32_t Long(qsizetype offset) const {
    return Word(offset) | static_cast<std::uint32_t>(Word(offset + 2)) << 16;
  }

 private:
  QByteArrayView bytes_;
};

}  // namespace vyn
