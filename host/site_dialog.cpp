#include "host/site_dialog.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>

namespace vyn {
namespace {

QDoubleSpinBox* AngleBox(double limitDeg, double value) {
  auto* box = new QDoubleSpinBox;
  box->setLocale(QLocale::c());
  box->setRange(-limitDeg, limitDeg);
  box->setDecimals(4);
  box->setSuffix(QStringLiteral("°"));
  box->setValue(value);
  return box;
}

}  // namespace

SiteDialog::SiteDialog(const Site& site, QWidget* parent)
    : QDialog(parent),
      longitude_(AngleBox(180.0, site.longitudeDeg)),
      latitude_(AngleBox(90.0, site.latitudeDeg)),
      height_(new QSpinBox) {
  setWindowTitle(QStringLiteral("観測地"));
  height_->setRange(-500, 20000);
  height_->setSuffix(QStringLiteral(" m"));
  height_->setValue(static_cast<int>(site.heightM));
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("キャンセル"));
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* form = new QFormLayout(this);
  form->addRow(QStringLiteral("経度（東経＋）(&L)："), longitude_);
  form->addRow(QStringLiteral("緯度（北緯＋）(&B)："), latitude_);
  form->addRow(QStringLiteral("標高(&H)："), height_);
  form->addRow(buttons);
}

Site SiteDialog::Chosen() const {
  return {longitude_->value(), latitude_->value(), static_cast<double>(height_->value())};
}

}  // namespace vyn
