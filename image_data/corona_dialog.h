// The dialog "太陽コロナ": photographs of the solar corona.
#pragma once

#include "image_data/image_data_dialog.h"

namespace vyn {

class VYN_EXPORT CDlgCorona final : public CImageDataDialog {
  Q_OBJECT

 public:
  CDlgCorona(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgCorona(QWidget* parent);

 private:
  bool OnInitDialog() override;
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void TransferMembers(const CorVynTransfer& transfer) override;
  void UpdateStatus() override;
  void SaveData() override;
  QString BodyPath() const override;
  void OnNumberTyped(const NumberField& field) override;
  void OnNumberStepped(const NumberField& field) override;
  void OnBnClickedBtnSendDate() override;
  void OnBnClickedBtnPlnCenter() override;

  void InitCorVyn() { AskTime(); }
  void UpdateDataSetLst();
  QString RowTitle(int number);
  void OnSelectData();
  void OnBnClickedPtxBtnAdd();
  void OnBnClickedPtxBtnDel();
  void OnEnChangeEdtLocation();
  void ChangeViewAngle();

  int addedSets_ = 0;
};

}  // namespace vyn
