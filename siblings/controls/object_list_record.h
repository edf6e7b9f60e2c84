// The records by which an object list and the dialog that owns it speak to each other.
#pragma once

#include <limits>
#include <stdexcept>
#include <vector>

#include <QEvent>
#include <QString>
#include <QStringList>

#include "core_link/window_message.h"

namespace vyn {

/// The message that a list sends to its owner: wParam is a reason, lParam the update-info record.
inline QEvent::Type ObjectListMessage() {
  return RegisterWindowMessage(QStringLiteral("Orvantis::VynListBoxAObj::MessageID"));
}

/// Why a list calls its owner. Other values are reserved.
enum class ObjectListReason : quintptr {
  Fill = 1,              ///< the record's cells are to be filled
  AllButton = 2,         ///< the "all" button of a column was pressed
  CellChanged = 4,       ///< one cell was changed; it holds the new value already
  SelectionChanged = 5,  ///< another row was selected
};

enum class ObjectColumnKind : qint32 {
  Text = 0,
  Indicator = 1,  ///< one of a few small images, shown only
  Check = 2,
  Choice = 3,  ///< one of the column's options
};

/// How a column is declared. The dialog fills the record that the list keeps for it.
struct tagHeaderDataItem {
  static constexpr quint32 kNoId = std::numeric_limits<quint32>::max();

  quint32 id = kNoId;  ///< by which the dialog knows the column
  ObjectColumnKind kind = ObjectColumnKind::Text;
  qint32 cellsCentered = 0;
  qint32 optionCount = 0;
  QString text;            ///< the title
  qint32 width = 0;        ///< pixels; 0 takes what title and cells need
  qint32 rowHeading = -1;  ///< 1: a text cell with its flag set names its row to screen readers
  qint32 titleCentered = 0;
  qint32 titleLines = 1;    ///< over how many lines the title may be broken
  qint32 key = 0;           ///< letter or digit that changes the selected row's cell
  qint32 hasAllButton = 0;  ///< the title is a button for all objects
  qint32 padding = 0;       ///< room around the content, both sides together, in pixels at 96 dpi
  qint32 bitmap = 0;        ///< number of an indicator's images
  qint32 imageCount = 0;
  QStringList options;
};

/// The faces of a cell.
inline constexpr quint32 kCellNormal = 0, kCellDisabled = 3;

/// One cell of a batch.
struct tagDataItem {
  quint32 status = kCellNormal;
  QString text;
  qint32 textFlag = 0;
  qint32 value = 0;  ///< check: 0 or 1; choice: index of the option; indicator: index of the image
};

/// One column of a batch.
class tagDataColumn {
 public:
  tagDataColumn(quint32 columnId, ObjectColumnKind columnKind, qint32 options, qint64 cellCount)
      : id(columnId), kind(columnKind), optionCount(options), cells_(cellCount) {}

  qint64 CellCount() const { return static_cast<qint64>(cells_.size()); }

  /// Throws std::invalid_argument outside the batch.
  tagDataItem& Cell(qint64 row) { return cells_[Checked(row)]; }
  const tagDataItem& Cell(qint64 row) const { return cells_[Checked(row)]; }

  quint32 id;
  ObjectColumnKind kind;
  qint32 optionCount;

 private:
  std::size_t Checked(qint64 row) const {
    if (row < 0 || row >= CellCount()) throw std::invalid_argument("no such cell in the batch");
    return static_cast<std::size_t>(row);
  }

  std::vector<tagDataItem> cells_;
};

/// What a list lends to its owner for one call: a batch of consecutive rows.
class tagUpdateInfo {
 public:
  quint32 controlId = 0;
  qint64 firstRow = 0;  ///< the object, from 0, in the batch's first row
  qint64 rowCount = 0;
  qint64 columnIndex = -1;  ///< the column that was changed
  qint64 rowIndex = -1;     ///< the row of the batch that was changed

  void AddColumn(const tagHeaderDataItem& header) {
    columns_.emplace_back(header.id, header.kind, header.optionCount, rowCount);
  }

  qint64 ColumnCount() const { return static_cast<qint64>(columns_.size()); }

  /// Throws std::invalid_argument outside the list's columns.
  tagDataColumn& Column(qint64 index) { return columns_[Checked(index)]; }
  const tagDataColumn& Column(qint64 index) const { return columns_[Checked(index)]; }

 private:
  std::size_t Checked(qint64 index) const {
    if (index < 0 || index >= ColumnCount()) throw std::invalid_argument("no such column");
    return static_cast<std::size_t>(index);
  }

  std::vector<tagDataColumn> columns_;
};

/// The font of a list's rows.
struct tagRegFont {
  static constexpr qsizetype kMaxFaceName = 32;

  QString faceName;  ///< at most kMaxFaceName characters; falls back to the dialog's font
  double pointSize = 0.0;
};

}  // namespace vyn
