#include "siblings/files/path_names.h"

#include <QtGlobal>

#ifdef Q_OS_WIN
#include <windows.h>

#include <string>
#endif

namespace vyn {
namespace {

#ifdef Q_OS_WIN
QString Converted(const QString& path, DWORD(WINAPI* convert)(LPCWSTR, LPWSTR, DWORD)) {
  const std::wstring given = path.toStdWString();
  std::wstring converted(convert(given.c_str(), nullptr, 0), L'\0');
  const DWORD length =
      convert(given.c_str(), converted.data(), static_cast<DWORD>(converted.size()));
  if (length == 0 || length >= converted.size()) return path;
  return QString::fromWCharArray(converted.data(), static_cast<qsizetype>(length));
}
#endif

}  // namespace

#ifdef Q_OS_WIN
QString LongPathName(const QString& path) { return Converted(path, &GetLongPathNameW); }
QString ShortPathName(const QString& path) { return Converted(path, &GetShortPathNameW); }
#else
QString LongPathName(const QString& path) { return path; }
QString ShortPathName(const QString& path) { return path; }
#endif

bool IsSamePath(const QString& first, const QString& second) {
  return LongPathName(first).compare(LongPathName(second), Qt::CaseInsensitive) == 0;
}

}  // namespace vyn
