// What a person waits for: a query, a click carried out, a dialog opened.
#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTemporaryDir>

#include "core_link/live_dialog.h"
#include "engine/reference_engine.h"
#include "major_bodies/sun_dialog.h"
#include "siblings/registry/registry.h"

namespace vyn {
namespace {

/// Lets the benchmark reach the typed getters.
class QueryingDialog final : public CVynDialog {
 public:
  explicit QueryingDialog(CCorVyn* engine) : CVynDialog(engine, nullptr, 13015, {}, nullptr) {}
  using CVynDialog::GetBool;
};

void QueryInLargeTree(benchmark::State& state) {
  ReferenceEngine engine;
  for (int i = 0; i < 100'000; ++i) {
    engine.SetProperty(QStringLiteral("Solar.Group%1.Member%2.Visible").arg(i % 300).arg(i),
                       QStringLiteral("TRUE"));
  }
  QueryingDialog dialog(&engine);
  const QString path = QStringLiteral("solar.group211.member54511.visible");
  for (auto _ : state) benchmark::DoNotOptimize(dialog.GetBool(path));
}
BENCHMARK(QueryInLargeTree);

void ClickInSunDialog(benchmark::State& state) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  CDlgSun dialog(&engine, nullptr, nullptr);
  dialog.Create();
  auto* halo = static_cast<QAbstractButton*>(dialog.GetDlgItem(1011));
  for (auto _ : state) halo->click();
}
BENCHMARK(ClickInSunDialog)->Unit(benchmark::kMicrosecond);

void OpenSunDialog(benchmark::State& state) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  for (auto _ : state) {
    CDlgSun dialog(&engine, nullptr, nullptr);
    dialog.Create();
    QApplication::processEvents();
  }
}
BENCHMARK(OpenSunDialog)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vyn

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const QTemporaryDir settings;
  vyn::CRegistry::UseFile(settings.filePath(QStringLiteral("settings.ini")));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
