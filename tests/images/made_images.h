// Image files made byte by byte, for what no program would write.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QtEndian>

namespace vyn {

/// The image as a file of the format.
inline QByteArray Encoded(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(image.save(&buffer, format));
  return bytes;
}

/// Puts a number into a header, the lowest byte first.
template <class Number>
void Put(QByteArray& bytes, qsizetype offset, Number number) {
  qToLittleEndian(number, bytes.data() + offset);
}

/// The header of a TGA file.
inline QByteArray TgaHeader(int imageType, int width, int height, int bits, int descriptor = 0) {
  QByteArray header(18, '\0');
  header[2] = static_cast<char>(imageType);
  Put<quint16>(header, 12, static_cast<quint16>(width));
  Put<quint16>(header, 14, static_cast<quint16>(height));
  header[16] = static_cast<char>(bits);
  header[17] = static_cast<char>(descriptor);
  return header;
}

/// The header of a DDS file.
inline QByteArray DdsHeader(QSize size, quint32 flags, const QByteArray& fourCc) {
  QByteArray header(128, '\0');
  header.replace(0, 4, "DDS ");
  Put<quint32>(header, 12, static_cast<quint32>(size.height()));
  Put<quint32>(header, 16, static_cast<quint32>(size.width()));
  Put<quint32>(header, 80, flags);
  header.replace(84, 4, fourCc);
  return header;
}

/// Makes a DDS header one of plain pixels.
inline void PutPixelFormat(QByteArray& header, quint32 bits,
                           const std::array<quint32, 4>& redGreenBlueAlpha) {
  Put<quint32>(header, 88, bits);
  for (int i = 0; i < 4; ++i) Put<quint32>(header, 92 + 4 * i, redGreenBlueAlpha[i]);
}

/// A FITS file of one part for each call.
class FitsWriter {
 public:
  FitsWriter& Part(const QByteArray& firstCard, const std::vector<QByteArray>& cards,
                   const QByteArray& data) {
    QByteArray header = Card(firstCard);
    for (const QByteArray& card : cards) header += Card(card);
    bytes_ += Filled(header + Card("END"), ' ') + Filled(data, '\0');
    return *this;
  }
  const QByteArray& Bytes() const { return bytes_; }

 private:
  static QByteArray Card(const QByteArray& text) { return text.leftJustified(80, ' '); }
  static QByteArray Filled(QByteArray bytes, char fill) {
    return bytes.leftJustified((bytes.size() + 2879) / 2880 * 2880, fill);
  }

  QByteArray bytes_;
};

inline const QByteArray kSimple = "SIMPLE  =                    T";

inline QByteArray IntCard(const char* key, int value) {
  return QByteArray(key).leftJustified(8, ' ') + "= " +
         QByteArray::number(value).rightJustified(20);
}

/// The data of a FITS file.
template <class Number>
QByteArray BigEndian(const std::vector<double>& values) {
  QByteArray bytes;
  for (const double value : values) {
    char text[sizeof(Number)];
    qToBigEndian(static_cast<Number>(value), text);
    bytes.append(text, sizeof(Number));
  }
  return bytes;
}

/// The cards that tell the kind of number and the lengths of the axes.
inline std::vector<QByteArray> Shape(int bitpix, std::initializer_list<int> lengths) {
  std::vector<QByteArray> cards{IntCard("BITPIX", bitpix),
                                IntCard("NAXIS", static_cast<int>(lengths.size()))};
  int axis = 0;
  for (const int length : lengths) {
    cards.push_back(IntCard(("NAXIS" + std::to_string(++axis)).c_str(), length));
  }
  return cards;
}

}  // namespace vyn
