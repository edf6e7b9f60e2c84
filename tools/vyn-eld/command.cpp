#include "tools/vyn-eld/command.h"

#include <algorithm>

namespace vyn::eld {
namespace {

using namespace Qt::StringLiterals;

const Option* FindOption(const Command& command, const QString& name) {
  const auto found = std::find_if(command.options.begin(), command.options.end(),
                                  [&](const Option& option) { return name == option.name; });
  return found == command.options.end() ? nullptr : &*found;
}

bool Accepts(const Option& option, const QString& value) {
  const QString values = QString::fromUtf16(option.values);
  return values == u"TEXT" || values.split(u'|').contains(value);
}

/// Takes an option's value from behind its name or from behind an equals sign.
QString ReadOption(const Command& command, const QString& argument, QStringList& rest,
                   Words& words) {
  const qsizetype equals = argument.indexOf(u'=');
  const QString name = argument.sliced(2, (equals < 0 ? argument.size() : equals) - 2);
  const Option* option = FindOption(command, name);
  if (option == nullptr) return u"unknown option: --"_s + name;
  const bool takesValue = option->values[0] != u'\0';
  if (takesValue != (equals >= 0) && !(takesValue && !rest.isEmpty())) {
    return takesValue ? u"--"_s + name + u" needs a value"_s
                      : u"--"_s + name + u" takes no value"_s;
  }
  const QString value = equals >= 0  ? argument.sliced(equals + 1)
                        : takesValue ? rest.takeFirst()
                                     : QString();
  if (takesValue && !Accepts(*option, value)) {
    return u"--"_s + name + u" must be one of "_s + QString::fromUtf16(option->values);
  }
  words.options.insert(name, value);
  return {};
}

QString CountProblem(const Command& command, qsizetype count) {
  if (count < command.fewestWords) return u"a word is missing"_s;
  const bool isTooMany = command.mostWords > 0 && count > command.mostWords;
  return isTooMany ? u"one word too many"_s : QString();
}

}  // namespace

std::optional<Words> ReadWords(const Command& command, const QStringList& arguments,
                               QString* reason) {
  Words words;
  QStringList rest = arguments;
  bool takesOptions = true;
  while (!rest.isEmpty() && reason->isEmpty()) {
    const QString argument = rest.takeFirst();
    if (takesOptions && argument == u"--") {
      takesOptions = false;
    } else if (takesOptions && argument.startsWith(u"--")) {
      *reason = ReadOption(command, argument, rest, words);
    } else {
      words.plain += argument;
    }
  }
  if (reason->isEmpty()) *reason = CountProblem(command, words.plain.size());
  return reason->isEmpty() ? std::optional(words) : std::nullopt;
}

std::span<const Command> Commands() {
  // clang-format off
  static const std::vector<Command> commands = {
      {u"count",
       u"FILE... [--json]",
       u"Counts the objects of each file.",
       1, 0, {{u"json", u""}}, &Count},
      {u"list",
       u"FILE [--find TEXT] [--json]",
       u"Lists the objects: number, identifier, English and Japanese name. With --find only those\n"
       u"that have the text in their identifier, a designation or a name, in any casing.",
       1, 1, {{u"find", u"TEXT"}, {u"json", u""}}, &List},
      {u"show",
       u"FILE IDENTIFIER [--json]",
       u"Shows every field of an object, page by page.",
       2, 2, {{u"json", u""}}, &Show},
      {u"check",
       u"FILE [--json]",
       u"Reports each record that is malformed: its number from 0, where it begins in bytes, and\n"
       u"why. Exit status 1 when there is one.",
       1, 1, {{u"json", u""}}, &Check},
      {u"import",
       u"SOURCE TARGET [--kind comet|minorplanet] [--update] [--duplicate skip|overwrite]\n"
       u"      [--blank skip] [--dry-run] [--json]",
       u"Copies the objects of SOURCE into TARGET, which must exist. An object whose identifier\n"
       u"TARGET has already is a duplicate, which is skipped unless --duplicate overwrite is\n"
       u"given; one without an identifier is skipped. With --update objects that TARGET has are\n"
       u"refreshed without further ado; --duplicate then decides about those that a person has\n"
       u"edited. With --kind only objects of that kind are taken. A dry run changes nothing and\n"
       u"says of each object what would happen, with the fields that differ. With --json that is\n"
       u"an array of the objects; without a dry run it holds the counts.\n"
       u"A malformed object is reported and the next one taken; when TARGET cannot be written\n"
       u"the run ends.",
       2, 2, {{u"kind", u"comet|minorplanet"}, {u"update", u""}, {u"duplicate", u"skip|overwrite"},
              {u"blank", u"skip"}, {u"dry-run", u""}, {u"json", u""}}, &Import},
      {u"delete",
       u"FILE IDENTIFIER...",
       u"Takes objects out. One that is not there is reported; the others are taken out.",
       2, 0, {}, &Delete},
      {u"convert",
       u"mpc-comets|mpcorb INPUT OUTPUT",
       u"Writes an element file from a file in a one-line format of the Minor Planet Center:\n"
       u"CometEls.txt and its like, or MPCORB.DAT and extracts from it. Headings and separators\n"
       u"are passed over. A line that cannot be converted is reported with its number, column and\n"
       u"reason; the others are converted.",
       3, 3, {}, &Convert},
  };
  // clang-format on
  return commands;
}

}  // namespace vyn::eld
