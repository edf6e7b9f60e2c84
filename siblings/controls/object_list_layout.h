// Where everything in an object list stands.
#pragma once

#include <vector>

#include <QFontMetrics>
#include <QSize>

#include "core_link/export.h"
#include "siblings/controls/object_list_record.h"

namespace vyn {

/// What the sizes of a list follow from.
struct ObjectListMeasures {
  QFontMetrics titles;
  QFontMetrics cells;
  QSize checkMark;
  double pixelsAt96Dpi = 1.0;  ///< pixels of the screen for one at 96 dpi
  bool hasHeader = true;
  bool heightFollowsFont = true;
};

/// The title broken into at most `lines` lines of about the same length, before an opening
/// parenthesis where there is one.
VYN_EXPORT QStringList BrokenTitle(const QString& title, int lines);

/// The columns from left to right, in pixels.
class ObjectListLayout {
 public:
  std::vector<tagHeaderDataItem> columns;

  /// Gives every column without a width what it needs.
  void Calculate(const ObjectListMeasures& measures);

  int HeaderHeight() const { return headerHeight_; }
  int RowHeight() const { return rowHeight_; }
  int Count() const { return static_cast<int>(columns.size()); }
  int Left(int column) const;
  int Right(int column) const { return Left(column) + columns[column].width; }
  /// -1 where no column is.
  int ColumnAt(int x) const;
  /// What the columns took before any was given another width.
  int NeededWidth() const;

 private:
  int WidthOf(const tagHeaderDataItem& column, const ObjectListMeasures& measures) const;

  std::vector<int> neededWidths_;
  int headerHeight_ = 0;
  int rowHeight_ = 1;
};

}  // namespace vyn
