// The dialog "彗星": the comets of the element file.
#pragma once

#include "small_bodies/element_class_dialog.h"

namespace vyn {

/// Switches each comet, its names, numbers, orbit and tails.
class VYN_EXPORT CDlgComet final : public CDlgElementClass {
  Q_OBJECT

 public:
  CDlgComet(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgComet(QWidget* parent);

 private:
  int CellOption(int column, const QString& objectPath) override;
  void SendOption(int column, const QString& path, int option) override;
};

}  // namespace vyn
