// The dialog "軌道要素編集": the orbital elements of one comet or minor planet.
#pragma once

#include <vector>

#include "core_link/dialog.h"
#include "elements/element_input.h"

class QLineEdit;
class QListWidget;

namespace vyn {

/// Edits the records of one object, a page each. It writes no file: who opens it gives the pages
/// and takes them back after OK.
class VYN_EXPORT CDlgElementManEdit final : public CVynDialog {
  Q_OBJECT

 public:
  CDlgElementManEdit(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);

  /// Records of kElementRecordSize bytes; the first begins with C or M, otherwise the dialog
  /// closes with Cancel at once.
  void SetPages(std::vector<QByteArray> pages) { pages_ = std::move(pages); }
  const std::vector<QByteArray>& Pages() const { return pages_; }

  /// The number, from 0, of the object in the engine's file, -1 for a new one. Its identifier is no
  /// duplicate of itself.
  void SetObjectNumber(int objectNumber) { objectNumber_ = objectNumber; }

 private:
  bool OnInitDialog() override;
  void AttachControls() override;
  void OnOK() override;

  void OnChangeEditA();
  void OnChangeEditE();
  void OnChangeEditEpoch();
  void OnChangeEditQ();
  void OnChangeEditT();
  void OnClickedEditDistMode();
  void OnClickedEditTimeMode();
  void OnEditAddPage();
  void OnEditDelPage();
  void OnSelchangeEditPage();

  void LimitTexts();
  void FillPageList();
  void SetCometMp();
  void SetElmPage();
  void SwitchQmode();
  void SwitchTmode();

  /// Shows the current page's record, or reads it from the controls after all checks; false when a
  /// check refused it with a message.
  void MakeEditDialogValue();
  bool MakeElmRecord();

  ElementInput Input() const;
  void OrbitChanged();
  void TimeChanged();
  void ShowDerived(const ElementInput& input);
  void ShowPeriod(const ElementInput& input);
  void ShowText(int id, const QString& text);

  bool IDAlreadyExists(const QString& identifier);
  QString GetDataPtr();
  void MsgBox(int stringId);
  void FocusField(int id);

  QLineEdit* Edit(int id) const;
  QListWidget* PageList() const;
  QByteArray& Page() { return pages_[static_cast<std::size_t>(page_)]; }
  int LastPage() const { return static_cast<int>(pages_.size()) - 1; }

  std::vector<QByteArray> pages_;
  int page_ = 0;
  int objectNumber_ = -1;
  char kindLetter_ = 'C';
  bool distanceMode_ = true;  ///< q is given, otherwise a
  bool timeMode_ = true;      ///< T is given, otherwise epoch and M
  bool isUpdating_ = false;   ///< a handler writes other edits, whose changes are not the user's
};

}  // namespace vyn
