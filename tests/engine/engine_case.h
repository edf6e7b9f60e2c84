// A row of the engine's table tests: what is set up, what is sent, what is replied.
#pragma once

#include <ostream>
#include <utility>
#include <vector>

#include <QString>
#include <QStringList>

#include "engine/reference_engine.h"
#include "tests/print_text.h"

namespace vyn {

struct EngineCase {
  const char* name;
  std::vector<std::pair<QString, QString>> properties;  ///< put with SetProperty
  std::vector<QString> commands;                        ///< sent; their replies are not looked at
  QString query;
  QString reply;
};

inline void PrintTo(const EngineCase& row, std::ostream* out) { *out << row.name; }

inline QString ReplyIn(const EngineCase& row) {
  ReferenceEngine engine;
  for (const auto& [path, text] : row.properties) engine.SetProperty(path, text);
  for (const QString& command : row.commands) engine.Doit(command);
  return engine.Doit(row.query);
}

inline std::string NameOf(const auto& info) { return info.param.name; }

}  // namespace vyn
