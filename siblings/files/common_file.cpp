#include "siblings/files/common_file.h"

#include <algorithm>

#include <QFileInfo>

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

qsizetype LastSlash(const QString& path) {
  return std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
}

/// Where the extension's dot stands; the end of the path when there is none.
qsizetype ExtensionStart(const QString& path) {
  const qsizetype dot = path.lastIndexOf(u'.');
  return dot > LastSlash(path) + 1 ? dot : path.size();
}

/// Whether the slash is the root itself and not only the end of a folder's name.
bool IsRoot(const QString& path, qsizetype slash) {
  return slash == 0 || (slash == 2 && path.at(1) == u':');
}

}  // namespace

bool CCommonFile::DoesFileExist(const QString& path) {
  return !path.isEmpty() && QFileInfo(OpenablePath(path)).isFile();
}

/// A file may have a backslash in its name, so the path as given comes first.
QString CCommonFile::OpenablePath(const QString& path) {
  return QFileInfo::exists(path) ? path : QString(path).replace(u'\\', u'/');
}

QString CCommonFile::GetPathName(const QString& path) {
  const qsizetype slash = LastSlash(path);
  if (slash < 0) return {};
  return path.first(IsRoot(path, slash) ? slash + 1 : slash);
}

QString CCommonFile::GetExtension(const QString& path) { return path.sliced(ExtensionStart(path)); }

QString CCommonFile::SetExtension(const QString& path, const QString& extension) {
  const QString stem = path.first(ExtensionStart(path));
  if (extension.isEmpty() || extension.startsWith(u'.')) return stem + extension;
  return stem + u'.' + extension;
}

}  // namespace vyn
