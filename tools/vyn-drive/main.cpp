// vyn-drive: opens the real dialogs on the reference engine, does what a script says, and prints
// what was sent to the engine and what a person saw.
#include <cstdio>
#include <optional>

#include <QFile>

#include "tools/vyn-drive/application.h"
#include "tools/vyn-drive/session.h"

namespace {

using namespace Qt::StringLiterals;

constexpr char kUsage[] =
    "usage: vyn-drive [--shots FOLDER] SCRIPT...\n"
    "A SCRIPT of - is standard input. Pictures go to the current folder unless FOLDER is given.\n";

struct Invocation {
  QString shotsFolder = u"."_s;
  QStringList scripts;
};

std::optional<Invocation> ReadInvocation(QStringList arguments) {
  Invocation invocation;
  while (!arguments.isEmpty()) {
    const QString argument = arguments.takeFirst();
    if (argument == u"--shots" && !arguments.isEmpty()) {
      invocation.shotsFolder = arguments.takeFirst();
    } else if (argument.startsWith(u'-') && argument != u"-") {
      return std::nullopt;
    } else {
      invocation.scripts += argument;
    }
  }
  if (invocation.scripts.isEmpty()) return std::nullopt;
  return invocation;
}

std::optional<QString> ReadScript(const QString& name) {
  QFile file(name);
  const bool isOpen =
      name == u"-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
  if (!isOpen) return std::nullopt;
  QString text = QString::fromUtf8(file.readAll());
  if (text.startsWith(QChar::ByteOrderMark)) text.remove(0, 1);
  return text;
}

void RunScript(const QString& name, const QString& shotsFolder) {
  vyn::drive::Session session(name, shotsFolder);
  const std::optional<QString> text = ReadScript(name);
  if (!text) session.Fail(u"the script cannot be read"_s);
  session.RunScript(vyn::drive::ReadLines(*text));
}

}  // namespace

int main(int argc, char** argv) {
  const auto application = vyn::drive::StartApplication(argc, argv);
  const auto invocation = ReadInvocation(QCoreApplication::arguments().sliced(1));
  if (!invocation) {
    std::fputs(kUsage, stderr);
    return 2;
  }
  // A run that ends badly still shows all that happened before.
  std::setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  for (const QString& script : invocation->scripts) RunScript(script, invocation->shotsFolder);
  return 0;
}
