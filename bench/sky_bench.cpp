// What loading an element file and reckoning places costs.
#include <cstring>

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include "elements/element_record.h"
#include "engine/element_table.h"
#include "engine/sky/eclipses.h"
#include "engine/sky/sky_snapshot.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

const QString kComets = QStringLiteral(VYN_DATA_DIR "/comets.eld");

/// A file of as many objects, the real comets over and over.
QString LargeFile(const QTemporaryDir& folder, int objects) {
  QFile comets(kComets);
  if (!comets.open(QIODevice::ReadOnly)) return {};
  const QByteArray block = comets.readAll();
  const QString path = folder.filePath(u"large.eld"_s);
  QFile large(path);
  if (!large.open(QIODevice::WriteOnly)) return {};
  for (qint64 rest = qint64{objects} * kElementRecordSize; rest > 0; rest -= block.size()) {
    large.write(block.constData(), std::min<qint64>(rest, block.size()));
  }
  return path;
}

void LoadComets(benchmark::State& state) {
  for (auto _ : state) {
    ElementTable table;
    if (!table.Load(kComets)) state.SkipWithError("the comet file is missing");
  }
}
BENCHMARK(LoadComets)->Unit(benchmark::kMillisecond);

void LoadLargeFile(benchmark::State& state) {
  const QTemporaryDir folder;
  const QString path = LargeFile(folder, static_cast<int>(state.range(0)));
  for (auto _ : state) {
    ElementTable table;
    if (!table.Load(path)) state.SkipWithError("the large file could not be written");
  }
}
BENCHMARK(LoadLargeFile)->Arg(1400000)->Unit(benchmark::kMillisecond)->Iterations(3);

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
  const QTemporaryDir folder;
  ElementTable table;
  if (!table.Load(LargeFile(folder, static_cast<int>(state.range(0))))) {
    state.SkipWithError("the large file could not be written");
  }
  SmallBodyPlaces places;
  places.SetTable(table);
  const SkySnapshot sky(kJdUt, kTokyo);
  for (auto _ : state) places.Update(sky);
}
BENCHMARK(PlaceLargeFile)->Arg(1400000)->Unit(benchmark::kMillisecond)->UseRealTime();

void SearchIdentifier(benchmark::State& state) {
  const QTemporaryDir folder;
  ElementTable table;
  if (!table.Load(LargeFile(folder, static_cast<int>(state.range(0))))) {
    state.SkipWithError("the large file could not be written");
  }
  for (auto _ : state) benchmark::DoNotOptimize(table.IndexOf(u"no such object"));
}
BENCHMARK(SearchIdentifier)->Arg(1400000)->Unit(benchmark::kMillisecond);

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
