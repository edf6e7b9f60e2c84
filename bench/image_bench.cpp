// What a person waits for in the image dialogs: a drag over a large photograph, large images opened
// beside what their bare decoders need, long lists. Makes its own images.
#include <benchmark/benchmark.h>

#include <fitsio.h>
#include <QApplication>
#include <QFile>
#include <QImageReader>
#include <QListWidget>
#include <QMouseEvent>
#include <QTemporaryDir>

#include "engine/reference_engine.h"
#include "image_data/corona_dialog.h"
#include "image_data/sunspot_dialog.h"
#include "siblings/images/image_file.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize kPhotographSize(6000, 4000);
constexpr int kFitsSide = 4096;
constexpr int kPreview = 11100, kCoronaList = 11085, kSpotList = 11099;

/// A disk with a halo and the grain of a real exposure, 0 to 1.
double BrightnessAt(int x, int y, int width, int height) {
  const double away = std::hypot(x - width / 2.0, y - height / 2.0) / height;
  const unsigned grain =
      (static_cast<unsigned>(x) * 2654435761U) ^ (static_cast<unsigned>(y) * 2246822519U);
  return 0.9 * std::exp(-4.0 * away) + 0.1 * ((grain >> 13) % 256) / 255.0;
}

class LargeImages {
 public:
  LargeImages() {
    MakeJpeg();
    MakeFits();
  }

  const QString& Jpeg() const { return jpeg_; }
  const QString& Fits() const { return fits_; }

 private:
  void MakeJpeg() {
    QImage image(kPhotographSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
      auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
      for (int x = 0; x < image.width(); ++x) {
        const int grey = static_cast<int>(255 * BrightnessAt(x, y, image.width(), image.height()));
        line[x] = qRgb(grey, grey * 9 / 10, grey * 8 / 10);
      }
    }
    if (!image.save(jpeg_, "jpeg", 90)) qFatal("no room for %s", qPrintable(jpeg_));
  }

  void MakeFits() {
    std::vector<float> values;
    values.reserve(static_cast<std::size_t>(kFitsSide) * kFitsSide);
    for (int y = 0; y < kFitsSide; ++y) {
      for (int x = 0; x < kFitsSide; ++x) {
        values.push_back(static_cast<float>(1e4 * BrightnessAt(x, y, kFitsSide, kFitsSide)));
      }
    }
    fitsfile* file = nullptr;
    int status = 0;
    std::array<long, 2> sides{kFitsSide, kFitsSide};
    fits_create_file(&file, QFile::encodeName(fits_).constData(), &status);
    fits_create_img(file, FLOAT_IMG, 2, sides.data(), &status);
    fits_write_img(file, TFLOAT, 1, std::ssize(values), values.data(), &status);
    fits_close_file(file, &status);
    if (status != 0) qFatal("no room for %s", qPrintable(fits_));
  }

  QTemporaryDir folder_;
  const QString jpeg_ = folder_.filePath(u"photograph.jpg"_s);
  const QString fits_ = folder_.filePath(u"exposure.fits"_s);
};

const LargeImages& Images() {
  static const LargeImages images;
  return images;
}

/// The reference engine while a dialog opens; after that it costs nothing.
class QuietableCorVyn final : public CCorVyn {
 public:
  QString Doit(const QString& command) override {
    if (!quiet) return engine.Doit(command);
    ++commands;
    return {};
  }
  QString ObjNumToName(int bodyNumber) const override { return engine.ObjNumToName(bodyNumber); }
  int GetLocationObject() const override { return 0; }
  int GetTimeSys() const override { return 0; }

  ReferenceEngine engine;
  bool quiet = false;
  int commands = 0;  ///< since it became quiet
};

void Mouse(QWidget* preview, QEvent::Type type, QPointF point) {
  const bool isMove = type == QEvent::MouseMove;
  const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
  QMouseEvent event(type, point, preview->mapToGlobal(point),
                    isMove ? Qt::NoButton : Qt::LeftButton, buttons, Qt::NoModifier);
  QApplication::sendEvent(preview, &event);
}

/// One move of the mouse with the handle or spot in the middle held, all of the dialog painted.
void DragIn(benchmark::State& state, CVynDialog& dialog, QuietableCorVyn& corVyn) {
  QWidget* preview = dialog.GetDlgItem(kPreview);
  const QPointF start = QRectF(preview->rect()).center();
  corVyn.quiet = true;
  Mouse(preview, QEvent::MouseButtonPress, start);
  int step = 0;
  for (auto _ : state) {
    ++step;
    Mouse(preview, QEvent::MouseMove, start + QPointF(step % 40, step % 30));
    QApplication::processEvents();
  }
  Mouse(preview, QEvent::MouseButtonRelease, start);
  state.counters["commands"] =
      benchmark::Counter(corVyn.commands, benchmark::Counter::kAvgIterations);
}

void Select(CVynDialog& dialog, int list, int row) {
  static_cast<QListWidget*>(dialog.GetDlgItem(list))->setCurrentRow(row);
  QApplication::processEvents();
}

void DragOverPhotograph(benchmark::State& state) {
  QuietableCorVyn corVyn;
  corVyn.engine.SetProperty(u"solar.sun.corona.count"_s, u"1"_s);
  corVyn.engine.SetProperty(u"solar.sun.corona.#1.imagefile"_s, Images().Jpeg());
  CDlgCorona dialog(&corVyn, nullptr, nullptr);
  dialog.Create();
  Select(dialog, kCoronaList, 0);
  DragIn(state, dialog, corVyn);
}
BENCHMARK(DragOverPhotograph)->Unit(benchmark::kMicrosecond);

// Images.

void OpenImage(benchmark::State& state, const QString& path) {
  for (auto _ : state) {
    const QImage image = LoadImageFile(path);
    if (image.isNull()) state.SkipWithError("not loaded");
  }
}

void OpenLargeJpeg(benchmark::State& state) { OpenImage(state, Images().Jpeg()); }
BENCHMARK(OpenLargeJpeg)->Unit(benchmark::kMillisecond);

void BareJpegDecoder(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(QImageReader(Images().Jpeg()).read());
}
BENCHMARK(BareJpegDecoder)->Unit(benchmark::kMillisecond);

void OpenLargeFits(benchmark::State& state) { OpenImage(state, Images().Fits()); }
BENCHMARK(OpenLargeFits)->Unit(benchmark::kMillisecond);

void BareFitsDecoder(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<float> values(static_cast<std::size_t>(kFitsSide) * kFitsSide);
    fitsfile* file = nullptr;
    int status = 0;
    fits_open_file(&file, QFile::encodeName(Images().Fits()).constData(), READONLY, &status);
    fits_read_img(file, TFLOAT, 1, std::ssize(values), nullptr, values.data(), nullptr, &status);
    fits_close_file(file, &status);
    benchmark::DoNotOptimize(values.data());
  }
}
BENCHMARK(BareFitsDecoder)->Unit(benchmark::kMillisecond);

// Long lists.

template <class Dialog>
void Opening(benchmark::State& state, CCorVyn& corVyn) {
  for (auto _ : state) {
    Dialog dialog(&corVyn, nullptr, nullptr);
    dialog.Create();
    QApplication::processEvents();
  }
}

/// Half of the sets have titles, the others are told by their moment.
void FillCorona(ReferenceEngine& engine, int count) {
  engine.LoadStartingState();
  for (int number = 1; number <= count; ++number) {
    const QString path = u"solar.sun.corona.#%1."_s.arg(number);
    engine.SetProperty(path + u"time", QString::number(2450000 + number));
    engine.SetProperty(path + u"radius", u"0.3"_s);
    if (number % 2 == 0) engine.SetProperty(path + u"title", u"eclipse %1"_s.arg(number));
  }
  engine.SetProperty(u"solar.sun.corona.count"_s, QString::number(count));
}

void OpeningOf10000Sets(benchmark::State& state) {
  ReferenceEngine engine;
  FillCorona(engine, 10'000);
  Opening<CDlgCorona>(state, engine);
}
BENCHMARK(OpeningOf10000Sets)->Unit(benchmark::kMillisecond);

void AddingAmong10000Sets(benchmark::State& state) {
  ReferenceEngine engine;
  FillCorona(engine, 10'000);
  CDlgCorona dialog(&engine, nullptr, nullptr);
  dialog.Create();
  auto* add = static_cast<QAbstractButton*>(dialog.GetDlgItem(11086));
  for (auto _ : state) {
    add->click();
    QApplication::processEvents();
  }
}
BENCHMARK(AddingAmong10000Sets)->Unit(benchmark::kMillisecond)->Iterations(20);

/// The first one stands in the middle of the disk.
void FillSpots(ReferenceEngine& engine, int count) {
  engine.LoadStartingState();
  engine.Doit(u"Solar.Sun.Sunspot.Add(); Solar.Sun.Sunspot.#1.Add(0, 0, 2)"_s);
  engine.SetProperty(u"Solar.Sun.Sunspot.#1.CM"_s, u"0"_s);
  engine.SetProperty(u"Solar.Sun.Sunspot.#1.De"_s, u"0"_s);
  for (int spot = 1; spot < count; ++spot) {
    engine.Doit(u"Solar.Sun.Sunspot.#1.Add(%1, %2, %3)"_s.arg(spot % 120 - 60)
                    .arg(spot % 61 - 30)
                    .arg(spot % 4 + 1));
  }
}

void OpeningOf1000Spots(benchmark::State& state) {
  ReferenceEngine engine;
  FillSpots(engine, 1000);
  Opening<CDlgSunSpot>(state, engine);
}
BENCHMARK(OpeningOf1000Spots)->Unit(benchmark::kMillisecond);

void DragAmong1000Spots(benchmark::State& state) {
  QuietableCorVyn corVyn;
  FillSpots(corVyn.engine, 1000);
  CDlgSunSpot dialog(&corVyn, nullptr, nullptr);
  dialog.Create();
  Select(dialog, kSpotList, 0);
  DragIn(state, dialog, corVyn);
}
BENCHMARK(DragAmong1000Spots)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace vyn
