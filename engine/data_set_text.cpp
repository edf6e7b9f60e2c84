#include "engine/data_set_text.h"

#include <algorithm>
#include <optional>

#include "core_link/reply.h"
#include "engine/value_text.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr QStringView kSectionStart = u"[set ";
constexpr qsizetype kMostSets = 100'000;

/// Takes the next line off the text; a line end within quotes does not end it.
QStringView TakeLine(QStringView& text) {
  bool quoted = false;
  qsizetype end = 0;
  for (; end < text.size() && (quoted || text[end] != u'\n'); ++end) {
    if (text[end] == u'"') quoted = !quoted;
  }
  const QStringView line = text.first(end);
  text = text.sliced(std::min(end + 1, text.size()));
  return line.trimmed();
}

std::optional<int> SectionNumber(QStringView line) {
  if (!line.startsWith(kSectionStart, Qt::CaseInsensitive)) return std::nullopt;
  return reply::ToInt(line.sliced(kSectionStart.size()));
}

}  // namespace

QString WriteDataSets(const std::vector<DataSetText>& sets) {
  QString text = u"; Data sets of a planetarium\n"_s;
  for (const DataSetText& set : sets) {
    text += u"\n[set %1]\n"_s.arg(set.number);
    for (const auto& [path, value] : set.members) {
      text += path + " = "_L1 + WriteValue(value) + u'\n';
    }
  }
  return text;
}

std::vector<DataSetText> ReadDataSets(QStringView text) {
  std::vector<DataSetText> sets;
  while (!text.isEmpty()) {
    const QStringView line = TakeLine(text);
    if (line.startsWith(u';')) continue;
    if (const auto number = SectionNumber(line)) {
      if (std::ssize(sets) == kMostSets) break;
      sets.push_back({*number, {}});
      continue;
    }
    const qsizetype equals = line.indexOf(u'=');
    if (sets.empty() || equals < 1) continue;
    sets.back().members.emplace_back(line.first(equals).trimmed().toString(),
                                     ReadValue(line.sliced(equals + 1).trimmed()));
  }
  return sets;
}

}  // namespace vyn
