#include "siblings/images/image_file.h"

#include <array>

#include <QFile>

#include "siblings/files/common_file.h"
#include "siblings/images/image_decoders.h"
#include "siblings/images/image_limits.h"

namespace vyn {
namespace {

struct ImageKind {
  QByteArrayView mark;  ///< the file's first bytes
  QImage (*decode)(const QByteArray& file);
};

// clang-format off
constexpr std::array kKinds{
  ImageKind{"BM",                        DecodeBmp},
  ImageKind{{"\x28\0\0\0", 4},           DecodeDib},
  ImageKind{"\xFF\xD8\xFF",              DecodeJpeg},
  ImageKind{"\x89PNG\r\n\x1A\n",         DecodePng},
  ImageKind{"DDS ",                      DecodeDds},
  ImageKind{"SIMPLE  =",                 DecodeFits},
};
// clang-format on

QByteArray ReadFile(const QString& path) {
  QFile file(CCommonFile::OpenablePath(path));
  if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxImageFileBytes) return {};
  return file.readAll();
}

}  // namespace

QImage LoadImageFile(const QString& path) {
  if (!CCommonFile::DoesFileExist(path)) return {};
  const QByteArray file = ReadFile(path);
  for (const ImageKind& kind : kKinds) {
    if (!file.startsWith(kind.mark)) continue;
    // The mark of a header without a name may begin a TGA too.
    QImage image = kind.decode(file);
    if (!image.isNull()) return image;
  }
  return DecodeTga(file);
}

}  // namespace vyn
