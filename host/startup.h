// What has to be in place before the window opens: a display, a font with Japanese, the comets.
#pragma once

#include <QString>

class QCommandLineParser;

namespace vyn {

class ReferenceEngine;

/// Makes a display that cannot be reached a clear message and exit status 1. To be called before
/// the application is constructed.
void ExplainMissingDisplay();

/// Whether some installed font has Japanese characters; otherwise tells so on standard error.
bool HasJapaneseFont();

/// The demo's comet file beside the program, in its installed place or in the source tree; empty
/// when there is none.
QString FindCometFile();

/// Loads an element file of comets and tells on standard error what could not be read. False when
/// nothing could.
bool LoadComets(ReferenceEngine& engine, const QString& path);

/// Takes the user's own images and sunspots from the folder of the program's data and keeps them
/// there, puts the surface layers in place that were saved as defaults, and tells on standard error
/// what could not be read.
void LoadUserData(ReferenceEngine& engine);

}  // namespace vyn
