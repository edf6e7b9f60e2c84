// Notices windows that come up by themselves and has them answered from inside their own loop.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace vyn {
class CVynDialog;
}

namespace vyn::drive {

class Session;

class ModalWindows final : public QObject {
 public:
  explicit ModalWindows(Session& session);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void OnShown(QWidget& window);
  void WatchProgress(QWidget& window);
  void Answer(const QPointer<QWidget>& window);
  void GiveAnswer(QWidget& window);
  void RunIn(CVynDialog& dialog);

  Session& session_;
};

}  // namespace vyn::drive
