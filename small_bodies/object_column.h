// The columns of the object lists of small bodies, as tables.
#pragma once

#include <span>

#include <QStringView>

#include "siblings/controls/object_list_record.h"

namespace vyn {

/// When the cells of a column can be changed.
enum class ColumnUse {
  Always,
  WhenShown,             ///< its object is shown
  WhenShownInSky,        ///< its object is shown, in the sky seen from inside
  WhenShownInSolarMode,  ///< its object is shown, in the solar system seen from outside
};

/// One column. Its id is its place in the table.
struct ObjectColumn {
  QStringView title;
  ObjectColumnKind kind = ObjectColumnKind::Text;
  char16_t key = 0;  ///< the letter or digit that changes the selected row's cell
  QStringView path;  ///< behind the object's path: what is asked and switched
  ColumnUse use = ColumnUse::Always;
  QStringView secondPath;  ///< switched along with it; the cell is on when either is
  QStringView sample;      ///< a text as long as those to come, where the title is shorter
  bool stretches = false;  ///< shares the width that the others leave
  bool isIdentifier = false;
  int bitmap = 0;  ///< the images of an indicator
  std::span<const QStringView> options;
};

}  // namespace vyn
