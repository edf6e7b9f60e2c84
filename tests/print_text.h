// Shows texts in the messages of failed tests.
#pragma once

#include <ostream>

#include <QString>

/// Where the test library looks for it: beside the type.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}
