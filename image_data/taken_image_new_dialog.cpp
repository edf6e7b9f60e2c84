#include "image_data/taken_image_new_dialog.h"

namespace vyn {
namespace {

constexpr int kFileEdit = 11111;

}  // namespace

CDlgTakenImgNew::CDlgTakenImgNew(QWidget* parent)
    : CNumberDialog(nullptr, nullptr, 13020, {}, {WholeDateFields()}, parent) {}

void CDlgTakenImgNew::SetTime(const ObservationTime& time) {
  static_cast<ObservationTime&>(record_) = time;
}

void CDlgTakenImgNew::AttachControls() {
  CNumberDialog::AttachControls();
  OnClicked({11112}, &CDlgTakenImgNew::OnBnClickedBtnTexFile);
}

void CDlgTakenImgNew::DoDataExchange(CDataExchange& exchange) {
  CNumberDialog::DoDataExchange(exchange);
  exchange.Text(kFileEdit, record_.imagePath);
}

void CDlgTakenImgNew::OnOK() {
  Pull();
  CNumberDialog::OnOK();
}

void CDlgTakenImgNew::OnBnClickedBtnTexFile() {
  Pull();
  if (AskImagePath()) Push();
}

}  // namespace vyn
