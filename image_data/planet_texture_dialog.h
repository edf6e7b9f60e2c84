// The dialog "惑星テクスチャ": dated photographs as surface layers of planets.
#pragma once

#include "image_data/body_image_dialog.h"

namespace vyn {

class VYN_EXPORT CDlgPlanetTex final : public CBodyImageDialog {
  Q_OBJECT

 public:
  CDlgPlanetTex(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgPlanetTex(QWidget* parent);

  /// Sends the layers that were saved as defaults, as a planetarium does when it starts.
  static void SendDefaults(CCorVyn& corVyn);

 private:
  bool OnInitDialog() override;
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void TransferMembers(const CorVynTransfer& transfer) override;
  void UpdateStatus() override;
  void SaveData() override;
  void OnCbnSelchangeCmbObj() override;

  void InitCorVyn();
  void ClearDefaultPlanetTex();
  void TransferLayer(const CorVynTransfer& transfer, const QString& path);
  /// Calls `handle` with the path of every layer of every body.
  template <class Handle>
  void ForEachLayer(Handle handle);

  int saveAsDefault_ = 0;
};

}  // namespace vyn
