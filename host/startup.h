// What has to be in place before the window opens: a display, a font with Japanese, the
// element files.
#pragma once

#include <QString>

class QCommandLineParser;

namespace vyn {

class ReferenceEngine;
enum class ElementKind;

/// Makes a display that cannot be reached a clear message and exit status 1. To be called before
/// the application is constructed.
void ExplainMissingDisplay();

/// Whether some installed font has Japanese characters; otherwise tells so on standard error.
bool HasJapaneseFont();

/// The demo's element file of a kind beside the program, in its installed place or in the source
/// tree; empty when there is none.
QString FindElementFile(ElementKind kind);

/// The user's own element file of a kind, in the folder of the program's data, which the dialogs
/// may change; copied from the demo's when there is none yet. The demo's own when it cannot be
/// copied.
QString UsersElementFile(ElementKind kind);

/// Loads an element file and tells on standard error what could not be read. False when nothing
/// could.
bool LoadElements(ReferenceEngine& engine, ElementKind kind, const QString& path);

/// Takes the user's own images and sunspots from the folder of the program's data and keeps them
/// there, puts the surface layers in place that were saved as defaults, and tells on standard error
/// what could not be read.
void LoadUserData(ReferenceEngine& engine);

}  // namespace vyn
