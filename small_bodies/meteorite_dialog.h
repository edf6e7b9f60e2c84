// The dialog "隕石": the recorded meteorite falls whose orbits are known.
#pragma once

#include "small_bodies/listed_dialog.h"

namespace vyn {

/// Switches each fall, its name and its orbit.
class VYN_EXPORT CDlgMeteorite final : public CDlgListedObjects {
  Q_OBJECT

 public:
  CDlgMeteorite(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgMeteorite(QWidget* parent);

  /// The date and time, to the second, of a Julian date in universal time, told in a zone of this
  /// many hours; below -99.0 the zone is missing and universal time is told. Years up to 0 are
  /// "BC": the year 0 is "BC    1".
  QString GetDateTimeString(double jd, double zoneHours) const;

  /// Whether a Julian date is the moment shown or later; true without a core engine.
  bool IsLessThanJD(double jd);

 private:
  QString ColumnTitle(int column) const override;
  QString CellText(int column, const QString& objectPath) override;
  double ZoneInUse();
};

}  // namespace vyn
