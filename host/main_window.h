// The demo planetarium's window: the sky, the menus, the dialogs and the panel of commands.
#pragma once

#include <map>

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include "engine/watched_cor_vyn.h"
#include "host/moments.h"

namespace vyn {

class CommandPanel;
class CVynDialog;
class CVynMessage;
class ReferenceEngine;
class SkyView;
struct DialogEntry;
struct Site;

class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  /// The engine is not owned. The window draws at each of its redraws.
  explicit MainWindow(ReferenceEngine& engine);
  ~MainWindow() override;

  /// Sends a command and shows it in the panel.
  QString Send(const QString& command);

  /// Opens the dialog beside the window, or brings it to the front when it is open.
  CVynDialog* OpenDialog(const DialogEntry& entry);

  /// Opens the dialog on the tails of a comet, by its path in the core engine.
  CVynDialog* OpenCometTail(const QString& objectPath);
  /// The comet whose row is selected in its dialog; empty when there is none.
  QString SelectedComet() const;

  void ShowHelp(int templateNumber);

  // What the menus do.
  void GoTo(double jdUt);
  void Step(TimeUnit unit, int count);
  void RunClock(double speed);  ///< times as fast as time; 0 stops it
  double ClockSpeed() const { return clock_.isActive() ? clockSpeed_ : 0.0; }
  void StandOn(int bodyNumber);
  void StandAt(const Site& site);
  void AskForSite();

  ReferenceEngine& Engine() { return engine_; }
  SkyView& View() { return *view_; }
  CommandPanel& Panel() { return *panel_; }

 protected:
  bool event(QEvent* event) override;

 private:
  CVynDialog* Open(CVynDialog* dialog);
  void ShowCometMenu(const QString& objectPath, const QPoint& globalPosition);
  void OfferCometMenuIn(CVynDialog& cometDialog);
  void AnswerTextRequest(const CVynMessage& message) const;
  void OnClock();

  ReferenceEngine& engine_;
  WatchedCorVyn watched_;
  SkyView* view_;
  CommandPanel* panel_;
  std::map<int, QPointer<CVynDialog>> dialogs_;         ///< by template
  std::map<QString, QPointer<CVynDialog>> cometTails_;  ///< by the comet's path
  QTimer clock_;
  QElapsedTimer sinceTick_;
  double clockSpeed_ = 0.0;
};

}  // namespace vyn
