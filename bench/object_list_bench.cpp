// What a person waits for in the dialog on minor planets with as many of them as are known: the
// first list, the next page, an "all" button, a search; and what the engine does for it.
#include <malloc.h>

#include <benchmark/benchmark.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QScrollBar>

#include "bench/large_file.h"
#include "engine/element_table.h"
#include "engine/reference_engine.h"
#include "engine/watched_cor_vyn.h"
#include "resources/element_class_controls.h"
#include "siblings/controls/object_list_box.h"
#include "small_bodies/minor_planet_dialog.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr ElementClassControls kControls = kMinorPlanetControls;
constexpr int kFewObjects = 10'000;
constexpr int kNameColumn = 8;  // switches the Japanese names

/// An engine with a loaded file of that many objects, the same one for all benchmarks.
ReferenceEngine& LoadedEngine(int objects) {
  static ReferenceEngine engine;
  static int loaded = 0;
  if (std::exchange(loaded, objects) != objects) {
    engine.Reset();
    engine.LoadStartingState();
    if (!engine.LoadElements(ElementKind::MinorPlanet, LargeElementFile(objects))) std::abort();
  }
  return engine;
}

/// The dialog as a person sees it, with every command counted.
class OpenDialog {
 public:
  explicit OpenDialog(CCorVyn& engine)
      : watched_(engine, [this](const QString&) { ++commands_; }),
        dialog_(&watched_, nullptr, nullptr) {
    dialog_.Create();
    dialog_.show();
    QApplication::processEvents();
  }

  CVynListBoxAObj& List() {
    return static_cast<CVynListBoxAObj&>(*dialog_.GetDlgItem(kControls.ObjectList()));
  }
  QScrollBar& Bar() { return *List().findChild<QScrollBar*>(); }
  qint64 RowsInView() { return List().AskRows(Bar().value(), Bar().pageStep()).rowCount; }

  void SearchFor(const QString& text) {
    List().SetValueCountTotal(List().GetValueCountTotal(), 0);  // nothing selected
    static_cast<QComboBox*>(dialog_.GetDlgItem(kControls.SearchCombo()))->setEditText(text);
    static_cast<QAbstractButton*>(dialog_.GetDlgItem(kControls.SearchForward()))->click();
  }
  int Commands() const { return commands_; }

 private:
  int commands_ = 0;
  WatchedCorVyn watched_;
  CDlgMinorPlanet dialog_;
};

/// What is allocated now, large blocks included.
std::size_t AllocatedBytes() {
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
}

void Open(benchmark::State& state) {
  ReferenceEngine& engine = LoadedEngine(static_cast<int>(state.range(0)));
  int commands = 0;
  qint64 rows = 0;
  for (auto _ : state) {
    OpenDialog dialog(engine);
    state.PauseTiming();
    commands = dialog.Commands();
    rows = dialog.RowsInView();
    state.ResumeTiming();
  }
  state.counters["commands"] = commands;
  state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(Open)->Arg(kFewObjects)->Arg(kManyObjects)->Unit(benchmark::kMillisecond);

/// What the dialog holds while it is open; it must not grow with the number of objects.
void Memory(benchmark::State& state) {
  ReferenceEngine& engine = LoadedEngine(static_cast<int>(state.range(0)));
  { OpenDialog first(engine); }  // what the toolkit keeps for all dialogs
  std::size_t bytes = 0;
  for (auto _ : state) {
    const std::size_t before = AllocatedBytes();
    OpenDialog dialog(engine);
    dialog.List().ScrollTo(dialog.List().GetValueCountTotal() - 1);
    dialog.List().repaint();
    bytes = AllocatedBytes() - before;
  }
  state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(Memory)->Arg(kFewObjects)->Arg(kManyObjects)->Iterations(1);

/// A repaint with its queries after the scroll bar was moved by `step` rows, from the top again at
/// the end.
void Scroll(benchmark::State& state) {
  OpenDialog dialog(LoadedEngine(kManyObjects));
  CVynListBoxAObj& list = dialog.List();
  QScrollBar& bar = dialog.Bar();
  const int step = state.range(0) == 0 ? bar.pageStep() : static_cast<int>(state.range(0));
  for (auto _ : state) {
    bar.setValue(bar.value() == bar.maximum() ? 0 : bar.value() + step);
    list.repaint();
  }
}
BENCHMARK(Scroll)->Name("ScrollRow")->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(Scroll)->Name("ScrollPage")->Arg(0)->Unit(benchmark::kMillisecond);
BENCHMARK(Scroll)->Name("JumpToEnd")->Arg(kManyObjects)->Unit(benchmark::kMillisecond);

/// The class-wide command and the queries of the redraw, without the painting.
void AllButton(benchmark::State& state) {
  OpenDialog dialog(LoadedEngine(kManyObjects));
  const qint64 rows = dialog.RowsInView();
  for (auto _ : state) {
    if (!dialog.List().PressAllButton(kNameColumn)) state.SkipWithError("no such button");
    benchmark::DoNotOptimize(dialog.List().AskRows(dialog.Bar().value(), rows));
  }
}
BENCHMARK(AllButton)->Unit(benchmark::kMillisecond);

void SearchLast(benchmark::State& state) {
  OpenDialog dialog(LoadedEngine(kManyObjects));
  for (auto _ : state) dialog.SearchFor(u"the last one"_s);
  if (dialog.List().GetValueSelect() != kManyObjects - 1) state.SkipWithError("not found");
}
BENCHMARK(SearchLast)->Unit(benchmark::kMillisecond);

/// Answers at once: what is left is the dialog's own time.
class InstantEngine final : public CCorVyn {
 public:
  QString Doit(const QString& command) override {
    static const QString count = QString::number(kManyObjects);
    static const QString names = u"(123456) 2001 AB12とある小惑星Some Minor Planet"_s;
    static const QString lastNames = u"THE LAST ONE"_s;
    if (command.endsWith(u".Count")) return count;
    return command.startsWith(u"? Solar.MinorPlanet.No1400000.") ? lastNames : names;
  }
  QString ObjNumToName(int) const override { return {}; }
  int GetLocationObject() const override { return 4; }
  int GetTimeSys() const override { return 0; }
};

void SearchLastOfInstantEngine(benchmark::State& state) {
  InstantEngine engine;
  OpenDialog dialog(engine);
  for (auto _ : state) dialog.SearchFor(u"the last one"_s);
  if (dialog.List().GetValueSelect() != kManyObjects - 1) state.SkipWithError("not found");
  state.counters["rows"] = benchmark::Counter(
      kManyObjects, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(SearchLastOfInstantEngine)->Unit(benchmark::kMillisecond);

// The engine's part.

void LoadMinorPlanets(benchmark::State& state) {
  const QString file = LargeElementFile(kManyObjects);
  ReferenceEngine engine;
  engine.LoadStartingState();
  std::size_t bytes = 0;
  for (auto _ : state) {
    engine.LoadElements(ElementKind::MinorPlanet, file);
    state.PauseTiming();
    const std::size_t loaded = AllocatedBytes();
    engine.Reset();
    bytes = loaded - AllocatedBytes();
    engine.LoadStartingState();
    state.ResumeTiming();
  }
  state.counters["bytes/object"] = static_cast<double>(bytes) / kManyObjects;
}
BENCHMARK(LoadMinorPlanets)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

void Query(benchmark::State& state, const QString& change, const QString& query) {
  ReferenceEngine& engine = LoadedEngine(kManyObjects);
  engine.Doit(u"Solar.MinorPlanet.Brighter.Visible = TRUE"_s);
  int turn = 0;
  for (auto _ : state) {
    engine.Doit(change.arg(10 + turn++ % 2));
    benchmark::DoNotOptimize(engine.Doit(query));
  }
  engine.Doit(u"Solar.MinorPlanet.Brighter.Visible = FALSE"_s);
}
BENCHMARK_CAPTURE(Query, CountAfterSwitch,
                  u"Solar.MinorPlanet.No1211 = FALSE; Solar.MinorPlanet.No12%1 = TRUE"_s,
                  u"? Solar.MinorPlanet.CountOfVisible"_s)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Query, CountAfterLimit, u"Solar.MinorPlanet.Brighter.Magnitude = %1"_s,
                  u"? Solar.MinorPlanet.CountOfVisible"_s)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(Query, Status, u"Solar.MinorPlanet.No12%1.Visible = FALSE"_s,
                  u"? Solar.MinorPlanet.Status"_s)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace vyn
