// The long and the short name of one path, where the system has both.
#pragma once

#include <QString>

namespace vyn {

/// The path with every part in its long name; as it is on systems without short names and for a
/// path that does not exist.
QString LongPathName(const QString& path);

/// The same with short names, which have no blanks.
QString ShortPathName(const QString& path);

/// Whether two spellings are the same path, casing aside.
bool IsSamePath(const QString& first, const QString& second);

}  // namespace vyn
