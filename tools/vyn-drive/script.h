// Scenario scripts: their lines, their words, and the errors that end them.
#pragma once

#include <vector>

#include <QString>
#include <QStringList>

namespace vyn::drive {

/// Why a line cannot be carried out. Ends the run with exit status 2.
struct ScriptError {
  QString reason;
};

/// One line. The lines between `answer CLASS` and its `end` are that line's block.
struct ScriptLine {
  int number = 0;
  QString text;
  std::vector<ScriptLine> block;
  bool hasEnd = true;  ///< false for an `answer CLASS` whose `end` is missing
};

/// Takes a script apart into its lines and blocks. Bad lines stay as they are: they matter only
/// when their turn comes.
std::vector<ScriptLine> ReadLines(const QString& script);

/// The words of a line, without its comment. Throws ScriptError.
QStringList SplitWords(QStringView line);

/// Whether this word behind `answer` names a dialog class, so that a block follows.
bool IsDialogClass(QStringView word);

}  // namespace vyn::drive
