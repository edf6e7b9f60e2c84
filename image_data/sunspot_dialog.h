// The dialog "太陽黒点": dated sets of sunspots.
#pragma once

#include "image_data/data_set_dialog.h"
#include "image_data/sunspot_picture.h"

namespace vyn {

class VYN_EXPORT CDlgSunSpot final : public CDataSetDialog {
  Q_OBJECT

 public:
  CDlgSunSpot(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgSunSpot(QWidget* parent);

 private:
  bool OnInitDialog() override;
  void AttachControls() override;
  void AttachMouse();
  void DoDataExchange(CDataExchange& exchange) override;
  void TransferMembers(const CorVynTransfer& transfer) override;
  void TransferSpot(const CorVynTransfer& transfer, const QString& path);
  void UpdateStatus() override {}
  void Repaint() override;
  void SaveData() override;
  QString BodyPath() const override;
  void OnNumberTyped(const NumberField& field) override;
  void OnNumberStepped(const NumberField& field) override;
  void ClampTyped(const NumberField& field) override;

  void UpdateDataSetLst();
  void UpdateSpotsLst();
  void UpdateSpotsLstTitle();
  QString GetTitle(int number);
  QString SpotTitle(int number) const;
  void OnSelectDataSet();
  void OnSelectSpot();
  void OnBnClickedPtxBtnAdd();
  void OnBnClickedPtxBtnDel();
  void OnBnClickedPtxBtnDelSpot();
  void OnBnClickedBtnSendDate();
  void OnEnChangeEdtDate();
  void OnEnChangeEdtLngLatType();
  void ReadOrientation();

  void OnLButtonDown(QPoint point);
  void OnRButtonDown(QPoint point);
  void OnMouseMove(QPoint point);
  void OnLButtonUp();
  bool IsDragging() const;
  void ShowDraggedSpot();

  /// The selected set and spot, numbered from 1; 0 for none.
  int SetNumber() const;
  int SpotNumber() const;

  SunspotPicture picture_;
  int draggedSpot_;
  QPoint grab_;
};

}  // namespace vyn
