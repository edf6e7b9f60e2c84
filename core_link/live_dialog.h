// A dialog whose whole state is one script: read at opening, sent at every click, put back by
// Cancel.
#pragma once

#include <QString>

#include "core_link/dialog.h"

namespace vyn {

/// The shape of the major-body dialogs. A derived class reads the governed properties (Init),
/// states its rules of enabling (UpdateControls) and writes its statements (WriteScript). Every
/// check box and radio group of its template is a control value.
class VYN_EXPORT CVynLiveDialog : public CVynDialog {
  Q_OBJECT

 public:
  ~CVynLiveDialog() override;

  /// Reads the controls and writes into `out` the complete state: one assignment for each governed
  /// property in the dialog's fixed order, each ending in ";", nothing between them. Returns 1;
  /// or 0, with `out` as it was, after a typed value was refused with a message.
  int GetScript(QString& out);
  /// Sends the state script and redraws; nothing when a typed value was refused.
  void Apply();
  /// Puts back the state of the opening, without a redraw.
  void Undo();

 protected:
  CVynLiveDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
                 const QString& registryKey, QWidget* parent);

  bool OnInitDialog() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void OnCancel() override;
  void OnApply() { Apply(); }

  /// Asks the core engine for every governed property and shows the values.
  virtual void Init() = 0;
  /// Enables and disables controls for the state shown; also adjusts to the observer at opening.
  virtual void UpdateControls() {}
  /// Appends the statements of the control values to `out`.
  virtual void WriteScript(QString& out) = 0;
  /// Checks what was typed before anything is read; shows a message and returns false to refuse.
  virtual bool CheckTypedValues() { return true; }

  /// Keeps the body on which the observer stands visible: "PATH.Visible = TRUE;".
  QString ObserverBodyStatement(int bodyNumber) const;

  /// The value of a check box (0 or 1) or of the radio group that begins with this button (index
  /// of the chosen one, -1 for none).
  int Value(int id) const;
  bool IsOn(int id) const { return Value(id) != 0; }
  void SetValue(int id, int value);

 private:
  struct ControlValue {
    int id;
    bool isRadioGroup;
    int value;
  };

  std::vector<ControlValue> values_;  ///< ascending by number
  QString undoScript_;
};

}  // namespace vyn
