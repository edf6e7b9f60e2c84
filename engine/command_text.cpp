#include "engine/command_text.h"

#include <algorithm>

namespace vyn {
namespace {

bool IsRefusedControl(QChar c) {
  return c.unicode() < 0x20 && c != u'\t' && c != u'\r' && c != u'\n';
}

bool HasRefusedControl(QStringView text) {
  bool has = false;
  for (const QChar c : text) has |= IsRefusedControl(c);
  return has;
}

/// Control characters have a place only inside quotes, where texts are kept as they are.
bool HasBareControl(QStringView text) {
  if (!HasRefusedControl(text)) return false;
  bool quoted = false;
  for (const QChar c : text) {
    if (c == u'"') quoted = !quoted;
    if (!quoted && IsRefusedControl(c)) return true;
  }
  return false;
}

qsizetype FirstOperator(QStringView text) {
  const auto found = std::find_if(text.begin(), text.end(),
                                  [](QChar c) { return c == u'=' || c == u'(' || c == u'"'; });
  return found - text.begin();
}

/// Two words with white space between, such as "Show Sky".
Statement ParseVerb(QStringView text) {
  const auto blank = std::find_if(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
  const qsizetype length = blank - text.begin();
  const QStringView verb = text.first(length);
  const QStringView target = text.sliced(length).trimmed();
  const auto is = [](QStringView word, QStringView wanted) {
    return word.compare(wanted, Qt::CaseInsensitive) == 0;
  };
  if (is(verb, u"Show") && is(target, u"Sky")) return {StatementKind::Redraw, {}, {}};
  if (is(verb, u"Init")) return {StatementKind::InitStatus, target, {}};
  if (is(verb, u"Make")) return {StatementKind::MakeStatus, target, {}};
  return {};
}

/// The closing parenthesis may be missing: the sunspot dialog's Add is sent without it.
Statement ParseCall(QStringView text, qsizetype opening) {
  const qsizetype closing = text.lastIndexOf(u')');
  const qsizetype end = closing > opening ? closing : text.size();
  return {StatementKind::Call, text.first(opening).trimmed(),
          text.sliced(opening + 1, end - opening - 1).trimmed()};
}

}  // namespace

Statement ParseStatement(QStringView text) {
  if (text.size() > kMaxStatementLength || HasBareControl(text)) return {};
  if (text.startsWith(u'?')) return {StatementKind::Query, text.sliced(1).trimmed(), {}};
  const qsizetype position = FirstOperator(text);
  if (position == text.size()) return ParseVerb(text);
  if (text[position] == u'=') {
    return {StatementKind::Assignment, text.first(position).trimmed(),
            text.sliced(position + 1).trimmed()};
  }
  return text[position] == u'(' ? ParseCall(text, position) : Statement{};
}

CommandText::CommandText(QStringView text)
    : text_(text), isPlain_(!text.contains(u'"') && !text.contains(u')')) {
  if (isPlain_) return;
  lastClosing_ = text.lastIndexOf(u')');
  if (text.count(u'"') % 2 != 0) position_ = text.size();
}

bool CommandText::Next(Statement* statement) {
  while (position_ < text_.size()) {
    const QStringView text = CutStatement().trimmed();
    if (text.isEmpty()) continue;
    *statement = ParseStatement(text);
    return true;
  }
  return false;
}

/// A parenthesis that nothing closes any more does not hold statements together.
QStringView CommandText::CutStatement() {
  const qsizetype begin = position_;
  if (isPlain_) {
    const qsizetype end = text_.indexOf(u';', begin);
    position_ = (end < 0 ? text_.size() : end) + 1;
    return text_.sliced(begin, position_ - 1 - begin);
  }
  bool quoted = false;
  int depth = 0;
  for (; position_ < text_.size(); ++position_) {
    const char16_t c = text_[position_].unicode();
    if (c > u';') continue;
    if (c == u'"') quoted = !quoted;
    if (quoted) continue;
    if (c == u'(') ++depth;
    if (c == u')' && depth > 0) --depth;
    if (c == u';' && (depth == 0 || position_ > lastClosing_)) break;
  }
  const QStringView statement = text_.sliced(begin, position_ - begin);
  ++position_;
  return statement;
}

}  // namespace vyn
