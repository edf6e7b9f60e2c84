// Moves values between a dialog's members and its controls, in either direction.
#pragma once

#include <QString>

#include "core_link/export.h"

namespace vyn {

struct ControlSet;

/// One exchange: `saving` reads the controls into the members, otherwise the members are shown.
/// A dialog lists its pairs of control and member in DoDataExchange. Controls that the dialog does
/// not have are passed over.
class VYN_EXPORT CDataExchange {
 public:
  CDataExchange(const ControlSet& controls, bool saving) : controls_(controls), saving_(saving) {}

  bool Saving() const { return saving_; }

  /// Check box: 0 or 1.
  void Check(int id, int& value);
  /// Radio group named by its first button: index of the chosen button, -1 for none.
  void Radio(int firstId, int& value);
  /// Edit or label.
  void Text(int id, QString& value);
  /// A whole number in an edit; reads by the longest prefix, 0 where there is none.
  void Int(int id, int& value);
  /// A real number in an edit, shown by the shortest text that keeps its hundredths (or so many
  /// decimals) within `maxChars`; reads by the longest prefix, 0.0 where there is none.
  void DDX_Double(int id, double& value, int maxChars, int maxDecimals = 2);
  /// The same, shown with `decimals` decimals, or fewer where the text would be longer than
  /// `maxChars`.
  void DDX_DoubleFmt(int id, double& value, int decimals, int maxChars);

 private:
  const ControlSet& controls_;
  bool saving_;
};

}  // namespace vyn
