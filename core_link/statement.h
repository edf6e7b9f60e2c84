// Builds statements of the core engine's command language.
#pragma once

#include <QString>

namespace vyn::statement {

/// The redraw as a state script carries it at its end: an empty statement, then the redraw.
inline constexpr char16_t kScriptRedraw[] = u";Show Sky";

/// The redraw behind a single change.
inline constexpr char16_t kRedraw[] = u"; Show Sky";

/// "? PATH".
QString Query(const QString& path);

/// "PATH = TRUE;" or "PATH = FALSE;", as state scripts write it.
QString Bool(QStringView path, bool on);

/// The same for a drawn object's visibility: "PATH.Visible = TRUE;".
QString Visible(QStringView path, bool on);

/// "PATH = VALUE;" with a whole number.
QString Int(QStringView path, int value);

/// "PATH = VALUE;" with six decimals.
QString Double(QStringView path, double value);

}  // namespace vyn::statement
