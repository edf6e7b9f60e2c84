#include "siblings/registry/registry.h"

#include <memory>

#include <QSettings>

namespace vyn {
namespace {

std::unique_ptr<QSettings>& Store() {
  static std::unique_ptr<QSettings> store;
  return store;
}

QSettings& Settings() {
  auto& store = Store();
  if (!store) store = std::make_unique<QSettings>(QStringLiteral("vyn"), QStringLiteral("dialogs"));
  return *store;
}

}  // namespace

CRegistry::CRegistry(const QString& key) : group_(key) {
  group_.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

QString CRegistry::Path(const QString& name) const { return group_ + QLatin1Char('/') + name; }

QString CRegistry::Read(const QString& name, const QString& fallback) const {
  return Settings().value(Path(name), fallback).toString();
}

int CRegistry::Read(const QString& name, int fallback) const {
  bool isNumber = false;
  const int value = Settings().value(Path(name)).toString().toInt(&isNumber);
  return isNumber ? value : fallback;
}

bool CRegistry::Contains(const QString& name) const { return Settings().contains(Path(name)); }

bool CRegistry::Write(const QString& name, const QString& text) {
  Settings().setValue(Path(name), text);
  Settings().sync();
  return Settings().status() == QSettings::NoError;
}

bool CRegistry::Write(const QString& name, int value) {
  return Write(name, QString::number(value));
}

void CRegistry::DeleteValue(const QString& name) { Settings().remove(Path(name)); }

QStringList CRegistry::GetRegEnumValue() const {
  QSettings& settings = Settings();
  settings.beginGroup(group_);
  QStringList names = settings.childKeys();
  settings.endGroup();
  return names;
}

void CRegistry::UseFile(const QString& path) {
  Store() = path.isEmpty() ? nullptr : std::make_unique<QSettings>(path, QSettings::IniFormat);
}

}  // namespace vyn
