// The words behind a command, taken one after another.
#pragma once

#include <QStringList>

namespace vyn::drive {

/// Each reading throws ScriptError, naming `what` the word was to be, when the word is missing or
/// not of that form.
class Arguments {
 public:
  explicit Arguments(const QStringList& words) : words_(words) {}

  bool AtEnd() const { return words_.isEmpty(); }
  const QStringList& Left() const { return words_; }

  QString Word(QStringView what);
  int Int(QStringView what);
  /// A whole number that is not negative.
  int Count(QStringView what);
  /// Pixels: a number, or a percentage of `extent` written "50%".
  double Coordinate(QStringView what, int extent);
  /// All that is left, joined with one blank.
  QString Text(QStringView what);

  /// Takes the next word if it is this one.
  bool TakeIf(QStringView word);
  /// Throws when a word is left.
  void End() const;

 private:
  QStringList words_;
};

}  // namespace vyn::drive
