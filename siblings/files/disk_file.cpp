#include "siblings/files/disk_file.h"

#include <chrono>
#include <thread>

#include <QFileInfo>

namespace vyn {

bool DiskFile::Lock(int timeoutMs) {
  using std::chrono::milliseconds;
  const auto end = std::chrono::steady_clock::now() + milliseconds(timeoutMs);
  while (!TryLock()) {
    if (std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(milliseconds(1));
  }
  return true;
}

bool PathIsTaken(const QString& path) { return QFileInfo::exists(path) || IsLink(path); }

bool IsLink(const QString& path) { return QFileInfo(path).isSymLink(); }

bool IsWritable(const QString& path) { return QFileInfo(path).isWritable(); }

QString LinkTarget(const QString& path) {
  // As many links in a row as systems follow.
  constexpr int kMostLinks = 40;
  QString target = path;
  for (int i = 0; i < kMostLinks && IsLink(target); ++i) {
    target = QFileInfo(target).symLinkTarget();
  }
  return target;
}

}  // namespace vyn
