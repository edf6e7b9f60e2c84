// What a person waits for: a query, a click carried out, a dialog opened.
#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QApplication>

#include "core_link/live_dialog.h"
#include "engine/reference_engine.h"
#include "engine/watched_cor_vyn.h"
#include "major_bodies/dwarf_planet_dialog.h"
#include "major_bodies/planet_dialog.h"
#include "major_bodies/satellite_dialog.h"
#include "major_bodies/sun_dialog.h"
#include "small_bodies/dust_trail_dialog.h"
#include "small_bodies/meteorite_dialog.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

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

/// A click carried out, painting aside.
template <class Dialog>
void Click(benchmark::State& state, ReferenceEngine& engine, int button) {
  Dialog dialog(&engine, nullptr, nullptr);
  dialog.Create();
  auto* clicked = static_cast<QAbstractButton*>(dialog.GetDlgItem(button));
  for (auto _ : state) clicked->click();
}

template <class Dialog>
void Open(benchmark::State& state, ReferenceEngine& engine) {
  int queries = 0;
  WatchedCorVyn watched(engine, [&](const QString&) { ++queries; });
  for (auto _ : state) {
    Dialog dialog(&watched, nullptr, nullptr);
    dialog.Create();
    QApplication::processEvents();
  }
  state.counters["queries"] = benchmark::Counter(queries, benchmark::Counter::kAvgIterations);
}

template <class Dialog, int kButton>
void ClickIn(benchmark::State& state) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  Click<Dialog>(state, engine, kButton);
}
BENCHMARK(ClickIn<CDlgSun, 1011>)->Unit(benchmark::kMicrosecond);
BENCHMARK(ClickIn<CDlgPlanet, 1163>)->Unit(benchmark::kMicrosecond);

template <class Dialog>
void Opening(benchmark::State& state) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  Open<Dialog>(state, engine);
}
BENCHMARK(Opening<CDlgSun>)->Unit(benchmark::kMillisecond);
BENCHMARK(Opening<CDlgPlanet>)->Unit(benchmark::kMillisecond);
BENCHMARK(Opening<CDlgDwarfPlanet>)->Unit(benchmark::kMillisecond);

/// With its Cancel script, which names each of them.
template <class Dialog>
void OpeningWith10000Rows(benchmark::State& state) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  engine.SetProperty(u"Solar.Meteorite.Count"_s, u"10000"_s);
  engine.SetProperty(u"Solar.DustTrail.Count"_s, u"10000"_s);
  Open<Dialog>(state, engine);
}
BENCHMARK(OpeningWith10000Rows<CDlgMeteorite>)->Unit(benchmark::kMillisecond);
BENCHMARK(OpeningWith10000Rows<CDlgDustTrail>)->Unit(benchmark::kMillisecond);

void AddSatellites(ReferenceEngine& engine, int count) {
  engine.SetProperty(QStringLiteral("solar.planet.satellite.count"), QString::number(count));
  engine.SetProperty(QStringLiteral("solar.planet.saturn.satellite.count"), QString::number(count));
}

void ClickAmong300Satellites(benchmark::State& state) {
  ReferenceEngine engine;
  AddSatellites(engine, 300);
  Click<CDlgSat>(state, engine, 1515);
}
BENCHMARK(ClickAmong300Satellites)->Unit(benchmark::kMicrosecond);

void OpeningOf300Satellites(benchmark::State& state) {
  ReferenceEngine engine;
  AddSatellites(engine, 300);
  Open<CDlgSat>(state, engine);
}
BENCHMARK(OpeningOf300Satellites)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vyn
