// Times what the dialogs do with a large element file: an import run as the comet dialog's button
// runs it (progress window, events between objects, commands to the engine), opening the editor on
// the last object and looking its identifier up.
//   import_run SOURCE TARGET
#include <chrono>
#include <cstdio>

#include <QApplication>
#include <QDialog>

#include "elements/data_pointers.h"
#include "elements/element_import.h"
#include "elements/element_import_progress_dialog.h"
#include "elements/element_man.h"
#include "elements/element_man_edit_dialog.h"
#include "elements/loaded_identifiers.h"
#include "engine/reference_engine.h"

namespace {

using namespace Qt::StringLiterals;

class StopWatch {
 public:
  double Seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

/// The loop of the import button; returns how many objects were written.
int RunImport(vyn::ReferenceEngine& engine, const QString& source, QDialog& window) {
  vyn::CElementMan manager(0, &engine, nullptr, &window);
  const int count = manager.CountObjects(source);
  const int knownBefore = engine.Doit(u"? Solar.MinorPlanet.Count"_s).toInt();
  vyn::CDlgElementImportProgress progress(13389, &window);
  progress.Create();
  // The user has said "overwrite all".
  std::int32_t flags = 0x010;
  int written = 0;
  for (int object = 0; object < count; ++object) {
    if (!progress.SetProgress(static_cast<int>(std::int64_t{object} * 100 / count))) break;
    QCoreApplication::processEvents();
    vyn::CElementImport import(0, &engine);
    const int result = import.ImportElement(source, object, &flags, &window);
    if (result < -1) {
      std::fprintf(stderr, "object %d: %s\n", object, qUtf8Printable(import.ErrorText()));
      break;
    }
    if (result < 0) continue;
    ++written;
    engine.Doit(result < knownBefore
                    ? u"Solar.MinorPlanet.No%1.DataUpdate = TRUE"_s.arg(result + 1)
                    : u"Solar.MinorPlanet.DataAdd = True"_s);
  }
  progress.DestroyWindow();
  return written;
}

void OpenEditor(vyn::ReferenceEngine& engine, QDialog& window) {
  const auto loaded = vyn::ReadDataPointers(engine.Doit(u"? Solar.MINORPLANET.DataPtr"_s));
  const int last = static_cast<int>(loaded->objectCount) - 1;
  const StopWatch opening;
  const char* record = loaded->records + loaded->FirstRecordOf(last) * 417;
  vyn::CDlgElementManEdit editor(&engine, nullptr, &window);
  editor.SetPages({QByteArray(record, 417)});
  editor.SetObjectNumber(last);
  editor.Create();
  QCoreApplication::processEvents();
  std::printf("opening the editor on object %d: %.3f s\n", last, opening.Seconds());
  const StopWatch checking;
  const bool isTaken = vyn::IsIdentifierLoaded(*loaded, u"no such object", last);
  std::printf("looking an identifier up: %.3f s (%s)\n", checking.Seconds(),
              isTaken ? "taken" : "free");
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  if (argc != 3) {
    std::fputs("usage: import_run SOURCE TARGET\n", stderr);
    return 2;
  }
  vyn::ReferenceEngine engine;
  const StopWatch loading;
  engine.Doit(u"Solar.MinorPlanet.File = \"%1\""_s.arg(QString::fromLocal8Bit(argv[2])));
  std::printf("loading: %.3f s\n", loading.Seconds());
  QDialog window;
  window.show();
  OpenEditor(engine, window);
  const StopWatch importing;
  const int written = RunImport(engine, QString::fromLocal8Bit(argv[1]), window);
  std::printf("importing: %d objects in %.3f s\n", written, importing.Seconds());
  std::printf("the engine has %s objects now\n",
              qUtf8Printable(engine.Doit(u"? Solar.MinorPlanet.Count"_s)));
  return 0;
}
