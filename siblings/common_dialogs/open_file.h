// Asks the user for a file to open.
#pragma once

#include <QString>

#include "core_link/export.h"

class QWidget;

namespace vyn {

/// The path of the existing file that the user chose, with the system's own slashes; empty when the
/// user cancelled. All files are offered. Begins in `startFolder`, or among the user's pictures
/// when there is no such folder.
VYN_EXPORT QString ChooseFileToOpen(QWidget* parent, const QString& startFolder);

}  // namespace vyn
