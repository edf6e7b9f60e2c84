// The commands of scripts, by their word.
#pragma once

#include <span>

#include <QStringView>

#include "tools/vyn-drive/arguments.h"

namespace vyn::drive {

class Session;

/// `run` takes its arguments, all of them, and throws ScriptError when it cannot do what they say.
struct Command {
  QStringView word;
  void (*run)(Session& session, Arguments& arguments);
};

/// Throws ScriptError for an unknown word.
const Command& FindCommand(const QString& word);

std::span<const Command> PreparingCommands();
std::span<const Command> ActingCommands();
std::span<const Command> LookingCommands();

}  // namespace vyn::drive
