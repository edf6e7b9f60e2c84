#include "host/overlay_images.h"

#include <algorithm>
#include <vector>

#include <QCache>
#include <QDateTime>
#include <QFileInfo>

#include "siblings/images/image_file.h"

namespace vyn {
namespace {

/// No picture of the sky shows more of a photograph.
constexpr int kLargestSide = 4096;
constexpr double kSmallestSide = 16.0;
constexpr qsizetype kCacheKilobytes = 384 << 10;

struct Photograph {
  QDateTime changed;
  std::vector<QImage> sizes;  ///< each half as large as the one before
};

QImage Limited(const QImage& image) {
  const bool isLarge = std::max(image.width(), image.height()) > kLargestSide;
  return isLarge ? image.scaled(kLargestSide, kLargestSide, Qt::KeepAspectRatio,
                                Qt::SmoothTransformation)
                 : image;
}

int ShorterSide(const QImage& image) { return std::min(image.width(), image.height()); }

/// Also one that cannot be loaded is kept, so that not every frame tries again.
Photograph* Load(const QString& path, const QDateTime& changed) {
  const QImage image = Limited(LoadImageFile(path));
  return new Photograph{
      changed,
      {image.isNull() ? image : image.convertToFormat(QImage::Format_ARGB32_Premultiplied)}};
}

Photograph& PhotographOf(const QString& path) {
  static QCache<QString, Photograph> photographs(kCacheKilobytes);
  const QDateTime changed = QFileInfo(path).lastModified();
  Photograph* known = photographs.object(path);
  if (known != nullptr && known->changed == changed) return *known;
  Photograph* loaded = Load(path, changed);
  // The smaller sizes together are a third of the largest.
  const qsizetype cost = loaded->sizes.front().sizeInBytes() / 768 + 1;
  photographs.insert(path, loaded, std::min(cost, kCacheKilobytes));
  return *loaded;
}

}  // namespace

QImage OverlayImage(const QString& path, double sidePixels) {
  std::vector<QImage>& sizes = PhotographOf(path).sizes;
  if (sizes.front().isNull()) return {};
  std::size_t size = 0;
  while (ShorterSide(sizes[size]) >= 2.0 * std::max(sidePixels, kSmallestSide)) {
    if (++size < sizes.size()) continue;
    sizes.push_back(sizes.back().scaled(sizes.back().size() / 2, Qt::IgnoreAspectRatio,
                                        Qt::SmoothTransformation));
  }
  return sizes[size];
}

}  // namespace vyn
