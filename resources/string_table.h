// The library's texts by number.
#pragma once

#include <initializer_list>

#include <QString>

namespace vyn {

/// The text with this number; empty when there is none.
QString LoadString(int number);

/// The text with this number, its places "%s" and "%d" filled in order with the values.
QString FilledString(int number, std::initializer_list<QString> values);

}  // namespace vyn
