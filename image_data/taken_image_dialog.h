// The dialog "太陽・惑星画像": the user's own photographs of the Sun and of planets.
#pragma once

#include "image_data/body_image_dialog.h"
#include "image_data/image_label.h"

namespace vyn {

class VYN_EXPORT CDlgTakenImg final : public CBodyImageDialog {
  Q_OBJECT

 public:
  CDlgTakenImg(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgTakenImg(QWidget* parent);

 private:
  bool OnInitDialog() override;
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void TransferMembers(const CorVynTransfer& transfer) override;
  void UpdateStatus() override;
  void SaveData() override;
  void SaveImagesOf(const ImagedBody& body);
  void OnCbnSelchangeCmbObj() override;

  void UpdateDataSetLst();
  void AddRow(const QString& title, int labelNumber);
  /// A row's text. The moment is that of the dialog's own fields, or the one given, which is in
  /// universal time and is told in the planetarium's zone.
  QString MakeTitle(const CalendarDate& moment, bool isGiven, const QString& imagePath);
  int LabelToNo(const QString& label, int number);
  QString LabelOfRow(int row) const;
  QString LayerPath() const { return BodyPath() + QStringLiteral(".takenImage"); }

  void OnSelectData();
  void OnBnClickedPtxBtnAdd();
  void OnBnClickedPtxBtnDel();
  void OnBnClickedChkActive();
  void SetActive(int row);

  ImageLabels labels_;
};

}  // namespace vyn
