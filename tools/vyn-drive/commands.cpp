#include "tools/vyn-drive/commands.h"

#include <algorithm>

#include "tools/vyn-drive/script.h"

namespace vyn::drive {

using namespace Qt::StringLiterals;

const Command& FindCommand(const QString& word) {
  for (const auto& commands : {PreparingCommands(), ActingCommands(), LookingCommands()}) {
    const auto found = std::ranges::find(commands, QStringView(word), &Command::word);
    if (found != commands.end()) return *found;
  }
  throw ScriptError{(word == u"end" ? u"no answer to end here: "_s : u"unknown word: "_s) + word};
}

}  // namespace vyn::drive
