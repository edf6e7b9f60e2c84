#include "tools/vyn-drive/modal_windows.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressBar>

#include "siblings/common_dialogs/color_dialog.h"
#include "tools/vyn-drive/input.h"
#include "tools/vyn-drive/output.h"
#include "tools/vyn-drive/session.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

constexpr int kProgressBar = 1940, kProgressStop = 1941;

}  // namespace

ModalWindows::ModalWindows(Session& session) : session_(session) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool ModalWindows::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && !event->spontaneous() && watched->isWidgetType()) {
    OnShown(*static_cast<QWidget*>(watched));
  }
  return false;
}

void ModalWindows::OnShown(QWidget& window) {
  if (window.isWindow() && window.isModal()) {
    // Not now, but when the window waits for its user.
    QMetaObject::invokeMethod(
        this, [this, shown = QPointer<QWidget>(&window)] { Answer(shown); }, Qt::QueuedConnection);
  } else if (ClassName(window) == u"CDlgElementImportProgress") {
    WatchProgress(window);
  }
}

void ModalWindows::WatchProgress(QWidget& window) {
  const auto* dialog = qobject_cast<CVynDialog*>(&window);
  if (dialog == nullptr) return;
  const auto* bar = qobject_cast<QProgressBar*>(dialog->GetDlgItem(kProgressBar));
  QWidget* stop = dialog->GetDlgItem(kProgressStop);
  if (bar == nullptr || stop == nullptr) return;
  std::deque<int>& stops = session_.answers.progressStops;
  std::optional<int> percent;
  if (!stops.empty()) {
    percent = stops.front();
    stops.pop_front();
  }
  session_.importProgress.Attach(window, *bar, *stop, percent);
}

/// An exception must not pass through the toolkit's event loop, so a failure ends the run here.
void ModalWindows::Answer(const QPointer<QWidget>& window) {
  try {
    Settle();
    if (window && window->isVisible()) GiveAnswer(*window);
    if (window && window->isVisible()) {
      throw ScriptError{u"the answer leaves the window open: "_s + ClassName(*window)};
    }
  } catch (const ScriptError& error) {
    session_.Fail(error.reason);
  }
}

void ModalWindows::GiveAnswer(QWidget& window) {
  if (auto* box = qobject_cast<QMessageBox*>(&window)) {
    AnswerBox(*box, session_.answers);
  } else if (auto* file = qobject_cast<QFileDialog*>(&window)) {
    AnswerFile(*file, session_.answers);
  } else if (auto* color = qobject_cast<CSetColorDialog*>(&window)) {
    AnswerColor(*color, session_.answers);
  } else if (auto* dialog = qobject_cast<CVynDialog*>(&window)) {
    RunIn(*dialog);
  } else {
    ThrowUnanswered(ClassName(window));
  }
}

void ModalWindows::RunIn(CVynDialog& dialog) {
  const QString className = ClassName(dialog);
  Print(u"modal: "_s + className + u' ' + Quoted(dialog.windowTitle()));
  session_.dialogs.Add(dialog);
  session_.Run(TakeDialogAnswer(className, session_.answers));
}

}  // namespace vyn::drive
