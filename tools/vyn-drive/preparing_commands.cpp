// Commands that prepare the engine, the settings, files and answers.
#include <array>
#include <filesystem>

#include <QFile>

#include "siblings/registry/registry.h"
#include "tools/vyn-drive/commands.h"
#include "tools/vyn-drive/output.h"
#include "tools/vyn-drive/session.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

/// Takes a word that must be one of `choices` and returns what it stands for.
template <class Meaning>
Meaning TakeChoice(Arguments& arguments, QStringView what,
                   std::initializer_list<std::pair<QStringView, Meaning>> choices) {
  const QString word = arguments.Word(what);
  for (const auto& [name, meaning] : choices) {
    if (word == name) return meaning;
  }
  throw ScriptError{u"unknown word: "_s + word + u" (" + what + u")"};
}

void RunEngine(Session& session, Arguments& arguments) {
  if (arguments.TakeIf(u"sky")) {
    arguments.End();
    session.engines.Engine().LoadStartingState();
    return;
  }
  const auto handles = TakeChoice<HandleChoice>(
      arguments, u"none, one, two or sky",
      {{u"none", HandleChoice::None}, {u"one", HandleChoice::One}, {u"two", HandleChoice::Two}});
  arguments.End();
  session.engines.handles = handles;
}

void RunSet(Session& session, Arguments& arguments) {
  const QString path = arguments.Word(u"PATH");
  session.engines.Engine().SetProperty(path, arguments.Text(u"TEXT"));
}

void RunGet(Session& session, Arguments& arguments) {
  const QString path = arguments.Word(u"PATH");
  arguments.End();
  Print(u"value: "_s + path + u" = " + Quoted(session.engines.Engine().Property(path)));
}

void RunReply(Session& session, Arguments& arguments) {
  const QString command = arguments.Word(u"COMMAND");
  const QString text = arguments.Word(u"TEXT");
  arguments.End();
  session.engines.Engine().SetReply(command, text);
}

void RunElements(Session& session, Arguments& arguments) {
  const auto kind = TakeChoice<ElementKind>(
      arguments, u"comet or minorplanet",
      {{u"comet", ElementKind::Comet}, {u"minorplanet", ElementKind::MinorPlanet}});
  const QString file = arguments.Word(u"FILE");
  arguments.End();
  if (!session.engines.Engine().LoadElements(kind, file)) {
    throw ScriptError{u"no element file can be read there: "_s + file};
  }
}

void RunObserver(Session& session, Arguments& arguments) {
  const int body = arguments.Int(u"N");
  arguments.End();
  session.engines.Engine().SetLocationObject(body);
}

void RunTimeSystem(Session& session, Arguments& arguments) {
  const int timeSystem = arguments.Int(u"N");
  arguments.End();
  session.engines.Engine().SetTimeSys(timeSystem);
}

void ReadSetting(const QString& key, const QString& name) {
  const CRegistry registry(key);
  Print(u"registry: "_s + key + u' ' + name + u" = " +
        (registry.Contains(name) ? Quoted(registry.Read(name)) : u"(none)"_s));
}

void WriteSetting(const QString& key, const QString& name, const QString& text) {
  if (!CRegistry(key).Write(name, text)) throw ScriptError{u"the setting cannot be written"_s};
}

void RunRegistry(Session&, Arguments& arguments) {
  const bool writes =
      TakeChoice<bool>(arguments, u"write or read", {{u"write", true}, {u"read", false}});
  const QString key = arguments.Word(u"KEY");
  const QString name = arguments.Word(u"NAME");
  const QString text = writes ? arguments.Word(u"TEXT") : QString();
  arguments.End();
  writes ? WriteSetting(key, name, text) : ReadSetting(key, name);
}

std::filesystem::path FilePath(const QString& file) { return file.toStdU16String(); }

/// The target is replaced, not rewritten: the engine may have the old one mapped into memory.
void CopyFile(const QString& from, const QString& to) {
  const QString copy = to + u".copy"_s;
  std::error_code error;
  const auto overwrite = std::filesystem::copy_options::overwrite_existing;
  std::filesystem::copy_file(FilePath(from), FilePath(copy), overwrite, error);
  if (!error) std::filesystem::rename(FilePath(copy), FilePath(to), error);
  if (error) throw ScriptError{u"cannot copy "_s + from + u" to " + to};
  QFile::setPermissions(to, QFile::permissions(to) | QFile::WriteOwner);
}

void RunCopy(Session&, Arguments& arguments) {
  const QString from = arguments.Word(u"FROM");
  const QString to = arguments.Word(u"TO");
  arguments.End();
  CopyFile(from, to);
}

void RunRemove(Session&, Arguments& arguments) {
  const QString file = arguments.Word(u"FILE");
  arguments.End();
  if (!QFile::remove(file)) throw ScriptError{u"cannot remove "_s + file};
}

void RunTrace(Session& session, Arguments& arguments) {
  const auto level = TakeChoice<TraceLevel>(
      arguments, u"all, changes or off",
      {{u"all", TraceLevel::All}, {u"changes", TraceLevel::Changes}, {u"off", TraceLevel::Off}});
  arguments.End();
  session.engines.trace = level;
}

void QueueBoxAnswer(Answers& answers, Arguments& arguments) {
  const QString button = arguments.Word(u"ok, cancel, yes or no");
  arguments.End();
  if (!IsBoxButton(button)) throw ScriptError{u"unknown button: "_s + button};
  answers.boxes.push_back(button);
}

void QueueFileAnswer(Answers& answers, Arguments& arguments) {
  const QString path = arguments.Word(u"PATH or cancel");
  arguments.End();
  answers.files.push_back(path == u"cancel" ? std::nullopt : std::optional(path));
}

void QueueProgressAnswer(Answers& answers, Arguments& arguments) {
  if (!arguments.TakeIf(u"stop")) throw ScriptError{u"missing argument: stop"_s};
  const int percent = arguments.Count(u"PERCENT");
  arguments.End();
  answers.progressStops.push_back(percent);
}

void QueueDialogAnswer(Session& session, const QString& className) {
  const ScriptLine& line = session.Line();
  if (!line.hasEnd) throw ScriptError{u"the answer has no end"_s};
  session.answers.dialogs[className].push_back(&line);
}

void RunAnswer(Session& session, Arguments& arguments) {
  const QString window = arguments.Word(u"box, file, color, progress or a dialog class");
  if (window == u"box") {
    QueueBoxAnswer(session.answers, arguments);
  } else if (window == u"file") {
    QueueFileAnswer(session.answers, arguments);
  } else if (window == u"progress") {
    QueueProgressAnswer(session.answers, arguments);
  } else if (window == u"color") {
    arguments.End();
    ++session.answers.colors;
  } else if (IsDialogClass(window)) {
    arguments.End();
    QueueDialogAnswer(session, window);
  } else {
    throw ScriptError{u"unknown window: "_s + window};
  }
}

constexpr std::array kCommands = {
    Command{u"engine", RunEngine},
    Command{u"set", RunSet},
    Command{u"get", RunGet},
    Command{u"reply", RunReply},
    Command{u"elements", RunElements},
    Command{u"observer", RunObserver},
    Command{u"timesystem", RunTimeSystem},
    Command{u"registry", RunRegistry},
    Command{u"copy", RunCopy},
    Command{u"remove", RunRemove},
    Command{u"trace", RunTrace},
    Command{u"answer", RunAnswer},
};

}  // namespace

std::span<const Command> PreparingCommands() { return kCommands; }

}  // namespace vyn::drive
