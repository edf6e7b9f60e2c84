// The dialog "太陽・月": how the Sun and the Moon are drawn.
#pragma once

#include "core_link/live_dialog.h"

namespace vyn {

/// Switches the Sun and the Moon, their drawing, names, labels and eclipses.
class VYN_EXPORT CDlgSun final : public CVynLiveDialog {
  Q_OBJECT

 public:
  CDlgSun(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgSun(QWidget* parent);

 private:
  void AttachControls() override;
  void Init() override;
  void UpdateControls() override;
  void WriteScript(QString& out) override;

  /// Sends a command unchanged; whether the reply is "TRUE" in any casing.
  bool CorVynBool(const QString& command);
  bool IsBodyShown(const QString& body);
  int ReadValue(const struct SunReading& reading);

  void EnableDisableSun(int shown);
  void EnableDisableSun() { EnableDisableSun(IsChecked(1001)); }
  void EnableDisableMoon(int shown);
  void EnableDisableMoon() { EnableDisableMoon(IsChecked(1017)); }

  void OnCheckSunView();
  void OnCheckSunName();
  void OnRadioSunSurface();
  void OnRadioSunBorder();
  void OnCheckMoonView();
  void OnCheckMoonName();
  void OnCheckMoonGeoName();
  void OnButtonFont();
  void ApplySun();
  void ApplyMoon();

  int solarMode_ = 0;
  int isHorizon_ = 1;
  int observerBody_ = 4;
};

}  // namespace vyn
