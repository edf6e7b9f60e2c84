// What the "all" button of a column does to its class, from the cells in view.
#pragma once

#include "siblings/controls/object_list_record.h"

namespace vyn {

/// Whether a check column is switched on: from all on to off, from all off to on, otherwise to what
/// more than half of the cells show; exactly half is off.
bool AllButtonSwitchesOn(const tagDataColumn& cells);

/// The option that a choice column takes: the most frequent one, the first of several; where all
/// cells hold it already, the next one. Values that are no option are not counted.
int AllButtonOption(const tagDataColumn& cells);

}  // namespace vyn
