// How fast the engine carries out statements.
#include <QStringList>
#include <benchmark/benchmark.h>

#include "engine/reference_engine.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kProperties = 100000;

/// As the Sun and Moon dialog sends it at every click.
const QStringList kSunScript{
    u"solar.sun.visible = TRUE"_s,
    u"solar.sun.surface.visible = TRUE"_s,
    u"solar.sun.outline.visible = FALSE"_s,
    u"solar.sun.japanesename.visible = TRUE"_s,
    u"solar.sun.englishname.visible = FALSE"_s,
    u"solar.sun.date.visible = FALSE"_s,
    u"solar.sun.halo.visible = TRUE"_s,
    u"solar.sun.disk.minimumSize = 10"_s,
    u"solar.sun.disk.compass.visible = FALSE"_s,
    u"solar.sun.disk.grid.visible = FALSE"_s,
    u"Solar.Planet.Earth.SolarEclipse.Umbra.Outline.Visible = FALSE"_s,
    u"Solar.Planet.Earth.SolarEclipse.Penumbra.Outline.Visible = FALSE"_s,
    u"Solar.Planet.Earth.SolarEclipse.Path.Visible = FALSE"_s,
    u"solar.planet.earth.satellite.moon.visible = TRUE"_s,
    u"solar.planet.earth.satellite.moon.surface.visible = TRUE"_s,
    u"solar.planet.earth.satellite.moon.outline.visible = FALSE"_s,
    u"solar.planet.earth.satellite.moon.japanesename.visible = TRUE"_s,
    u"solar.planet.earth.satellite.moon.englishname.visible = FALSE"_s,
    u"solar.planet.earth.satellite.moon.date.visible = FALSE"_s,
    u"solar.planet.earth.umbra.outline.visible = FALSE"_s,
    u"solar.planet.earth.penumbra.outline.visible = FALSE"_s,
    u"solar.planet.earth.satellite.moon.disk.minimumSize = 10"_s,
    u"solar.planet.earth.satellite.moon.disk.compass.visible = FALSE"_s,
    u"solar.planet.earth.satellite.moon.disk.grid.visible = FALSE"_s,
    u"solar.planet.earth.satellite.moon.surface.name.visible = FALSE"_s,
    u"solar.planet.earth.satellite.moon.surface.name.leadline.visible = FALSE"_s,
    u"solar.planet.earth.satellite.moon.lagrangianpoint.mark.visible = FALSE"_s,
    u"solar.planet.earth.satellite.moon.orbit.visible = FALSE"_s,
};

void ReportStatements(benchmark::State& state, qsizetype statementsEach) {
  state.counters["statements"] = benchmark::Counter(
      static_cast<double>(state.iterations() * statementsEach), benchmark::Counter::kIsRate);
}

/// Every value changes from one click to the next, as none does in practice: the dearest case.
void SunScript(benchmark::State& state) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  const QString on = kSunScript.join(u';') + u";;Show Sky";
  QString off = on;
  off.replace(u"TRUE"_s, u"x"_s).replace(u"FALSE"_s, u"TRUE"_s).replace(u"= x"_s, u"= FALSE"_s);
  bool toggle = false;
  for (auto _ : state) {
    benchmark::DoNotOptimize(engine.Doit(toggle ? on : off));
    toggle = !toggle;
  }
  ReportStatements(state, kSunScript.size() + 1);
}
BENCHMARK(SunScript);

void QueryAmongMany(benchmark::State& state) {
  ReferenceEngine engine;
  QStringList queries;
  for (int i = 0; i < kProperties; ++i) {
    const QString path = u"Solar.Body%1.Feature%2.Visible"_s.arg(i / 100).arg(i % 100);
    engine.SetProperty(path, u"TRUE"_s);
    if (i % 97 == 0) queries << u"? "_s + path.toLower();
  }
  for (auto _ : state) {
    for (const QString& query : queries) benchmark::DoNotOptimize(engine.Doit(query));
  }
  ReportStatements(state, queries.size());
}
BENCHMARK(QueryAmongMany);

/// What a dialog asks of a bare engine: no value, no class that has one.
void QueryOfNothing(benchmark::State& state) {
  ReferenceEngine engine;
  const QString query = u"? Solar.Planet.Mercury.Orbit.InTheSky.Visible"_s;
  for (auto _ : state) benchmark::DoNotOptimize(engine.Doit(query));
  ReportStatements(state, 1);
}
BENCHMARK(QueryOfNothing);

void ObjectSwitches(benchmark::State& state) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  if (!engine.LoadElements(ElementKind::Comet, QStringLiteral(VYN_DATA_DIR "/comets.eld"))) {
    state.SkipWithError("no element file");
    return;
  }
  const QString on = u"Solar.Comet.No500.Orbit.Visible = TRUE"_s;
  const QString off = u"Solar.Comet.No500.Orbit.Visible = FALSE"_s;
  for (auto _ : state) {
    engine.Doit(on);
    engine.Doit(off);
  }
  ReportStatements(state, 2);
}
BENCHMARK(ObjectSwitches);

void ClassScript(benchmark::State& state) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  for (auto _ : state) benchmark::DoNotOptimize(engine.Doit(u"? Solar.Planet.Status"_s));
}
BENCHMARK(ClassScript)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vyn

BENCHMARK_MAIN();
