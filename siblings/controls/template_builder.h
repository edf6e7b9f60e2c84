// Builds a dialog's widgets from its template.
#pragma once

#include <QButtonGroup>
#include <QHash>
#include <QWidget>

#include "resources/dialog_template.h"

namespace vyn {

/// The widgets of one dialog, found by control number.
struct ControlSet {
  QHash<int, QWidget*> byId;
  QHash<int, QButtonGroup*> radioGroups;  ///< by the number of the group's first button
  QList<QWidget*> inOrder;                ///< the order of the template, which is the tab order
};

/// Fills `dialog` with the template's controls, laid out, labelled and in tab order.
ControlSet BuildControls(const DialogTemplate& dialogTemplate, QWidget* dialog);

}  // namespace vyn
