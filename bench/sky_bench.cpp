// What loading an element file and reckoning places costs.
#include <cstring>

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include "elements/element_record.h"
#include "engine/element_table.h"

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

}  // namespace
}  // namespace vyn

BENCHMARK_MAIN();
