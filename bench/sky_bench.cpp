// What loading an element file and reckoning places costs.
#include <benchmark/benchmark.h>

#include "bench/large_file.h"
#include "engine/element_table.h"
#include "engine/sky/eclipses.h"
#include "engine/sky/sky_snapshot.h"

namespace vyn {
namespace {

const QString kComets = QStringLiteral(VYN_DATA_DIR "/comets.eld");

void LoadComets(benchmark::State& state) {
  for (auto _ : state) {
    ElementTable table;
    if (!table.Load(kComets)) state.SkipWithError("the comet file is missing");
  }
}
BENCHMARK(LoadComets)->Unit(benchmark::kMillisecond);

void LoadLargeFile(benchmark::State& state) {
  const QString path = LargeElementFile(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    ElementTable table;
    if (!table.Load(path)) state.SkipWithError("the large file could not be written");
  }
}
BENCHMARK(LoadLargeFile)->Arg(kManyObjects)->Unit(benchmark::kMillisecond)->Iterations(3);

constexpr double kJdUt = 2461042.0;
constexpr Site kTokyo{139.7447, 35.6544, 40.0};

void MakeSnapshot(benchmark::State& state) {
  double jd = kJdUt;
  for (auto _ : state) benchmark::DoNotOptimize(SkySnapshot(jd += 0.01, kTokyo));
}
BENCHMARK(MakeSnapshot)->Unit(benchmark::kMicrosecond);

/// A frame's reckoning: the snapshot and the places of as many comets as the file has.
void PlaceComets(benchmark::State& state) {
  ElementTable table;
  if (!table.Load(kComets)) state.SkipWithError("the comet file is missing");
  SmallBodyPlaces places;
  places.SetTable(table);
  double jd = kJdUt;
  for (auto _ : state) places.Update(SkySnapshot(jd += 0.01, kTokyo));
  state.counters["comets"] = table.Count();
}
BENCHMARK(PlaceComets)->Unit(benchmark::kMillisecond);

void PlaceLargeFile(benchmark::State& state) {
  ElementTable table;
  if (!table.Load(LargeElementFile(static_cast<int>(state.range(0))))) {
    state.SkipWithError("the large file could not be written");
  }
  SmallBodyPlaces places;
  places.SetTable(table);
  const SkySnapshot sky(kJdUt, kTokyo);
  for (auto _ : state) places.Update(sky);
}
BENCHMARK(PlaceLargeFile)->Arg(kManyObjects)->Unit(benchmark::kMillisecond)->UseRealTime();

void SearchIdentifier(benchmark::State& state) {
  ElementTable table;
  if (!table.Load(LargeElementFile(static_cast<int>(state.range(0))))) {
    state.SkipWithError("the large file could not be written");
  }
  for (auto _ : state) benchmark::DoNotOptimize(table.IndexOf(u"no such object"));
}
BENCHMARK(SearchIdentifier)->Arg(kManyObjects)->Unit(benchmark::kMillisecond);

void FindEclipse(benchmark::State& state) {
  double jd = kJdUt;
  for (auto _ : state) benchmark::DoNotOptimize(SolarEclipseNear(jd += 29.53));
}
BENCHMARK(FindEclipse)->Unit(benchmark::kMillisecond);

void CentralPath(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(CentralPathNear(2457987.0, 2.0));
}
BENCHMARK(CentralPath)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vyn

BENCHMARK_MAIN();
