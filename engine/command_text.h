// Takes a command text apart into the statements of the command language.
#pragma once

#include <QStringView>

namespace vyn {

enum class StatementKind {
  Query,       ///< "? target"
  Assignment,  ///< "target = value"
  Call,        ///< "target(value)", the target ending in the method's name
  Redraw,      ///< "Show Sky"
  InitStatus,  ///< "Init target"
  MakeStatus,  ///< "Make target"
  Unreadable,  ///< anything else; does nothing
};

/// One statement; the views look into the command text and are trimmed of white space.
struct Statement {
  StatementKind kind = StatementKind::Unreadable;
  QStringView target;
  QStringView value;
};

/// A statement longer than this is unreadable: no property needs it, and a text that long is a
/// mistake of whoever sent it.
inline constexpr qsizetype kMaxStatementLength = 1 << 20;

/// Reads one statement, already cut out of its command.
Statement ParseStatement(QStringView text);

/// Walks through the statements of a command. They are separated by ";" outside double quotes and
/// parentheses; empty ones are left out. A command with a quote left open has no statements.
class CommandText {
 public:
  explicit CommandText(QStringView text);

  /// Puts the next statement into `statement`; false at the end.
  bool Next(Statement* statement);

 private:
  QStringView CutStatement();

  QStringView text_;
  bool isPlain_;  ///< without quotes and closing parentheses: every ";" separates
  qsizetype position_ = 0;
  qsizetype lastClosing_ = -1;
};

}  // namespace vyn
