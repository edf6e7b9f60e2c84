// What all dialogs with a list of small bodies share: they declare the list from a table of columns
// and answer its calls from the core engine.
#pragma once

#include <span>

#include "core_link/dialog.h"
#include "siblings/controls/object_list_box.h"
#include "small_bodies/object_column.h"

namespace vyn {

/// A dialog on one class of objects, such as "Solar.Comet", whose members are "Solar.Comet.No1" and
/// so on. It keeps nothing of them: what a row shows is asked whenever the row is drawn.
class VYN_EXPORT CDlgObjectList : public CVynDialog {
  Q_OBJECT

 public:
  /// Puts into `script` the commands that restore the objects as they are now. Returns 1.
  virtual int GetScript(QString& script) = 0;

 protected:
  struct Declaration {
    int templateNumber;
    int registryKey;  ///< number of the text
    QString classPath;
    int listControl;
    std::span<const ObjectColumn> columns;  ///< lives as long as the program
  };

  CDlgObjectList(CCorVyn* commandHandle, CCorVyn* secondHandle, const Declaration& declaration,
                 QWidget* parent);

  /// The handler of the list's message; always returns 0.
  virtual int OnVynListBoxAObj(quintptr reason, tagUpdateInfo* record);

  /// Declares the columns and gives the list its number of rows. Called by the dialog's opening.
  void InitListBoxAObj();
  void GetAllVynListBoxAObj(tagUpdateInfo& record);
  void ChangeAllButtonVynListBoxAObj(tagUpdateInfo& record);
  void ChangeDataItemOnceVynListBoxAObj(tagUpdateInfo& record);
  virtual void ChangeSelectDataItemVynListBoxAObj() {}
  /// Gives every cell of a row of the record its status; nothing for a row outside it.
  void UpdateCtrlStatusOneLineVynListBoxAObj(tagUpdateInfo& record, qint64 row);

  /// The title of a column; for one that is known only at opening.
  virtual QString ColumnTitle(int column) const;
  /// The text of a text column's cell.
  virtual QString CellText(int column, const QString& objectPath);
  /// The option that a choice column's cell shows.
  virtual int CellOption(int /*column*/, const QString& /*objectPath*/) { return 0; }
  /// Sends a choice column's option, for one object or for the class.
  virtual void SendOption(int /*column*/, const QString& /*path*/, int /*option*/) {}
  /// A column was sent; other controls may depend on it.
  virtual void ColumnWasChanged(int /*column*/) {}

  /// Gives the width that the other columns leave to those that stretch.
  void StretchColumns(CVynListBoxAObj& list, const std::vector<quint32>& stretchingIds);
  /// What all lists of these dialogs have in common.
  void DeclareList(CVynListBoxAObj& list, bool hasHeader);
  static tagHeaderDataItem HeaderOf(const ObjectColumn& column, quint32 id);

  void customEvent(QEvent* event) override;

  const QString& ClassPath() const { return classPath_; }
  CVynListBoxAObj& ObjectList() const { return *objectList_; }
  QString ObjectPath(qint64 row) const;
  /// Asks how many objects there are.
  int CountObjects();
  /// Colour, with the two texts of the parent, of what stands at this path behind the class's.
  void ChooseClassColor(QStringView path);
  void ShowSky() { Doit(QStringLiteral("Show Sky")); }

 private:
  void DeclareColumns();
  std::vector<quint32> StretchingColumns() const;
  void KeepRoomForTitles();
  void StretchObjectColumns();
  void FillCell(int column, const QString& objectPath, tagDataItem& cell);
  bool IsOn(const ObjectColumn& column, const QString& path);
  void SendColumn(int column, const QString& path, int value);
  bool CanBeChanged(ColumnUse use, bool isShown, bool isSolarMode) const;

  const QString classPath_;
  const int listControl_;
  const std::span<const ObjectColumn> columns_;
  CVynListBoxAObj* objectList_ = nullptr;
};

}  // namespace vyn
