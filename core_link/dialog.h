// The base of every dialog: how it opens and closes, speaks to the core engine and exchanges values
// with its controls.
#pragma once

#include <functional>
#include <initializer_list>
#include <memory>

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>

#include "core_link/cor_vyn.h"
#include "core_link/data_exchange.h"
#include "core_link/dialog_base.h"

namespace vyn {

/// A settings dialog built from a numbered template. Its controls exist from opening on.
class VYN_EXPORT CVynDialog : public QDialog, public CVynDialogBase {
  Q_OBJECT

 public:
  /// The command handle carries every query and display command; the second handle may be null and
  /// also receives the commands that change an object set. Neither is owned. `registryKey` is the
  /// key of the dialog's settings, such as "Dialog\Planet".
  CVynDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
             const QString& registryKey, QWidget* parent);
  ~CVynDialog() override;

  /// Gives a dialog that was constructed with the parent only its core engine, before it opens.
  void SetCorVyn(CCorVyn* commandHandle, CCorVyn* secondHandle);

  /// Opens the dialog and waits until it is closed. Returns 1 for OK and 2 for Cancel.
  int DoModal();

  /// Opens the dialog beside its parent and returns at once. False when its opening gave up.
  bool Create(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  bool Create() { return Create(commandHandle_, secondHandle_, parentWidget()); }
  /// The same as a child of another dialog, whose command handle it takes.
  bool CreateChildOf(CVynDialog& parent);

  const QString& RegistryKey() const { return registryKey_; }
  int TemplateNumber() const { return templateNumber_; }

  /// The control with this number, the dialog itself for 0; null when there is none.
  QWidget* GetDlgItem(int id) const;
  /// All controls in the order of the template.
  QList<QWidget*> Controls() const;

  void accept() final { OnOK(); }
  void reject() final { OnCancel(); }

 Q_SIGNALS:
  /// The user asked for help on the dialog with this template.
  void helpRequested(int templateNumber);

 protected:
  // The life of a dialog.

  /// Reads the state and shows it. A dialog's own begins with its base's, which attaches the
  /// controls. True gives the focus to the first control that takes it.
  virtual bool OnInitDialog();
  /// Binds the handlers to the controls.
  virtual void AttachControls();
  virtual void DoDataExchange(CDataExchange& exchange);
  virtual void OnOK();
  virtual void OnCancel();
  virtual void OnHelp();
  /// The dialog closes, by whatever way; its controls are still there.
  virtual void OnDestroy();

  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

  /// Shows the members in the controls (false) or reads the controls into them (true). No handler
  /// of a change runs meanwhile.
  void UpdateData(bool save);

  // Controls.

  void Enable(int id, bool on);
  void Enable(std::initializer_list<int> ids, bool on);
  bool IsChecked(int id) const;
  QString EditText(int id) const;

  /// Calls `handler` of the derived class when one of the buttons is clicked.
  template <class Dialog>
  void OnClicked(std::initializer_list<int> ids, void (Dialog::*handler)()) {
    for (const int id : ids) {
      connect(static_cast<QAbstractButton*>(GetDlgItem(id)), &QAbstractButton::clicked, this,
              [this, handler] { (static_cast<Dialog*>(this)->*handler)(); });
    }
  }

  /// Calls `handler` with the delta of each press of a spin button: -1 is up.
  void OnSpin(int id, std::function<void(int delta)> handler);

  /// The colour-and-font button, grey in every dialog.
  template <class Dialog>
  void AttachColorButton(int id, void (Dialog::*handler)()) {
    DrawAsColorButton(id);
    OnClicked({id}, handler);
  }

  /// Calls `handler` at every change of the edits' texts, but not while values are shown by
  /// UpdateData or ShowEdit.
  template <class Dialog>
  void OnTextChanged(std::initializer_list<int> ids, void (Dialog::*handler)()) {
    for (const int id : ids) {
      OnTextChanged(id, [this, handler] { (static_cast<Dialog*>(this)->*handler)(); });
    }
  }
  void OnTextChanged(int id, std::function<void()> handler);
  /// Shows a text in one edit, quietly as UpdateData does, and leaves what is typed in the others.
  void ShowEdit(int id, const QString& text);

  /// Calls `handler` with the position when the user moves a slider, but not while it is placed by
  /// ShowSlider.
  void OnSlid(int id, std::function<void(int position)> handler);
  void ShowSlider(int id, int position);

  /// Shows a message under the dialog's title with the information icon.
  void ShowInformation(const QString& text);

  // The core engine.

  CCorVyn* CommandHandle() const { return commandHandle_; }
  CCorVyn* SecondHandle() const { return secondHandle_; }
  /// Whether there is a core engine whose window still exists. Dialogs that may be opened without
  /// one ask before they send anything.
  bool HasCorVyn() const;

  /// Sends a command to the command handle; an empty reply when there is none.
  QString Doit(const QString& command);
  QString GetString(const QString& path);
  int GetInt(const QString& path);
  double GetDouble(const QString& path);
  bool GetBool(const QString& path);
  bool IsVisible(const QString& path) { return GetBool(path); }
  void DoitVisible(const QString& path, bool on);
  static QString GetScriptBool(const QString& path, bool on);
  static QString GetScriptVisible(const QString& path, bool on);
  /// Asks whether the solar system is seen from outside.
  bool IsSolarMode();
  /// Asks whether the view uses horizontal coordinates.
  bool IsHorizonView();

  /// Opens the colour-and-font dialog for the colour at `colorPath`, with the two texts that the
  /// parent window gives.
  void ChooseColorAndFont(const QString& colorPath);

 private:
  class ExchangeGuard;

  bool Open();
  void DrawAsColorButton(int id);
  void BuildFromTemplate();
  void ConnectButton(int id, void (QDialog::*slot)());
  void Close(int result);
  void FocusFirstControl();
  void RestorePlacement();
  void SavePlacement();
  QString AskParent(quintptr which) const;

  CCorVyn* commandHandle_;
  CCorVyn* secondHandle_;
  int templateNumber_;
  QString registryKey_;
  QWidget* body_ = nullptr;
  std::unique_ptr<ControlSet> controls_;
  bool exchanging_ = false;
};

}  // namespace vyn
