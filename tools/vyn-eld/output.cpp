#include "tools/vyn-eld/output.h"

#include <cstdio>

#include <QJsonDocument>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace vyn::eld {
namespace {

bool ErrorsGoToATerminal() {
#ifdef _WIN32
  return ::_isatty(::_fileno(stderr)) != 0;
#else
  return ::isatty(STDERR_FILENO) == 1;
#endif
}

void Write(std::FILE* stream, const QByteArray& bytes) {
  std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

}  // namespace

void Print(const QString& line) { Write(stdout, line.toUtf8() + '\n'); }

void PrintError(const QString& line) {
  std::fflush(stdout);
  Write(stderr, "vyn-eld: " + line.toUtf8() + '\n');
}

JsonList::JsonList() { Write(stdout, "["); }
JsonList::~JsonList() { Write(stdout, isEmpty_ ? "]\n" : "\n]\n"); }

void JsonList::Add(const QJsonObject& element) {
  Write(stdout, isEmpty_ ? "\n" : ",\n");
  Write(stdout, QJsonDocument(element).toJson(QJsonDocument::Compact));
  isEmpty_ = false;
}

ProgressBar::ProgressBar(std::int64_t whole) : whole_(whole), isTerminal_(ErrorsGoToATerminal()) {}
ProgressBar::~ProgressBar() { Clear(); }

void ProgressBar::Show(std::int64_t done) {
  const int percent = whole_ > 0 ? static_cast<int>(done * 100 / whole_) : 100;
  if (!isTerminal_ || percent == percent_) return;
  percent_ = percent;
  constexpr int kCells = 50;
  const QByteArray bar(percent * kCells / 100, '#');
  Write(stderr, "\r[" + bar.leftJustified(kCells, '.') + "] " +
                    QByteArray::number(percent).rightJustified(3, ' ') + "%");
}

void ProgressBar::Clear() {
  if (!isTerminal_ || percent_ < 0) return;
  Write(stderr, "\r\033[K");
  percent_ = -1;
}

}  // namespace vyn::eld
