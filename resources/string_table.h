// The library's texts by number.
#pragma once

#include <QString>

namespace vyn {

/// The text with this number; empty when there is none.
QString LoadString(int number);

}  // namespace vyn
