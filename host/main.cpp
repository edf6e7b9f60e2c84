// The demo planetarium's main program: reads the command line and opens the window or plays the
// tour.
#include <clocale>
#include <cstdio>
#include <optional>

#include <QApplication>
#include <QCommandLineParser>
#include <QStyleFactory>

#include "engine/reference_engine.h"
#include "host/labels.h"
#include "host/main_window.h"
#include "host/moments.h"
#include "host/startup.h"
#include "host/tour.h"

namespace {

using namespace Qt::StringLiterals;

struct Options {
  QString comets;
  QString minorPlanets;
  QString tour;
  std::optional<double> moment;
};

int Refuse(const QString& reason) {
  std::fprintf(stderr, "vyn-planetarium: %s\n", qPrintable(reason));
  return EXIT_FAILURE;
}

/// Reads the command line without a window, so that --help needs no display.
std::optional<Options> ReadOptions(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(u"A demo planetarium for the settings dialogs."_s);
  parser.addHelpOption();
  parser.addOptions({
      {u"elements"_s, u"Shows the comets of this element file."_s, u"file"_s},
      {u"minor-planets"_s, u"Shows the minor planets of this element file."_s, u"file"_s},
      {u"time"_s, u"The moment shown, Japan standard time: YYYY-MM-DDThh:mm:ss."_s, u"moment"_s},
      {u"tour"_s, u"Writes pictures of the window and of every dialog into this folder."_s,
       u"folder"_s},
  });
  parser.process(application);
  Options options{parser.value(u"elements"_s), parser.value(u"minor-planets"_s),
                  parser.value(u"tour"_s), vyn::ReadMoment(parser.value(u"time"_s))};
  if (parser.isSet(u"time"_s) && !options.moment) {
    Refuse(u"--time takes a moment such as 2026-01-01T21:00:00"_s);
    return std::nullopt;
  }
  return options;
}

/// Pictures are to look the same everywhere.
void LookTheSame() {
  QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
  QApplication::setFont(QFont(u"IPAPGothic"_s, 10));
}

/// False when the file that was asked for cannot be used. The tour changes nothing, so it shows the
/// demo's own files.
bool LoadElements(vyn::ReferenceEngine& engine, vyn::ElementKind kind, const QString& wanted,
                  bool isTour) {
  if (!wanted.isEmpty()) return vyn::LoadElements(engine, kind, wanted);
  const QString file = isTour ? vyn::FindElementFile(kind) : vyn::UsersElementFile(kind);
  if (file.isEmpty()) {
    Refuse(u"an element file of the demo was not found; its objects are not shown"_s);
  } else {
    vyn::LoadElements(engine, kind, file);
  }
  return true;
}

bool PrepareEngine(vyn::ReferenceEngine& engine, const Options& options) {
  engine.LoadStartingState();
  const bool isTour = !options.tour.isEmpty();
  return LoadElements(engine, vyn::ElementKind::Comet, options.comets, isTour) &&
         LoadElements(engine, vyn::ElementKind::MinorPlanet, options.minorPlanets, isTour);
}

int Run(QApplication& application, const Options& options) {
  if (!vyn::HasJapaneseFont()) return EXIT_FAILURE;
  if (QGuiApplication::platformName() == "offscreen"_L1) LookTheSame();
  vyn::ReferenceEngine engine;
  if (!PrepareEngine(engine, options)) return EXIT_FAILURE;
  // Pictures are to show the same for everybody.
  if (options.tour.isEmpty()) vyn::LoadUserData(engine);
  const double tourMoment = options.moment.value_or(engine.JulianDate());
  vyn::MainWindow window(engine);
  window.resize(1280, 900);
  window.GoTo(options.moment.value_or(vyn::CurrentMoment()));
  window.show();
  if (options.tour.isEmpty()) return application.exec();
  return vyn::PlayTour(window, options.tour, tourMoment) ? EXIT_SUCCESS : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char** argv) {
  const std::optional<Options> options = ReadOptions(argc, argv);
  if (!options) return EXIT_FAILURE;
  vyn::ExplainMissingDisplay();
  // The tour shows nothing on a screen.
  if (!options->tour.isEmpty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  QApplication application(argc, argv);
  return Run(application, *options);
}
