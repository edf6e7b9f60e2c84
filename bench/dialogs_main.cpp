// The main function of the benchmarks that show dialogs: without a display and with settings of its
// own.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

#include "siblings/registry/registry.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QTemporaryDir settings;
  vyn::CRegistry::UseFile(settings.filePath(QStringLiteral("settings.ini")));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
