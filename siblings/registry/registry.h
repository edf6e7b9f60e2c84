// The settings store under a dialog's key.
#pragma once

#include <QString>
#include <QStringList>

#include "core_link/export.h"

namespace vyn {

/// Reads and writes the settings of one key, such as "Dialog\Comet": the registry on Windows, an
/// INI file of the user elsewhere.
class VYN_EXPORT CRegistry {
 public:
  explicit CRegistry(const QString& key);

  /// The setting with this name, or `fallback` where there is none.
  QString Read(const QString& name, const QString& fallback = {}) const;
  int Read(const QString& name, int fallback) const;
  bool Contains(const QString& name) const;

  /// Writes a setting. Returns false when the store cannot be written.
  bool Write(const QString& name, const QString& text);
  bool Write(const QString& name, int value);
  void DeleteValue(const QString& name);

  /// The names of all settings of this key.
  QStringList GetRegEnumValue() const;

  /// Keeps all settings in this INI file from now on, for tests and portable installations; an
  /// empty path goes back to the user's own store.
  static void UseFile(const QString& path);

 private:
  QString Path(const QString& name) const;

  QString group_;
};

}  // namespace vyn
