// One script: the engine, settings, dialogs and answers it starts with, and its way through the
// lines.
#pragma once

#include <atomic>

#include <QTemporaryDir>

#include "tools/vyn-drive/answers.h"
#include "tools/vyn-drive/import_progress.h"
#include "tools/vyn-drive/modal_windows.h"
#include "tools/vyn-drive/open_dialogs.h"
#include "tools/vyn-drive/traced_engines.h"
#include "tools/vyn-drive/watchdog.h"

namespace vyn::drive {

class Session {
  const QString script_;
  const QString shotsFolder_;
  const QTemporaryDir settings_;
  const ScriptLine* line_ = nullptr;
  std::atomic<int> lineNumber_ = 0;
  Watchdog watchdog_;  // outlives whatever gives it signs of life

 public:
  /// `script` is named in errors; pictures go to `shotsFolder`.
  Session(QString script, QString shotsFolder);
  ~Session();
  Q_DISABLE_COPY_MOVE(Session)

  /// Carries out a whole script.
  void RunScript(const std::vector<ScriptLine>& lines);

  /// Carries out lines inside the script. Throws ScriptError at the first that cannot be.
  void Run(const std::vector<ScriptLine>& lines);

  /// Ends the program with "error: SCRIPT:LINE: reason" and exit status 2, without closing
  /// anything: a dialog that closed would send and print more. Can be called from any thread.
  [[noreturn]] void Fail(const QString& reason) const;

  /// The line that is being carried out.
  const ScriptLine& Line() const { return *line_; }
  const QString& ShotsFolder() const { return shotsFolder_; }

  TracedEngines engines;
  Answers answers;
  ImportProgress importProgress;
  OpenDialogs dialogs;
  Qt::MouseButtons heldButtons;

 private:
  void RunLine(const ScriptLine& line);

  ModalWindows modalWindows_;
};

}  // namespace vyn::drive
