// The dialog "太陽・惑星画像 追加": file and moment of an image that is to be added.
#pragma once

#include "image_data/number_dialog.h"

namespace vyn {

/// Says nothing to the core engine: who opens it puts the moment in, and takes out what was chosen
/// after OK.
class VYN_EXPORT CDlgTakenImgNew final : public CNumberDialog {
  Q_OBJECT

 public:
  explicit CDlgTakenImgNew(QWidget* parent);

  void SetTime(const ObservationTime& time);
  const ObservationTime& Time() const { return record_; }
  const QString& ImagePath() const { return record_.imagePath; }

 private:
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void OnOK() override;
  void OnBnClickedBtnTexFile();
};

}  // namespace vyn
