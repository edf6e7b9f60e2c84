// Watches the bar of an import run, and presses its stop button where the script says so.
#pragma once

#include <optional>

#include <QObject>
#include <QString>

class QProgressBar;
class QWidget;

namespace vyn::drive {

class ImportProgress final : public QObject {
 public:
  /// The window of a new run has come up. `stop` is pressed as soon as the bar shows at least
  /// `stopPercent`.
  void Attach(const QWidget& window, const QProgressBar& bar, QWidget& stop,
              std::optional<int> stopPercent);

  /// The caption of the last run and where its bar stood. Throws ScriptError when there was none.
  QString Report() const;

 private:
  std::optional<QString> caption_;
  int percent_ = 0;
};

}  // namespace vyn::drive
