// The commands of vyn-eld and what they are called with.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include <QHash>
#include <QStringList>

namespace vyn::eld {

/// What the program returns to the shell.
enum ExitCode {
  kDone = 0,
  kFoundTrouble = 1,  ///< something failed, was not found or is malformed
  kWrongUse = 2,      ///< the command line cannot be understood
};

/// The words of a command line behind the command.
struct Words {
  QStringList plain;
  QHash<QString, QString> options;  ///< by name without dashes; an option without value is empty

  bool Has(const QString& option) const { return options.contains(option); }
  QString Value(const QString& option) const { return options.value(option); }
};

/// An option and what it may be set to: "" for nothing, "TEXT" for any text, or its words, joined
/// with "|".
struct Option {
  const char16_t* name;
  const char16_t* values;
};

struct Command {
  const char16_t* name;
  const char16_t* synopsis;
  const char16_t* help;
  int fewestWords;
  int mostWords;  ///< 0 for any number
  std::vector<Option> options;
  int (*run)(const Words&);
};

std::span<const Command> Commands();

/// Reads the words of a command line, in any order. Nothing, with the reason, when they do not fit
/// the command.
std::optional<Words> ReadWords(const Command& command, const QStringList& arguments,
                               QString* reason);

int Count(const Words& words);
int List(const Words& words);
int Show(const Words& words);
int Check(const Words& words);
int Import(const Words& words);
int Delete(const Words& words);
int Convert(const Words& words);

}  // namespace vyn::eld
