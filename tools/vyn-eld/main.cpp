// vyn-eld: counts, lists, checks, imports, deletes and converts orbital elements from a shell.
#include <cstdio>

#include <QFile>

#include "tools/vyn-eld/command.h"
#include "tools/vyn-eld/output.h"

namespace {

using namespace Qt::StringLiterals;
using namespace vyn::eld;

const Command* FindCommand(const QString& name) {
  for (const Command& command : Commands()) {
    if (name == command.name) return &command;
  }
  return nullptr;
}

QString UsageOf(const Command& command) {
  return u"  vyn-eld "_s + command.name + u' ' + command.synopsis;
}

void PrintHelpOf(const Command& command) {
  Print(u"usage:\n"_s + UsageOf(command) + u"\n\n"_s + command.help);
}

void PrintHelp() {
  Print(u"vyn-eld works with orbital element files (*.eld).\n\nusage:"_s);
  for (const Command& command : Commands()) Print(UsageOf(command));
  Print(
      u"  vyn-eld help [COMMAND]\n\nExit status: 0 when all went well, 1 when something failed, "
      u"was "
      u"not found or is\nmalformed, 2 when the command line cannot be understood. Words behind "
      u"\"--\" "
      u"are no options."_s);
}

int Help(const QStringList& arguments) {
  const Command* command = arguments.isEmpty() ? nullptr : FindCommand(arguments.first());
  if (command == nullptr) PrintHelp();
  if (command != nullptr) PrintHelpOf(*command);
  return arguments.isEmpty() || command != nullptr ? kDone : kWrongUse;
}

bool AsksForHelp(const QStringList& arguments) {
  const qsizetype help = arguments.indexOf(u"--help"_s);
  const qsizetype endOfOptions = arguments.indexOf(u"--"_s);
  return help >= 0 && (endOfOptions < 0 || help < endOfOptions);
}

int Run(QStringList arguments) {
  const QString name = arguments.isEmpty() ? QString() : arguments.takeFirst();
  if (name == u"help" || name == u"--help" || name == u"-h") return Help(arguments);
  const Command* command = FindCommand(name);
  if (command == nullptr) {
    PrintError(name.isEmpty() ? u"a command is missing; see vyn-eld help"_s
                              : u"unknown command: "_s + name + u"; see vyn-eld help"_s);
    return kWrongUse;
  }
  if (AsksForHelp(arguments)) return Help({name});
  QString reason;
  const auto words = ReadWords(*command, arguments, &reason);
  if (words) return command->run(*words);
  PrintError(reason + u"; usage:\n"_s + UsageOf(*command));
  return kWrongUse;
}

}  // namespace

int main(int argc, char** argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i) arguments += QFile::decodeName(argv[i]);
  const int exitCode = Run(arguments);
  // A full disk behind standard output must not look like success.
  const bool isWritten = std::fflush(stdout) == 0 && std::ferror(stdout) == 0;
  return isWritten || exitCode != kDone ? exitCode : static_cast<int>(kFoundTrouble);
}
