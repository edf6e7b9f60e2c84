// Runs the tests under a headless application.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "siblings/registry/registry.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  const QTemporaryDir settings;
  vyn::CRegistry::UseFile(settings.filePath(QStringLiteral("settings.ini")));
  return RUN_ALL_TESTS();
}
