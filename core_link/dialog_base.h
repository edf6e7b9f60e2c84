// Drawing that the dialogs and their lists share.
#pragma once

#include "core_link/export.h"

class QPainter;
class QRect;
class QWidget;

namespace vyn {

class VYN_EXPORT CVynDialogBase {
 public:
  virtual ~CVynDialogBase();

  /// Draws a check box in its usual size, centred in `area`, as `owner`'s style draws it.
  static void DrawCheckMark(QPainter& painter, const QWidget* owner, const QRect& area,
                            bool checked, bool enabled);

  /// Which icon of a pair fits the window of a control: positive for the dark one on a light
  /// window, else the light one.
  static int IconSelector(const QWidget* control);
};

}  // namespace vyn
