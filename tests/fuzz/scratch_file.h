// Files in memory for fuzzing what works on files.
#pragma once

#include <string>
#include <string_view>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tests/fuzz/fuzz_input.h"

namespace vyn::fuzz {

/// A folder that goes with the process, in memory where the system has such a place.
inline QString ScratchPath(const QString& name) {
  static const QTemporaryDir folder(
      (QDir(QStringLiteral("/dev/shm")).exists() ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
      QStringLiteral("/vyn-fuzz-XXXXXX"));
  return folder.filePath(name);
}

inline QString WriteScratch(const QString& name, std::string_view bytes) {
  QFile file(ScratchPath(name));
  VYN_MUST(file.open(QIODevice::WriteOnly));
  VYN_MUST(file.write(bytes.data(), static_cast<qint64>(bytes.size())) ==
           static_cast<qint64>(bytes.size()));
  return file.fileName();
}

inline QByteArray ReadScratch(const QString& name) {
  QFile file(ScratchPath(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace vyn::fuzz
