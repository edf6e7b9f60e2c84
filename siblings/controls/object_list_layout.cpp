#include "siblings/controls/object_list_layout.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vyn {
namespace {

constexpr int kRowGap = 4;

/// Whole pixels in which the text fits; half a pixel less, and its end is left out.
int Advance(const QFontMetrics& font, const QString& text) {
  return static_cast<int>(std::ceil(QFontMetricsF(font).horizontalAdvance(text)));
}

int Widest(const QFontMetrics& font, const QStringList& texts) {
  int widest = 0;
  for (const QString& text : texts) widest = std::max(widest, Advance(font, text));
  return widest;
}

int HeaderLines(const tagHeaderDataItem& column) {
  const int keyLines = column.key != 0 ? 1 : 0;
  return static_cast<int>(BrokenTitle(column.text, column.titleLines).size()) + keyLines;
}

/// Below four characters a title is read faster in one piece.
bool IsWorthBreaking(const QString& title) { return title.size() > 3; }

}  // namespace

QStringList BrokenTitle(const QString& title, int lines) {
  if (lines < 2 || !IsWorthBreaking(title)) return {title};
  const qsizetype parenthesis = title.indexOf(u'(');
  const qsizetype cut = parenthesis > 0 ? parenthesis : title.size() / 2;
  return QStringList{title.first(cut)} + BrokenTitle(title.sliced(cut), lines - 1);
}

void ObjectListLayout::Calculate(const ObjectListMeasures& measures) {
  int headerLines = 0;
  neededWidths_.resize(columns.size());
  for (std::size_t i = 0; i < columns.size(); ++i) {
    tagHeaderDataItem& column = columns[i];
    if (column.width <= 0) column.width = neededWidths_[i] = WidthOf(column, measures);
    headerLines = std::max(headerLines, HeaderLines(column));
  }
  const int gap = static_cast<int>(kRowGap * measures.pixelsAt96Dpi);
  headerHeight_ = measures.hasHeader ? headerLines * measures.titles.lineSpacing() + 2 * gap : 0;
  const int textHeight = measures.heightFollowsFont ? measures.cells.height() : 0;
  rowHeight_ = std::max(textHeight, measures.checkMark.height()) + gap;
}

int ObjectListLayout::WidthOf(const tagHeaderDataItem& column,
                              const ObjectListMeasures& measures) const {
  int width = 0;
  if (measures.hasHeader) {
    width = Widest(measures.titles, BrokenTitle(column.text, column.titleLines));
    if (column.kind == ObjectColumnKind::Text) {
      width = std::max(width, Advance(measures.cells, column.text));
    }
  }
  if (column.kind == ObjectColumnKind::Choice) {
    width = std::max(width, Widest(measures.cells, column.options));
  } else if (column.kind != ObjectColumnKind::Text) {
    width = std::max(width, measures.checkMark.width());
  }
  return width + static_cast<int>(column.padding * measures.pixelsAt96Dpi);
}

int ObjectListLayout::Left(int column) const {
  return std::accumulate(columns.begin(), columns.begin() + column, 0,
                         [](int sum, const auto& item) { return sum + item.width; });
}

int ObjectListLayout::ColumnAt(int x) const {
  int left = 0;
  for (int column = 0; column < Count(); ++column) {
    if (x >= left && x < left + columns[column].width) return column;
    left += columns[column].width;
  }
  return -1;
}

int ObjectListLayout::NeededWidth() const {
  return std::accumulate(neededWidths_.begin(), neededWidths_.end(), 0);
}

}  // namespace vyn
