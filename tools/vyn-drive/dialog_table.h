// The dialog classes that `open` knows.
#pragma once

#include <memory>

#include <QString>

#include "core_link/dialog.h"
#include "tools/vyn-drive/arguments.h"

namespace vyn::drive {

/// What a dialog is constructed with; both handles are null for the construction with the parent
/// only.
struct DialogMaking {
  CCorVyn* commandHandle;
  CCorVyn* secondHandle;
  QWidget* parent;
};

/// Constructs a dialog of this class with the words that its class takes. Throws ScriptError for
/// an unknown class.
std::unique_ptr<CVynDialog> MakeDialog(const QString& className, const DialogMaking& making,
                                       Arguments& words);

/// The name of a window's class, without its namespace.
QString ClassName(const QObject& window);

}  // namespace vyn::drive
