// Tells screen readers what is in an object list: a table of its rows and columns, whose cells come
// to be only when they are asked for.
#pragma once

#include <QtGlobal>

namespace vyn {

class CVynListBoxAObj;

/// Makes object lists known to the toolkit; to be called before the first is asked for.
void InstallObjectListAccessibility();

// What has happened in a list.

void TellObjectListFocus(CVynListBoxAObj* list);
void TellObjectListCellChanged(CVynListBoxAObj* list, qint64 row, int column);
/// The rows are others now.
void TellObjectListReset(CVynListBoxAObj* list);

}  // namespace vyn
