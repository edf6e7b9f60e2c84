// The tour: goes through the views and the dialogs and keeps a picture of each.
#pragma once

#include <QString>

namespace vyn {

class MainWindow;

/// Writes PNG pictures of the window in several states and of every dialog into the folder, which
/// it makes, and prints each file's name. `jdUt` is the moment shown where a stop has none of its
/// own. False, with a message on standard error, when a picture cannot be written.
bool PlayTour(MainWindow& window, const QString& folder, double jdUt);

}  // namespace vyn
