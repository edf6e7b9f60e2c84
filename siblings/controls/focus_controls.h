// Controls that show the keyboard focus where the style would not, such as a check box without a
// text in a grid.
#pragma once

#include <QObject>

#include "core_link/export.h"

class QWidget;

namespace vyn {

/// Attached to a control, draws the focus rectangle over it while it has the focus.
class VYN_EXPORT CFocusControl : public QObject {
  Q_OBJECT

 public:
  /// A control may be attached anew after its widget is gone.
  void Attach(QWidget* control);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isPainting_ = false;
};

class VYN_EXPORT CFocusButton final : public CFocusControl {};
class VYN_EXPORT CFocusCheckBox final : public CFocusControl {};
class VYN_EXPORT CFocusRadioButton final : public CFocusControl {};

}  // namespace vyn
