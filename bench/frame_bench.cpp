// How long one frame of the demo planetarium takes, from reading the engine to the painted picture,
// with all comets of the demo's element file shown. A screen that refreshes 60 times a second
// leaves 16 ms.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include "bench/large_file.h"
#include "engine/reference_engine.h"
#include "host/frame.h"

namespace {

using namespace Qt::StringLiterals;

void PaintFrames(benchmark::State& state, const QString& commands) {
  vyn::ReferenceEngine engine;
  engine.LoadStartingState();
  engine.LoadElements(vyn::ElementKind::Comet, QStringLiteral(VYN_DATA_DIR "/comets.eld"));
  engine.Doit(commands);
  QImage image(1280, 800, QImage::Format_ARGB32_Premultiplied);
  std::size_t comets = 0;
  while (state.KeepRunning()) {
    const vyn::Frame frame = vyn::ReadFrame(engine, image.size());
    comets = frame.scene.comets.size();
    QPainter painter(&image);
    vyn::PaintFrame(painter, frame);
  }
  state.counters["comets"] = static_cast<double>(comets);
}

void SkyFrame(benchmark::State& state) { PaintFrames(state, {}); }

void SkyFrameWithDustLight(benchmark::State& state) {
  PaintFrames(state, u"solar.ZodiacalLight.Visible = TRUE; solar.CounterGlow.Visible = TRUE"_s);
}

void SkyFrameWithCometNames(benchmark::State& state) {
  PaintFrames(state, u"Solar.Comet.EnglishName.Visible = TRUE"_s);
}

void SolarSystemFrame(benchmark::State& state) {
  PaintFrames(state,
              u"View.Projection = SolarSystem; View.Center = Solar.Sun;"
              u"solar.MainBelt.Visible = TRUE; solar.KuiperBelt.Visible = TRUE"_s);
}

/// What the dialog on a comet's tails sends for each step of a slider, and the frame that follows.
void TailSlider(benchmark::State& state, const QString& view) {
  const QString comet = u"Solar.Comet.No488"_s;
  vyn::ReferenceEngine engine;
  engine.LoadStartingState();
  engine.LoadElements(vyn::ElementKind::Comet, QStringLiteral(VYN_DATA_DIR "/comets.eld"));
  engine.Doit(comet + u".DustTail = TRUE;"_s + comet + u".IonTail = TRUE;"_s + view);
  QImage image(1280, 800, QImage::Format_ARGB32_Premultiplied);
  int position = 0;
  while (state.KeepRunning()) {
    const int days = position++ % 50;
    engine.Doit(comet + u".Dusttail.EmissionSpan = %1"_s.arg(double(days), 0, 'f', 6));
    engine.Doit(u"show sky"_s);
    QPainter painter(&image);
    vyn::PaintFrame(painter, vyn::ReadFrame(engine, image.size()));
  }
}

void TailSliderInTheSky(benchmark::State& state) { TailSlider(state, {}); }

void TailSliderFromOutside(benchmark::State& state) {
  TailSlider(state, u"View.Projection = SolarSystem; View.Center = Solar.Sun"_s);
}

void ReadOneFrame(benchmark::State& state) {
  vyn::ReferenceEngine engine;
  engine.LoadStartingState();
  engine.LoadElements(vyn::ElementKind::Comet, QStringLiteral(VYN_DATA_DIR "/comets.eld"));
  while (state.KeepRunning()) benchmark::DoNotOptimize(vyn::ReadFrame(engine, {1280.0, 800.0}));
}

/// All known minor planets as points; `jump` days pass from one frame to the next, 0 for a picture
/// that is only turned.
void MinorPlanetFrame(benchmark::State& state, const QString& commands, double jump) {
  vyn::ReferenceEngine engine;
  engine.LoadStartingState();
  if (!engine.LoadElements(vyn::ElementKind::MinorPlanet,
                           vyn::LargeElementFile(vyn::kManyObjects))) {
    state.SkipWithError("the large file could not be written");
  }
  engine.Doit(u"Solar.MinorPlanet = TRUE; Solar.MinorPlanet.Individual = TRUE;"_s + commands);
  QImage image(1280, 800, QImage::Format_ARGB32_Premultiplied);
  double jd = engine.JulianDate();
  std::size_t shown = 0;
  while (state.KeepRunning()) {
    if (jump != 0.0) {
      engine.Doit(u"Time.JD = %1"_s.arg(jd += jump, 0, 'f', 6));
    }
    const vyn::Frame frame = vyn::ReadFrame(engine, image.size());
    shown = frame.scene.minorPlanetPoints.shown.size();
    QPainter painter(&image);
    vyn::PaintFrame(painter, frame);
  }
  state.counters["shown"] = static_cast<double>(shown);
}

const QString kOutside = u"View.Projection = SolarSystem; View.Center = Solar.Sun"_s;

BENCHMARK_CAPTURE(MinorPlanetFrame, OutsideTurned, kOutside, 0.0)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(MinorPlanetFrame, OutsideMoving, kOutside, 1.0)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(MinorPlanetFrame, SkyTurned, QString(), 0.0)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(SkyFrame)->Unit(benchmark::kMillisecond);
BENCHMARK(SkyFrameWithDustLight)->Unit(benchmark::kMillisecond);
BENCHMARK(SkyFrameWithCometNames)->Unit(benchmark::kMillisecond);
BENCHMARK(SolarSystemFrame)->Unit(benchmark::kMillisecond);
BENCHMARK(TailSliderInTheSky)->Unit(benchmark::kMillisecond);
BENCHMARK(TailSliderFromOutside)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadOneFrame)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
