// Shows every command that is sent to the core engine.
#pragma once

#include <QDockWidget>

class QPlainTextEdit;

namespace vyn {

class CommandPanel final : public QDockWidget {
  Q_OBJECT

 public:
  explicit CommandPanel(QWidget* parent);

  /// Adds a command at the end; the oldest lines go. While the clock runs or the view is dragged,
  /// each command of that kind takes the place of the one before.
  void Append(const QString& command);

  QString Text() const;

 private:
  QPlainTextEdit* lines_;
  QString lastKind_;
};

}  // namespace vyn
