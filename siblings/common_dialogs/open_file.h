// Asks the user for a file to open.
#pragma once

#include <QString>

#include "core_link/export.h"

class QWidget;

namespace vyn {

struct OpenFileQuestion {
  QString title;
  QString filter;            ///< "name|patterns|", for several one behind the other
  QString folder;            ///< where the dialog starts; empty for the current folder
  QString defaultExtension;  ///< taken for a name typed without one
  bool mustExist = true;
};

/// Any file, beginning in the folder of `currentPath`. One that is not there is told when it is
/// loaded, not here.
VYN_EXPORT QString AskAnyFile(QWidget* parent, const QString& currentPath);

/// The path of the chosen file as the system writes it; empty when the user cancelled.
VYN_EXPORT QString AskOpenFile(QWidget* parent, const OpenFileQuestion& question);

}  // namespace vyn
