#include "host/command_panel.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QVBoxLayout>

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kMostLines = 1000;
constexpr qsizetype kLongestLine = 8000;

/// The path that a command of the clock or of the view begins with; empty for others.
QString RepeatedKind(const QString& command) {
  const QString path = command.section(u'=', 0, 0).trimmed();
  const bool isRepeated = path.compare("time"_L1, Qt::CaseInsensitive) == 0 ||
                          path.startsWith("View."_L1, Qt::CaseInsensitive);
  return isRepeated && command.contains(u'=') ? path : QString();
}

}  // namespace

CommandPanel::CommandPanel(QWidget* parent)
    : QDockWidget(u"送られたコマンド"_s, parent), lines_(new QPlainTextEdit) {
  setObjectName(u"commandPanel"_s);
  lines_->setReadOnly(true);
  lines_->setUndoRedoEnabled(false);
  lines_->setMaximumBlockCount(kMostLines);
  lines_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  auto* clear = new QPushButton(u"消去(&L)"_s);
  connect(clear, &QPushButton::clicked, lines_, &QPlainTextEdit::clear);
  auto* content = new QWidget;
  auto* layout = new QVBoxLayout(content);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->addWidget(lines_);
  layout->addWidget(clear, 0, Qt::AlignRight);
  setWidget(content);
}

void CommandPanel::Append(const QString& command) {
  QString line = command.left(kLongestLine);
  if (command.size() > kLongestLine) line += u" …"_s;
  line.replace(u'\r', u' ').replace(u'\n', u' ');
  const QString kind = RepeatedKind(command);
  if (!kind.isEmpty() && kind == lastKind_ && !lines_->document()->isEmpty()) {
    QTextCursor cursor(lines_->document()->lastBlock());
    cursor.select(QTextCursor::BlockUnderCursor);
    cursor.removeSelectedText();
  }
  lines_->appendPlainText(line);
  lastKind_ = kind;
}

QString CommandPanel::Text() const { return lines_->toPlainText(); }

}  // namespace vyn
