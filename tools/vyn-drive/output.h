// What the driver prints: one event a line, in UTF-8.
#pragma once

#include <QString>

namespace vyn::drive {

/// A text in double quotes, with \" \\ \n \r and \t escaped.
QString Quoted(QStringView text);

/// A text that stands bare at the end of a line, with \r and \n escaped.
QString Bare(QStringView text);

/// Writes a line to standard output.
void Print(const QString& line);

}  // namespace vyn::drive
