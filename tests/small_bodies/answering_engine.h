// An engine that answers from a table and keeps what it is sent.
#pragma once

#include <utility>

#include <QHash>
#include <QStringList>

#include "core_link/cor_vyn.h"

namespace vyn {

/// An assignment is kept as the new answer, unless it is part of a script.
class AnsweringEngine final : public CCorVyn {
 public:
  QString Doit(const QString& command) override {
    if (!command.startsWith(u"? ")) {
      changes.append(command);
      Assign(command);
      return {};
    }
    queries.append(command);
    QString reply;
    for (const QString& query : command.split(QStringLiteral("; "))) reply += values.value(query.mid(2));
    return reply;
  }
  QString ObjNumToName(int) const override { return {}; }
  int GetLocationObject() const override { return 0; }
  int GetTimeSys() const override { return timeSystem; }
  bool WindowExists() const override { return hasWindow; }

  QStringList TakeChanges() { return std::exchange(changes, {}); }

  QHash<QString, QString> values;
  QStringList queries, changes;
  int timeSystem = 2;
  bool hasWindow = true;

 private:
  void Assign(const QString& command) {
    const QString statement = command.section(u';', 0, 0);
    const qsizetype sign = statement.indexOf(u" = ");
    if (sign > 0) values.insert(statement.first(sign), statement.mid(sign + 3));
  }
};

}  // namespace vyn
