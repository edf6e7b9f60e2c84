// Draws the parts of an object list.
#pragma once

#include <QFont>
#include <QRect>

#include "siblings/controls/object_list_record.h"

class QPainter;
class QWidget;

namespace vyn {

/// How a title is drawn besides what its column says.
struct TitleLook {
  bool hovered = false;
  bool pressed = false;
  bool current = false;  ///< its column is the one that the keyboard changes
};

/// How a cell is drawn besides what it holds.
struct CellLook {
  bool selected = false;
  bool current = false;
};

class ObjectListPainter {
 public:
  ObjectListPainter(QPainter& painter, const QWidget& list, const QFont& cellFont)
      : painter_(painter), list_(list), cellFont_(cellFont) {}

  void DrawTitle(const tagHeaderDataItem& column, const QRect& area, const TitleLook& look);
  /// The title bar where no column is.
  void DrawEmptyTitle(const QRect& area);
  void DrawRow(const QRect& area, bool odd, bool selected);
  void DrawCell(const tagHeaderDataItem& column, const tagDataItem& cell, const QRect& area,
                const CellLook& look);

 private:
  void DrawTitleText(const tagHeaderDataItem& column, const QRect& area, bool shifted);
  void DrawText(const QString& text, const QRect& area, bool centered);
  void DrawChoice(const tagHeaderDataItem& column, const tagDataItem& cell, const QRect& area);
  void DrawFocus(const QRect& area);

  QPainter& painter_;
  const QWidget& list_;
  const QFont& cellFont_;
};

}  // namespace vyn
