// What the controls that show rows have in common.
#pragma once

#include <memory>
#include <vector>

#include <QStringList>
#include <QWidget>

namespace vyn::drive {

/// A control with rows. A kind of control says what it can do by overriding; the rest throws
/// ScriptError.
class ListControl {
 public:
  virtual ~ListControl();

  virtual int RowCount() const = 0;
  /// -1 for none.
  virtual int SelectedRow() const = 0;
  virtual QString RowText(int row) const;
  /// Selects the row as a person does with the mouse; nothing when the control is disabled.
  virtual void Choose(int row);

  virtual void ClickCell(int row, int column);
  virtual void DoubleClickCell(int row, int column);
  virtual void ClickHeader(int column);
  /// The values of a row's cells as they are printed.
  virtual QStringList Cells(int row) const;
  virtual QStringList Headers() const;
};

/// How a control is used as a list; null when it is none.
std::unique_ptr<ListControl> AsList(QWidget& control);

}  // namespace vyn::drive
