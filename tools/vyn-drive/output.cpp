#include "tools/vyn-drive/output.h"

#include <cstdio>

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

QString Escaped(QStringView text, QStringView escaped) {
  static constexpr QStringView kCharacters = u"\"\\\t\n\r", kLetters = u"\"\\tnr";
  QString result;
  result.reserve(text.size());
  for (const QChar c : text) {
    if (escaped.contains(c)) {
      result += u'\\';
      result += kLetters[kCharacters.indexOf(c)];
    } else {
      result += c;
    }
  }
  return result;
}

}  // namespace

QString Quoted(QStringView text) { return u'"' + Escaped(text, u"\"\\\t\n\r") + u'"'; }

QString Bare(QStringView text) { return Escaped(text, u"\n\r"); }

void Print(const QString& line) {
  const QByteArray bytes = (line + u'\n').toUtf8();
  std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
}

}  // namespace vyn::drive
