// The dialog "衛星": the natural satellites of the planets and dwarf planets.
#pragma once

#include <vector>

#include "core_link/live_dialog.h"
#include "siblings/controls/satellite_list_box.h"

namespace vyn {

/// Switches each satellite, its name, number and orbit. A list of bodies filters the satellites
/// shown; the column buttons change those in view, the state script always carries all.
class VYN_EXPORT CDlgSat : public CVynLiveDialog {
  Q_OBJECT

 public:
  CDlgSat(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgSat(QWidget* parent);

 protected:
  void AttachControls() override;
  /// Throws std::invalid_argument when the bodies have more satellites than the total count says.
  void Init() override;
  void WriteScript(QString& out) override;
  void OnDestroy() override;
  void customEvent(QEvent* event) override;

  void SetSatelliteListBoxItem();
  void OnCheckChangeListPlanet() { SetSatelliteListBoxItem(); }
  void OnSatelliteCheckListChanged() { OnApply(); }
  void OnBtnColor();

  // Set one switch of every satellite in view.
  void DspSatelliteBtnViewSwitch(int value) { SetInView(&CCheckSatellite::shown, value); }
  void DspSatelliteBtnNameSwitch(int value) { SetInView(&CCheckSatellite::nameShown, value); }
  void DspSatelliteBtnJpEnSwitch(int value) { SetInView(&CCheckSatellite::japanese, value); }
  void DspSatelliteBtnNumSwitch(int value) { SetInView(&CCheckSatellite::numberShown, value); }
  void DspSatelliteBtnOrbitSwitch(int value) { SetInView(&CCheckSatellite::orbitShown, value); }

  void OnDspSatelliteBtnViewOn() { DspSatelliteBtnViewSwitch(1); }
  void OnDspSatelliteBtnViewOff() { DspSatelliteBtnViewSwitch(0); }
  void OnDspSatelliteBtnNameOn() { DspSatelliteBtnNameSwitch(1); }
  void OnDspSatelliteBtnNameOff() { DspSatelliteBtnNameSwitch(0); }
  void OnDspSatelliteBtnJp() { DspSatelliteBtnJpEnSwitch(1); }
  void OnDspSatelliteBtnEn() { DspSatelliteBtnJpEnSwitch(0); }
  void OnDspSatelliteBtnNumOn() { DspSatelliteBtnNumSwitch(1); }
  void OnDspSatelliteBtnNumOff() { DspSatelliteBtnNumSwitch(0); }
  void OnDspSatelliteBtnOrbitOn() { DspSatelliteBtnOrbitSwitch(1); }
  void OnDspSatelliteBtnOrbitOff() { DspSatelliteBtnOrbitSwitch(0); }

 private:
  void SetInView(int CCheckSatellite::*field, int value);
  void ReadSatellites();
  CCheckSatellite ReadSatellite(int body, const QString& path);
  void FillBodyList();
  bool IsExactlyTrue(const QString& path);

  std::vector<CCheckSatellite> records_;
  std::vector<QString> paths_;        ///< of each record
  std::vector<int> satelliteCounts_;  ///< of each body
  std::vector<int> bodyOfRow_;        ///< of each row of the body list behind "すべて"
  int moonNumberShown_ = 0;
  CVynListBox* bodyList_ = nullptr;
  CSatelliteListBox* satelliteList_ = nullptr;
};

}  // namespace vyn
