#include "host/startup.h"

#include <array>
#include <cstdio>
#include <cstdlib>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
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

QString NameOf(ElementKind kind) {
  return kind == ElementKind::Comet ? u"comets.eld"_s : u"minor_planets.eld"_s;
}

QString UserFolder() { return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation); }

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

QString FindElementFile(ElementKind kind) {
  const QString program = QCoreApplication::applicationDirPath();
  const std::array<QString, 4> folders{program, program + u"/../share/vyn-planetarium"_s,
                                       program + u"/../../../data"_s, QStringLiteral(VYN_DATA_DIR)};
  for (const QString& folder : folders) {
    const QFileInfo file(folder + u'/' + NameOf(kind));
    if (file.exists()) return file.canonicalFilePath();
  }
  return {};
}

QString UsersElementFile(ElementKind kind) {
  const QString demos = FindElementFile(kind);
  const QDir folder(UserFolder());
  const QString own = folder.filePath(NameOf(kind));
  const bool isThere = QFileInfo::exists(own) ||
                       (!demos.isEmpty() && folder.mkpath(u"."_s) && QFile::copy(demos, own));
  if (!isThere) return demos;
  // The demo's may be read-only, and so the copy.
  QFile::setPermissions(own, QFile::permissions(own) | QFile::WriteOwner);
  return own;
}

bool LoadElements(ReferenceEngine& engine, ElementKind kind, const QString& path) {
  const bool isLoaded = engine.LoadElements(kind, path);
  for (const ElementProblem& problem : engine.Elements(kind).Problems()) {
    std::fprintf(stderr, "vyn-planetarium: %s\n", qPrintable(problem.Text()));
  }
  return isLoaded;
}

void LoadUserData(ReferenceEngine& engine) {
  for (const QString& problem : engine.LoadDataSets(UserFolder())) {
    std::fprintf(stderr, "vyn-planetarium: %s\n", qPrintable(problem));
  }
  CDlgPlanetTex::SendDefaults(engine);
}

}  // namespace vyn
