// Looks an identifier up among the objects that the core engine has loaded.
#pragma once

#include <QStringView>

#include "elements/data_pointers.h"

namespace vyn {

/// Whether an object other than number `except` (from 0; -1 for none) has this identifier, blanks
/// at both ends and case aside. One pass over all objects: the engine's data are records of
/// kElementRecordSize bytes.
bool IsIdentifierLoaded(const ElementDataPointers& loaded, QStringView identifier, int except);

}  // namespace vyn
