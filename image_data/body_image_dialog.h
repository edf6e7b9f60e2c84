// What the dialogs share in which the user picks the body whose images are shown.
#pragma once

#include <vector>

#include "image_data/image_data_dialog.h"

namespace vyn {

struct ImagedBody {
  QStringView label;
  QStringView path;
};

class VYN_EXPORT CBodyImageDialog : public CImageDataDialog {
  Q_OBJECT

 protected:
  CBodyImageDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
                   const QString& registryKey, std::span<const ImagedBody> bodies,
                   std::initializer_list<std::span<const NumberField>> fields, QWidget* parent);

  bool OnInitDialog() override;
  void AttachControls() override;
  void ChangeDiskMag() override;
  QString BodyPath() const override;

  /// Another body, or another layer of it, was chosen.
  virtual void OnCbnSelchangeCmbObj() = 0;

  std::span<const ImagedBody> Bodies() const { return bodies_; }
  /// The selected row of the body list, -1 for none.
  int GetObjNo() const;
  /// Asks how much each body is magnified.
  void AskDiskMultipliers();
  /// Puts the selected body's magnification into the record.
  void TakeDiskMultiplier();

 private:
  const std::span<const ImagedBody> bodies_;
  std::vector<int> diskMultipliers_;
};

}  // namespace vyn
