// Asks for a place by longitude, latitude and height.
#pragma once

#include <QDialog>

#include "engine/sky/observer.h"

class QDoubleSpinBox;
class QSpinBox;

namespace vyn {

class SiteDialog final : public QDialog {
  Q_OBJECT

 public:
  SiteDialog(const Site& site, QWidget* parent);

  Site Chosen() const;

 private:
  QDoubleSpinBox* longitude_;
  QDoubleSpinBox* latitude_;
  QSpinBox* height_;
};

}  // namespace vyn
