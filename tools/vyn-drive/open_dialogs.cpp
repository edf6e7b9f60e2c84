#include "tools/vyn-drive/open_dialogs.h"

#include <algorithm>
#include <stdexcept>

#include "core_link/window_message.h"
#include "tools/vyn-drive/input.h"
#include "tools/vyn-drive/output.h"
#include "tools/vyn-drive/script.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

void ReportClosing(const QString& className, int result) {
  Print(u"closed: "_s + className + (result == QDialog::Accepted ? u" ok"_s : u" cancel"_s));
}

/// A dialog refuses an engine whose figures contradict each other by an exception.
bool Create(CVynDialog& dialog) {
  try {
    return dialog.Create();
  } catch (const std::invalid_argument& error) {
    throw ScriptError{u"the dialog does not open: "_s + QString::fromUtf8(error.what())};
  }
}

}  // namespace

bool ParentWindow::event(QEvent* event) {
  if (event->type() != kTextRequestMessage) return QWidget::event(event);
  const auto* question = static_cast<CVynMessage*>(event);
  *static_cast<QString*>(question->lParam) = u"text"_s + QString::number(question->wParam);
  event->accept();
  return true;
}

void OpenDialogs::Open(const QString& className, CCorVyn* commandHandle, CCorVyn* secondHandle,
                       Arguments& words) {
  CVynDialog& dialog =
      *owned_.emplace_back(MakeDialog(className, {commandHandle, secondHandle, &parent_}, words));
  if (!Create(dialog)) return;
  Print(u"opened: "_s + className + u' ' + Quoted(dialog.windowTitle()));
  Add(dialog);
}

void OpenDialogs::Add(CVynDialog& dialog) {
  const bool isKnown = std::erase(dialogs_, &dialog) > 0;
  dialogs_.emplace_back(&dialog);
  if (isKnown) return;
  QObject::connect(&dialog, &QDialog::finished, &dialog,
                   [name = ClassName(dialog)](int result) { ReportClosing(name, result); });
}

CVynDialog* OpenDialogs::FindActive() const {
  const auto open = std::find_if(dialogs_.rbegin(), dialogs_.rend(), [](const auto& dialog) {
    return dialog != nullptr && dialog->isVisible();
  });
  return open != dialogs_.rend() ? open->data() : nullptr;
}

void OpenDialogs::Activate() const {
  CVynDialog* dialog = FindActive();
  if (dialog == nullptr || dialog->isActiveWindow()) return;
  dialog->activateWindow();
  Settle();
}

CVynDialog& OpenDialogs::Active() const {
  CVynDialog* dialog = FindActive();
  if (dialog == nullptr) throw ScriptError{u"no dialog is open"_s};
  return *dialog;
}

QWidget& OpenDialogs::Control(int id) const {
  QWidget* control = Active().GetDlgItem(id);
  if (control == nullptr) {
    throw ScriptError{u"no such control in "_s + ClassName(Active()) + u": "_s +
                      QString::number(id)};
  }
  return *control;
}

}  // namespace vyn::drive
