#include "image_data/taken_image_new_dialog.h"

#include "image_data/image_file_types.h"
#include "resources/string_table.h"
#include "siblings/common_dialogs/open_file.h"

namespace vyn {
namespace {

constexpr int kFileEdit = 11111;
constexpr int kUnknownFormatText = 13476;

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
  const QString path = AskAnyFile(this, record_.imagePath);
  if (path.isEmpty()) return;
  if (!IsReadExtensionType(path)) {
    ShowInformation(FilledString(kUnknownFormatText, {path}));
    return;
  }
  record_.imagePath = path;
  Push();
}

}  // namespace vyn
