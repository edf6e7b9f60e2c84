// What the tests of image files share: files out of bytes, and how far images differ.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>

#include "siblings/images/image_file.h"

namespace vyn {

/// Writes bytes to a file under the name and loads it.
inline QImage LoadBytes(const QByteArray& bytes, const QString& name = QStringLiteral("image")) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(name);
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  file.close();
  return LoadImageFile(path);
}

/// The bytes of a file of the tests' data.
inline QByteArray DataBytes(const char* name) {
  QFile file(QStringLiteral(VYN_TEST_DATA "/") + QString::fromLatin1(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
  return file.readAll();
}

/// The mean difference of a channel; far off for images of different sizes.
inline double Difference(const QImage& a, const QImage& b) {
  if (a.size() != b.size() || a.isNull()) return 1e9;
  const QImage left = a.convertToFormat(QImage::Format_ARGB32);
  const QImage right = b.convertToFormat(QImage::Format_ARGB32);
  double sum = 0.0;
  for (int y = 0; y < left.height(); ++y) {
    const uchar* p = left.constScanLine(y);
    const uchar* q = right.constScanLine(y);
    for (int i = 0; i < 4 * left.width(); ++i) sum += std::abs(p[i] - q[i]);
  }
  return sum / (4.0 * left.width() * left.height());
}

}  // namespace vyn
