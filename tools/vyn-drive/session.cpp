#include "tools/vyn-drive/session.h"

#include <cstdio>
#include <cstdlib>

#include <QDir>

#include "siblings/registry/registry.h"
#include "tools/vyn-drive/commands.h"
#include "tools/vyn-drive/input.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

/// Longer than any single click works, also on the largest element files.
constexpr std::chrono::seconds kPatience(120);

}  // namespace

Session::Session(QString script, QString shotsFolder)
    : script_(std::move(script)),
      shotsFolder_(std::move(shotsFolder)),
      watchdog_(kPatience, [this] { Fail(u"nothing happens any more"_s); }),
      engines([this] { watchdog_.Alive(); }),
      modalWindows_(*this) {
  CRegistry::UseFile(settings_.filePath(u"settings.ini"_s));
}

Session::~Session() {
  engines.trace = TraceLevel::Off;
  CRegistry::UseFile({});
}

void Session::RunScript(const std::vector<ScriptLine>& lines) {
  try {
    Run(lines);
  } catch (const ScriptError& error) {
    Fail(error.reason);
  }
}

void Session::Run(const std::vector<ScriptLine>& lines) {
  for (const ScriptLine& line : lines) RunLine(line);
}

void Session::RunLine(const ScriptLine& line) {
  const ScriptLine* outerLine = std::exchange(line_, &line);
  lineNumber_ = line.number;
  watchdog_.Alive();
  QStringList words = SplitWords(line.text);
  if (!words.isEmpty()) {
    const Command& command = FindCommand(words.takeFirst());
    Arguments arguments(words);
    dialogs.Activate();
    command.run(*this, arguments);
    Settle();
  }
  line_ = outerLine;
  lineNumber_ = outerLine != nullptr ? outerLine->number : line.number;
}

void Session::Fail(const QString& reason) const {
  const QByteArray error =
      u"error: %1:%2: %3\n"_s.arg(script_, QString::number(lineNumber_), reason).toUtf8();
  std::fflush(stdout);
  std::fputs(error.constData(), stderr);
  std::fflush(stderr);
  QDir(settings_.path()).removeRecursively();
  std::_Exit(2);
}

}  // namespace vyn::drive
