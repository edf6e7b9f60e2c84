#include "tools/vyn-drive/answers.h"

#include <algorithm>
#include <array>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "siblings/common_dialogs/color_dialog.h"
#include "tools/vyn-drive/input.h"
#include "tools/vyn-drive/output.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

struct BoxButton {
  QStringView word;
  QMessageBox::StandardButton button;
};

constexpr std::array kBoxButtons = {
    BoxButton{u"ok", QMessageBox::Ok},
    BoxButton{u"cancel", QMessageBox::Cancel},
    BoxButton{u"yes", QMessageBox::Yes},
    BoxButton{u"no", QMessageBox::No},
};

QStringView IconWord(QMessageBox::Icon icon) {
  switch (icon) {
    case QMessageBox::Information:
      return u"information";
    case QMessageBox::Warning:
      return u"warning";
    case QMessageBox::Question:
      return u"question";
    case QMessageBox::Critical:
      return u"critical";
    default:
      return u"plain";
  }
}

QString ButtonWord(const QMessageBox& box, QAbstractButton& button) {
  const auto found =
      std::ranges::find(kBoxButtons, box.standardButton(&button), &BoxButton::button);
  return found != kBoxButtons.end() ? found->word.toString() : button.text().remove(u'&').toLower();
}

QAbstractButton* DefaultButton(const QMessageBox& box) {
  const QList<QAbstractButton*> buttons = box.buttons();
  const auto found = std::ranges::find_if(buttons, [](QAbstractButton* button) {
    const auto* push = qobject_cast<QPushButton*>(button);
    return push != nullptr && push->isDefault();
  });
  if (found != buttons.end()) return *found;
  return buttons.size() == 1 ? buttons.first() : nullptr;
}

QAbstractButton* ButtonNamed(const QMessageBox& box, const QString& word) {
  const auto found = std::ranges::find(kBoxButtons, QStringView(word), &BoxButton::word);
  return box.button(found->button);
}

template <class Queue>
auto Take(Queue& queue) {
  auto first = queue.front();
  queue.pop_front();
  return first;
}

template <class Part>
Part& PartOf(const QWidget& window, const QString& name = {}) {
  auto* part = window.findChild<Part*>(name);
  if (part == nullptr) ThrowUnanswered(window.windowTitle());
  return *part;
}

/// A dialog that takes no filter shows the toolkit's own.
QString FilterOf(const QFileDialog& dialog) {
  const QString filter = dialog.nameFilters().join(u";;"_s);
  return filter == QFileDialog::tr("All Files (*)") ? QString() : filter;
}

void ReportFile(const QFileDialog& dialog, const QString& answer) {
  Print(u"file: "_s + Quoted(dialog.windowTitle()) + u' ' + Quoted(FilterOf(dialog)) + u' ' +
        Quoted(dialog.directory().path()) + u" -> " + answer);
}

}  // namespace

bool IsBoxButton(const QString& word) {
  return std::ranges::find(kBoxButtons, QStringView(word), &BoxButton::word) != kBoxButtons.end();
}

void AnswerBox(QMessageBox& box, Answers& answers) {
  const QString wanted = answers.boxes.empty() ? QString() : Take(answers.boxes);
  QAbstractButton* button = wanted.isEmpty() ? DefaultButton(box) : ButtonNamed(box, wanted);
  const QString text = Quoted(box.windowTitle()) + u' ' + Quoted(box.text());
  if (button == nullptr) {
    throw ScriptError{u"the message box "_s + text + u" has no button "_s +
                      (wanted.isEmpty() ? u"by default"_s : wanted)};
  }
  Print(u"box: "_s + IconWord(box.icon()) + u' ' + text + u" -> " + ButtonWord(box, *button));
  Click(*button);
}

void AnswerFile(QFileDialog& dialog, Answers& answers) {
  if (answers.files.empty()) ThrowUnanswered(u"file dialog "_s + Quoted(dialog.windowTitle()));
  const std::optional<QString> path = Take(answers.files);
  ReportFile(dialog, path.value_or(u"(cancel)"_s));
  const bool opens = dialog.acceptMode() == QFileDialog::AcceptOpen;
  const auto& buttons = PartOf<QDialogButtonBox>(dialog, u"buttonBox"_s);
  if (!path) {
    Click(*buttons.button(QDialogButtonBox::Cancel));
    return;
  }
  PasteText(PartOf<QLineEdit>(dialog, u"fileNameEdit"_s), QFileInfo(*path).absoluteFilePath());
  Click(*buttons.button(opens ? QDialogButtonBox::Open : QDialogButtonBox::Save));
}

void AnswerColor(CSetColorDialog& dialog, Answers& answers) {
  if (answers.colors == 0) {
    ThrowUnanswered(u"colour-and-font dialog "_s + Quoted(dialog.ColorPath()));
  }
  --answers.colors;
  Print(u"color: "_s + Quoted(dialog.ColorPath()) + u' ' + Quoted(dialog.FirstText()) + u' ' +
        Quoted(dialog.SecondText()));
  Click(*PartOf<QDialogButtonBox>(dialog).button(QDialogButtonBox::Ok));
}

const std::vector<ScriptLine>& TakeDialogAnswer(const QString& className, Answers& answers) {
  auto& queue = answers.dialogs[className];
  if (queue.empty()) ThrowUnanswered(className);
  return Take(queue)->block;
}

void ThrowUnanswered(const QString& window) {
  throw ScriptError{u"a modal window that nobody answers: "_s + window};
}

}  // namespace vyn::drive
