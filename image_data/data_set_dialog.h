// What the dialogs on dated data sets share: the transfer of the selected set to and from the core
// engine, and the status snapshot.
#pragma once

#include <array>

#include "image_data/cor_vyn_transfer.h"
#include "image_data/number_dialog.h"

class QListWidget;

namespace vyn {

class CVynPreview;

/// The six parts of the planetarium's moment, year to second.
using TimePaths = std::array<QStringView, 6>;
inline constexpr TimePaths kTimePaths{u"Time.Year", u"Time.Month",  u"Time.Day",
                                      u"Time.Hour", u"Time.Minute", u"Time.Second"};

/// A derived class names its numbers, moves its members (TransferMembers) and states its rules of
/// enabling (UpdateStatus). Every change is sent at once as a whole set; Cancel restores the
/// snapshot that the core engine took at opening.
class VYN_EXPORT CDataSetDialog : public CNumberDialog {
  Q_OBJECT

 protected:
  CDataSetDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
                 const QString& registryKey,
                 std::initializer_list<std::span<const NumberField>> fields, QWidget* parent);
  ~CDataSetDialog() override;

  bool OnInitDialog() override;
  void OnOK() override;
  void OnCancel() override;

  // What a dialog states.

  /// Moves the members of layer and set in the dialog's fixed order.
  virtual void TransferMembers(const CorVynTransfer& transfer) = 0;
  /// Enables what the values shown allow.
  virtual void UpdateStatus() = 0;
  /// Shows what the controls outside the data exchange show of the record: the preview.
  virtual void Repaint() = 0;
  /// Names the sets without a file and lets the core engine write all.
  virtual void SaveData() {}
  /// The path of the body that is magnified and centred.
  virtual QString BodyPath() const = 0;

  void ClampTyped(const NumberField& field) override;
  void OnNumberTyped(const NumberField& field) override;
  void OnNumberStepped(const NumberField& field) override;

  // The core engine.

  /// Sends one command and returns the reply; nothing without a core engine.
  QString Send(const QString& command);
  QString Ask(const QString& path);
  int AskInt(const QString& path);
  double AskDouble(const QString& path);
  CorVynTransfer Transfer(TransferDirection direction);

  /// The whole set, in one direction: reads the controls first; redraws after sending, shows the
  /// values after reading.
  void UpdateCorVyn(TransferDirection direction);
  void SendSet() { UpdateCorVyn(TransferDirection::Send); }
  void ReadSet() { UpdateCorVyn(TransferDirection::Read); }

  /// The planetarium's moment in its own time zone, asked by these spellings of its six parts.
  ObservationTime AskTime(const TimePaths& paths = kTimePaths);
  void MakeStatus();
  void PlayStatus();
  virtual void ChangeDiskMag();
  /// Turns the view to the body.
  void ChangeViewCenter();

  // Controls.

  /// The selected row of a list box, -1 for none.
  int SelectedRow(int listId) const;
  /// Selects a row without notification; -1 for none.
  void SelectRow(int listId, int row);
  QListWidget* List(int id) const;
  CVynPreview* Preview() const;
  /// Calls the handler when the user selects a row of a list box or combo box.
  template <class Dialog>
  void OnSelected(int id, void (Dialog::*handler)()) {
    ConnectSelection(id, [this, handler] { (static_cast<Dialog*>(this)->*handler)(); });
  }

  void OnBnClickedChkVisible();

 private:
  void ConnectSelection(int id, const std::function<void()>& handler);
};

}  // namespace vyn
