#include "host/startup.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include <QCoreApplication>
#include <QFileInfo>
#include <QFontDatabase>
#include <QStandardPaths>

#include "engine/element_table.h"
#include "engine/reference_engine.h"
#include "image_data/planet_texture_dialog.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

QtMessageHandler previousHandler = nullptr;

/// Without a display Qt ends the program by a fatal message, which would leave a core dump. Other
/// fatal messages go their usual way.
void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  const bool isMissingDisplay = type == QtFatalMsg && message.contains("platform plugin"_L1);
  if (!isMissingDisplay) return previousHandler(type, context, message);
  std::fprintf(stderr,
               "vyn-planetarium: cannot open a window: there is no display.\n"
               "Start it in a graphical session, or play the tour without one:\n"
               "  vyn-planetarium --tour FOLDER\n");
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

void ExplainMissingDisplay() { previousHandler = qInstallMessageHandler(HandleMessage); }

bool HasJapaneseFont() {
  if (!QFontDatabase::families(QFontDatabase::Japanese).isEmpty()) return true;
  std::fputs(
      "vyn-planetarium: no installed font has Japanese characters.\n"
      "Install one, for example Debian's package fonts-ipafont-gothic.\n",
      stderr);
  return false;
}

QString FindCometFile() {
  const QString folder = QCoreApplication::applicationDirPath();
  const std::array<QString, 4> candidates{
      folder + u"/comets.eld"_s, folder + u"/../share/vyn-planetarium/comets.eld"_s,
      folder + u"/../../../data/comets.eld"_s, QStringLiteral(VYN_DATA_DIR "/comets.eld")};
  const auto found = std::find_if(candidates.begin(), candidates.end(),
                                  [](const QString& path) { return QFileInfo::exists(path); });
  return found != candidates.end() ? QFileInfo(*found).canonicalFilePath() : QString();
}

bool LoadComets(ReferenceEngine& engine, const QString& path) {
  const bool isLoaded = engine.LoadElements(ElementKind::Comet, path);
  for (const ElementProblem& problem : engine.Elements(ElementKind::Comet).Problems()) {
    std::fprintf(stderr, "vyn-planetarium: %s\n", qPrintable(problem.Text()));
  }
  return isLoaded;
}

void LoadUserData(ReferenceEngine& engine) {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  for (const QString& problem : engine.LoadDataSets(folder)) {
    std::fprintf(stderr, "vyn-planetarium: %s\n", qPrintable(problem));
  }
  CDlgPlanetTex::SendDefaults(engine);
}

}  // namespace vyn
