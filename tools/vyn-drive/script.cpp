#include "tools/vyn-drive/script.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

bool IsBlank(QChar c) { return c == u' ' || c == u'\t' || c == u'\r'; }

/// Reads words one after another; `rest_` is what is still to be read.
class WordReader {
 public:
  explicit WordReader(QStringView line) : rest_(line) {}

  bool HasWord() {
    while (!rest_.isEmpty() && IsBlank(rest_.front())) rest_ = rest_.sliced(1);
    return !rest_.isEmpty() && rest_.front() != u'#';
  }

  QString Word() { return rest_.front() == u'"' ? QuotedWord() : PlainWord(); }

 private:
  QString PlainWord() {
    qsizetype end = 0;
    while (end < rest_.size() && !IsBlank(rest_[end])) ++end;
    QString word = rest_.first(end).toString();
    rest_ = rest_.sliced(end);
    return word;
  }

  QString QuotedWord() {
    QString word;
    for (rest_ = rest_.sliced(1); !AtQuote(); rest_ = rest_.sliced(1)) {
      word += rest_.front() == u'\\' ? Escaped() : rest_.front();
    }
    rest_ = rest_.sliced(1);
    if (!rest_.isEmpty() && !IsBlank(rest_.front())) {
      throw ScriptError{u"no blank behind the closing quote"_s};
    }
    return word;
  }

  bool AtQuote() const {
    if (rest_.isEmpty()) throw ScriptError{u"a quote is left open"_s};
    return rest_.front() == u'"';
  }

  /// Leaves the escaped character for the caller to step over.
  QChar Escaped() {
    rest_ = rest_.sliced(1);
    const QChar c = rest_.isEmpty() ? QChar() : rest_.front();
    if (c == u'"' || c == u'\\') return c;
    if (c == u'n') return u'\n';
    if (c == u'r') return u'\r';
    if (c == u't') return u'\t';
    throw ScriptError{rest_.isEmpty() ? u"a quote is left open"_s : u"unknown escape: \\"_s + c};
  }

  QStringView rest_;
};

/// Whether a line begins with these words, as far as it can be read.
QStringList FirstWords(QStringView line) {
  try {
    return SplitWords(line);
  } catch (const ScriptError&) {
    return {};
  }
}

bool OpensBlock(const QStringList& words) {
  return words.size() >= 2 && words[0] == u"answer" && IsDialogClass(words[1]);
}

class LineReader {
 public:
  explicit LineReader(const QString& script) : texts_(script.split(u'\n')) {}

  std::vector<ScriptLine> Lines(bool inBlock, bool* hasEnd) {
    std::vector<ScriptLine> lines;
    while (next_ < texts_.size()) {
      ScriptLine line{static_cast<int>(next_) + 1, texts_[next_]};
      ++next_;
      const QStringList words = FirstWords(line.text);
      if (inBlock && words == QStringList{u"end"_s}) return lines;
      if (OpensBlock(words)) line.block = Lines(true, &line.hasEnd);
      lines.push_back(std::move(line));
    }
    *hasEnd = !inBlock;
    return lines;
  }

 private:
  QStringList texts_;
  qsizetype next_ = 0;
};

}  // namespace

std::vector<ScriptLine> ReadLines(const QString& script) {
  bool hasEnd = true;
  return LineReader(script).Lines(false, &hasEnd);
}

QStringList SplitWords(QStringView line) {
  QStringList words;
  WordReader reader(line);
  while (reader.HasWord()) words += reader.Word();
  return words;
}

bool IsDialogClass(QStringView word) { return word.startsWith(u"CDlg"); }

}  // namespace vyn::drive
