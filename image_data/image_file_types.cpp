#include "image_data/image_file_types.h"

#include <algorithm>
#include <array>

#include "siblings/files/common_file.h"

namespace vyn {

bool IsReadExtensionType(const QString& path) {
  constexpr std::array<QLatin1StringView, 12> kTypes{
      QLatin1StringView("bmp"),  QLatin1StringView("dds"), QLatin1StringView("dib"),
      QLatin1StringView("jpeg"), QLatin1StringView("jpg"), QLatin1StringView("jpe"),
      QLatin1StringView("png"),  QLatin1StringView("tga"), QLatin1StringView("trg"),
      QLatin1StringView("fits"), QLatin1StringView("fit"), QLatin1StringView("fts")};
  const QString extension = CCommonFile::GetExtension(path).remove(QLatin1Char('.'));
  return std::ranges::any_of(kTypes, [&](QLatin1StringView type) {
    return extension.compare(type, Qt::CaseInsensitive) == 0;
  });
}

}  // namespace vyn
