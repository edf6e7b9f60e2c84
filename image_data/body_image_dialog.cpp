#include "image_data/body_image_dialog.h"

#include <cmath>

#include <QComboBox>
#include <QSignalBlocker>

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kBodyCombo = 11101;
constexpr double kMostMultiplier = 1e6;

}  // namespace

CBodyImageDialog::CBodyImageDialog(CCorVyn* commandHandle, CCorVyn* secondHandle,
                                   int templateNumber, const QString& registryKey,
                                   std::span<const ImagedBody> bodies,
                                   std::initializer_list<std::span<const NumberField>> fields,
                                   QWidget* parent)
    : CImageDataDialog(commandHandle, secondHandle, templateNumber, registryKey, fields, parent),
      bodies_(bodies) {}

bool CBodyImageDialog::OnInitDialog() {
  diskMultipliers_.assign(bodies_.size(), 1);
  return CImageDataDialog::OnInitDialog();
}

void CBodyImageDialog::AttachControls() {
  CImageDataDialog::AttachControls();
  auto* combo = static_cast<QComboBox*>(GetDlgItem(kBodyCombo));
  for (const ImagedBody& body : bodies_) combo->addItem(body.label.toString());
  OnSelected(kBodyCombo, &CBodyImageDialog::OnCbnSelchangeCmbObj);
}

int CBodyImageDialog::GetObjNo() const {
  return static_cast<const QComboBox*>(GetDlgItem(kBodyCombo))->currentIndex();
}

QString CBodyImageDialog::BodyPath() const {
  const int body = GetObjNo();
  return body < 0 ? QString() : bodies_[body].path.toString();
}

void CBodyImageDialog::AskDiskMultipliers() {
  for (std::size_t i = 0; i < bodies_.size(); ++i) {
    const double multiplier = AskDouble(bodies_[i].path + u".Disk.Multiplier"_s);
    diskMultipliers_[i] =
        static_cast<int>(std::round(std::clamp(multiplier, -kMostMultiplier, kMostMultiplier)));
  }
}

void CBodyImageDialog::TakeDiskMultiplier() {
  const int body = GetObjNo();
  if (body >= 0) record_.diskMultiplier = diskMultipliers_[body];
}

void CBodyImageDialog::ChangeDiskMag() {
  const int body = GetObjNo();
  if (body < 0) return;
  diskMultipliers_[body] = record_.diskMultiplier;
  CImageDataDialog::ChangeDiskMag();
}

}  // namespace vyn
