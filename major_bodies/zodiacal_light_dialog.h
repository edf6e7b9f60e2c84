// The dialog "黄道光・対日照": the zodiacal light and the counterglow.
#pragma once

#include "major_bodies/regions_dialog.h"

namespace vyn {

class VYN_EXPORT CDlgZodiacalLight final : public CDlgRegions {
  Q_OBJECT

 public:
  CDlgZodiacalLight(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgZodiacalLight(QWidget* parent);
};

}  // namespace vyn
