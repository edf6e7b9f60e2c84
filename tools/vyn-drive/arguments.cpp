#include "tools/vyn-drive/arguments.h"

#include <cmath>

#include "tools/vyn-drive/script.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

double ToNumber(QStringView digits, const QString& word, QStringView what) {
  bool isNumber = false;
  const double number = digits.toDouble(&isNumber);
  // No screen is larger, and no pixel is infinitely far away.
  constexpr double kMost = 1e6;
  if (!isNumber || !(std::abs(number) <= kMost)) {
    throw ScriptError{u"not a number: "_s + word + u" (" + what + u")"};
  }
  return number;
}

}  // namespace

QString Arguments::Word(QStringView what) {
  if (words_.isEmpty()) throw ScriptError{u"missing argument: "_s + what};
  return words_.takeFirst();
}

int Arguments::Int(QStringView what) {
  const QString word = Word(what);
  bool isNumber = false;
  const int number = word.toInt(&isNumber);
  if (!isNumber) throw ScriptError{u"not a whole number: "_s + word + u" (" + what + u")"};
  return number;
}

int Arguments::Count(QStringView what) {
  const int number = Int(what);
  if (number < 0)
    throw ScriptError{u"negative: "_s + QString::number(number) + u" (" + what + u")"};
  return number;
}

double Arguments::Coordinate(QStringView what, int extent) {
  const QString word = Word(what);
  if (!word.endsWith(u'%')) return ToNumber(word, word, what);
  return ToNumber(QStringView(word).chopped(1), word, what) / 100.0 * extent;
}

QString Arguments::Text(QStringView what) {
  if (words_.isEmpty()) throw ScriptError{u"missing argument: "_s + what};
  QString text = words_.join(u' ');
  words_.clear();
  return text;
}

bool Arguments::TakeIf(QStringView word) {
  if (words_.isEmpty() || words_.first() != word) return false;
  words_.removeFirst();
  return true;
}

void Arguments::End() const {
  if (!words_.isEmpty()) throw ScriptError{u"one word too many: "_s + words_.first()};
}

}  // namespace vyn::drive
