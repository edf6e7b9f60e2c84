// How large an image may be: a header of a few bytes must not take all memory.
#pragma once

#include <QSize>
#include <QtGlobal>

namespace vyn {

inline constexpr int kMaxImageSide = 32767;
inline constexpr qint64 kMaxImageBytes = 512LL << 20;
inline constexpr qint64 kMaxImageFileBytes = 1LL << 30;

constexpr qint64 PixelCount(QSize size) {
  return static_cast<qint64>(size.width()) * size.height();
}

/// Whether an image of this size can be held.
constexpr bool IsImageSizeAllowed(QSize size, int bytesPerPixel) {
  return size.width() > 0 && size.height() > 0 && size.width() <= kMaxImageSide &&
         size.height() <= kMaxImageSide && PixelCount(size) * bytesPerPixel <= kMaxImageBytes;
}

}  // namespace vyn
