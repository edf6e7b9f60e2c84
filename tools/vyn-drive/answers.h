// The answers that a script has queued for windows to come, and how they are given.
#pragma once

#include <deque>
#include <map>
#include <optional>

#include <QString>

#include "tools/vyn-drive/script.h"

class QFileDialog;
class QMessageBox;

namespace vyn {
class CSetColorDialog;
}

namespace vyn::drive {

/// One queue for each kind of window, used in order.
struct Answers {
  std::deque<QString> boxes;                 ///< the word of a button: ok, cancel, yes, no
  std::deque<std::optional<QString>> files;  ///< a path; nothing to cancel
  int colors = 0;                            ///< how many colour-and-font dialogs get an OK
  std::deque<int> progressStops;             ///< percentages
  /// By class: the lines `answer CLASS`, which live as long as their script.
  std::map<QString, std::deque<const ScriptLine*>> dialogs;
};

/// Whether `answer box` knows this button.
bool IsBoxButton(const QString& word);

// Each takes the next answer, prints the event and presses the window's own button. A message box
// without an answer gets its default button; the others throw ScriptError.
void AnswerBox(QMessageBox& box, Answers& answers);
void AnswerFile(QFileDialog& dialog, Answers& answers);
void AnswerColor(CSetColorDialog& dialog, Answers& answers);

/// The lines to carry out in a dialog of this class.
const std::vector<ScriptLine>& TakeDialogAnswer(const QString& className, Answers& answers);

/// Throws the ScriptError for a window without an answer.
[[noreturn]] void ThrowUnanswered(const QString& window);

}  // namespace vyn::drive
