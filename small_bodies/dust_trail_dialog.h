// The dialog "ダストトレイル": the dust trails that comets leave along their orbits.
#pragma once

#include "small_bodies/listed_dialog.h"

namespace vyn {

/// Switches each trail and its orbit.
class VYN_EXPORT CDlgDustTrail final : public CDlgListedObjects {
  Q_OBJECT

 public:
  CDlgDustTrail(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgDustTrail(QWidget* parent);
};

}  // namespace vyn
