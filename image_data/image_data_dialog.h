// What the dialogs share that lay images over a disk: the image file, the preview with its handles,
// the placement and the rules of enabling.
#pragma once

#include "image_data/data_set_dialog.h"
#include "image_data/image_preview.h"

namespace vyn {

class VYN_EXPORT CImageDataDialog : public CDataSetDialog {
  Q_OBJECT

 protected:
  using CDataSetDialog::CDataSetDialog;
  ~CImageDataDialog() override;

  bool OnInitDialog() override;
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  /// Loads the image where another is to be seen, with a message where it cannot, and paints.
  void Repaint() override;

  /// Moves the members "offset.x", "offset.y", "radius" and "roll".
  void UpdatePlacement(const CorVynTransfer& transfer, const QString& path);

  /// Enables the date group and the placement group, the numbers from 11140 to `last`, while there
  /// is an image.
  void EnableImageGroups(int last);
  bool HasImage() const { return !record_.imagePath.isEmpty(); }

  /// Shows the sky at the moment of the image.
  virtual void OnBnClickedBtnSendDate();
  virtual void OnBnClickedBtnPlnCenter() { ChangeViewCenter(); }

 private:
  void OnBnClickedBtnTexFile();
  void OnLButtonDown(QPoint point, Qt::MouseButton button);
  void OnMouseMove(QPoint point);
  void OnLButtonUp(Qt::MouseButton button);

  ImagePreview preview_;
};

}  // namespace vyn
