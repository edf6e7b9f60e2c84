// The two kinds of element files as the core engine names them.
#pragma once

#include <QString>

#include "core_link/cor_vyn.h"

namespace vyn {

/// "COMET", or "MINORPLANET" for a flag of 0.
QString ElementKindWord(int cometFlag);

/// Asks the engine for the path of its current element file; empty without an engine.
QString AskElementFile(CCorVyn* engine, const QString& kind);

}  // namespace vyn
