// Questions about file paths that the dialogs and the element files ask.
#pragma once

#include <QString>

namespace vyn {

/// Paths are taken with either slash on every system, because settings and data sets written on one
/// are read on another. Only DoesFileExist and OpenablePath look at the disk.
class CCommonFile {
 public:
  /// Whether there is a file (not a folder) at the path.
  static bool DoesFileExist(const QString& path);

  /// The path as this system opens it: as given where there is such a file or folder, else with its
  /// backslashes taken for slashes.
  static QString OpenablePath(const QString& path);

  /// The folder part, without the slash behind it unless the folder is a root; empty when the path
  /// has none: "C:\data\comets.eld" gives "C:\data", "/comets.eld" gives "/".
  static QString GetPathName(const QString& path);

  /// The extension with its dot, ".eld"; empty when the file name has none. A file name that begins
  /// with its only dot has none.
  static QString GetExtension(const QString& path);

  /// The path with its extension replaced, or appended when it has none. `extension` is given with
  /// or without its dot; an empty one takes the extension away.
  static QString SetExtension(const QString& path, const QString& extension);
};

}  // namespace vyn
