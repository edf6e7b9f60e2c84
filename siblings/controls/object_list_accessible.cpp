#include "siblings/controls/object_list_accessible.h"

#include <limits>

#include <QAccessibleWidget>
#include <QHash>

#include "siblings/controls/object_list_box.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// The titles stand above row 0.
constexpr qint64 kTitleRow = -1;

/// A reader that walks through a million rows must not keep them all.
constexpr qsizetype kMostKeptCells = 20000;

QString ValueText(const tagHeaderDataItem& column, const tagDataItem& cell) {
  switch (column.kind) {
    case ObjectColumnKind::Text:
      return cell.text;
    case ObjectColumnKind::Choice:
      return column.options.value(cell.value);
    default:
      return cell.value != 0 ? u"オン"_s : u"オフ"_s;
  }
}

/// One cell or title.
class AccessibleCell final : public QAccessibleInterface,
                             public QAccessibleTableCellInterface,
                             public QAccessibleActionInterface {
 public:
  AccessibleCell(CVynListBoxAObj* list, qint64 row, int column)
      : list_(list), row_(row), column_(column) {}

  bool isValid() const override {
    return list_ && row_ < list_->GetValueCountTotal() &&
           column_ < static_cast<int>(list_->Columns().size());
  }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return list_->window()->windowHandle(); }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(list_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  bool isSelected() const override { return !IsTitle() && row_ == list_->GetValueSelect(); }
  QList<QAccessibleInterface*> columnHeaderCells() const override;
  QList<QAccessibleInterface*> rowHeaderCells() const override;
  int columnIndex() const override { return column_; }
  int rowIndex() const override { return static_cast<int>(row_); }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override;

 private:
  bool IsTitle() const { return row_ == kTitleRow; }
  const tagHeaderDataItem& Column() const {
    return list_->Columns()[static_cast<std::size_t>(column_)];
  }
  tagDataItem Cell() const;
  bool IsButton() const;

  QPointer<CVynListBoxAObj> list_;
  qint64 row_;
  int column_;
};

class AccessibleList final : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit AccessibleList(CVynListBoxAObj* list)
      : QAccessibleWidget(list, QAccessible::Table), list_(list) {}
  ~AccessibleList() override { ForgetCells(); }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  // As a tree: the titles, then row by row.

  int childCount() const override {
    const qint64 count = (list_->GetValueCountTotal() + 1) * columnCount();
    return static_cast<int>(std::min<qint64>(count, std::numeric_limits<int>::max()));
  }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || columnCount() == 0) return nullptr;
    return CellOrTitle(index / columnCount() - 1, index % columnCount());
  }
  int indexOfChild(const QAccessibleInterface* cell) const override {
    const auto* place = const_cast<QAccessibleInterface*>(cell)->tableCellInterface();
    if (place == nullptr || place->table() != this) return -1;
    return (place->rowIndex() + 1) * columnCount() + place->columnIndex();
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const QPoint point = list_->mapFromGlobal(QPoint(x, y));
    for (int column = 0; column < columnCount(); ++column) {
      const QRect title = list_->TitleRect(column);
      if (title.contains(point)) return CellOrTitle(kTitleRow, column);
      const int height = list_->CellRect(0, column).height();
      const qint64 row = (point.y() - list_->CellRect(0, column).top()) / std::max(1, height);
      if (point.y() > title.bottom() && list_->CellRect(row, column).contains(point)) {
        return CellOrTitle(row, column);
      }
    }
    return nullptr;
  }
  QAccessibleInterface* focusChild() const override {
    if (!list_->hasFocus() || list_->GetValueSelect() < 0) return nullptr;
    return CellOrTitle(list_->GetValueSelect(), std::max(0, list_->CurrentColumn()));
  }

  // As a table.

  QAccessibleInterface* cellAt(int row, int column) const override {
    return row >= 0 ? CellOrTitle(row, column) : nullptr;
  }
  int columnCount() const override { return static_cast<int>(list_->Columns().size()); }
  int rowCount() const override { return static_cast<int>(list_->GetValueCountTotal()); }
  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QString columnDescription(int column) const override {
    const bool isColumn = column >= 0 && column < columnCount();
    return isColumn ? list_->Columns()[static_cast<std::size_t>(column)].text : QString();
  }
  QString rowDescription(int) const override { return {}; }
  int selectedCellCount() const override { return selectedRowCount() * columnCount(); }
  QList<QAccessibleInterface*> selectedCells() const override {
    QList<QAccessibleInterface*> cells;
    for (int column = 0; column < selectedCellCount(); ++column) {
      cells.append(CellOrTitle(list_->GetValueSelect(), column));
    }
    return cells;
  }
  int selectedColumnCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  int selectedRowCount() const override { return list_->GetValueSelect() >= 0 ? 1 : 0; }
  QList<int> selectedRows() const override {
    if (selectedRowCount() == 0) return {};
    return {static_cast<int>(list_->GetValueSelect())};
  }
  bool isRowSelected(int row) const override { return row == list_->GetValueSelect(); }
  bool selectRow(int row) override {
    list_->SetValueSelect(row, 1, 1);
    return isRowSelected(row);
  }
  bool unselectRow(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override { ForgetCells(); }

 private:
  QAccessibleInterface* CellOrTitle(qint64 row, int column) const {
    if (row >= list_->GetValueCountTotal() || column < 0 || column >= columnCount()) return nullptr;
    const qint64 key = (row + 1) * columnCount() + column;
    const auto known = cells_.constFind(key);
    if (known != cells_.constEnd()) return QAccessible::accessibleInterface(*known);
    if (cells_.size() >= kMostKeptCells) ForgetCells();
    auto* cell = new AccessibleCell(list_, row, column);
    cells_.insert(key, QAccessible::registerAccessibleInterface(cell));
    return cell;
  }

  void ForgetCells() const {
    for (const QAccessible::Id id : std::as_const(cells_)) {
      QAccessible::deleteAccessibleInterface(id);
    }
    cells_.clear();
  }

  CVynListBoxAObj* list_;
  mutable QHash<qint64, QAccessible::Id> cells_;
};

tagDataItem AccessibleCell::Cell() const {
  const tagUpdateInfo batch = list_->AskRows(row_, 1);
  return batch.rowCount > 0 ? batch.Column(column_).Cell(0) : tagDataItem();
}

bool AccessibleCell::IsButton() const {
  if (IsTitle()) return Column().hasAllButton != 0;
  const ObjectColumnKind kind = Column().kind;
  return kind == ObjectColumnKind::Check || kind == ObjectColumnKind::Choice;
}

QString AccessibleCell::text(QAccessible::Text kind) const {
  if (!isValid()) return {};
  if (kind == QAccessible::Name) {
    const bool isText = !IsTitle() && Column().kind == ObjectColumnKind::Text;
    return isText ? Cell().text : Column().text;
  }
  if (kind == QAccessible::Value && !IsTitle()) return ValueText(Column(), Cell());
  return {};
}

QRect AccessibleCell::rect() const {
  if (!isValid()) return {};
  const QRect area = IsTitle() ? list_->TitleRect(column_) : list_->CellRect(row_, column_);
  return {list_->mapToGlobal(area.topLeft()), area.size()};
}

QAccessible::Role AccessibleCell::role() const {
  if (IsTitle()) return QAccessible::ColumnHeader;
  return Column().kind == ObjectColumnKind::Check ? QAccessible::CheckBox : QAccessible::Cell;
}

QAccessible::State AccessibleCell::state() const {
  QAccessible::State state;
  state.invalid = !isValid();
  if (state.invalid || IsTitle()) return state;
  const tagDataItem cell = Cell();
  state.selectable = true;
  state.focusable = true;
  state.selected = isSelected();
  state.focused = isSelected() && list_->hasFocus() && column_ == list_->CurrentColumn();
  state.disabled = !list_->isEnabled() || cell.status == kCellDisabled;
  state.checkable = Column().kind == ObjectColumnKind::Check;
  state.checked = state.checkable && cell.value != 0;
  state.offscreen = !list_->rect().intersects(list_->CellRect(row_, column_));
  return state;
}

void* AccessibleCell::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableCellInterface && !IsTitle()) {
    return static_cast<QAccessibleTableCellInterface*>(this);
  }
  if (type == QAccessible::ActionInterface && IsButton()) {
    return static_cast<QAccessibleActionInterface*>(this);
  }
  return nullptr;
}

QList<QAccessibleInterface*> AccessibleCell::columnHeaderCells() const {
  return {parent()->child(column_)};
}

QList<QAccessibleInterface*> AccessibleCell::rowHeaderCells() const {
  const tagUpdateInfo batch = list_->AskRows(row_, 1);
  QList<QAccessibleInterface*> cells;
  for (int column = 0; column < batch.ColumnCount() && batch.rowCount > 0; ++column) {
    const bool isHeading = list_->Columns()[static_cast<std::size_t>(column)].rowHeading == 1;
    if (isHeading && batch.Column(column).Cell(0).textFlag != 0) {
      cells.append(parent()->tableInterface()->cellAt(rowIndex(), column));
    }
  }
  return cells;
}

QStringList AccessibleCell::actionNames() const {
  if (!IsButton()) return {};
  return {IsTitle() ? pressAction() : toggleAction()};
}

void AccessibleCell::doAction(const QString& name) {
  if (!isValid() || !actionNames().contains(name)) return;
  if (IsTitle()) {
    list_->PressAllButton(column_);
  } else {
    list_->ScrollTo(row_);
    list_->ChangeCell(row_, column_);
  }
}

QStringList AccessibleCell::keyBindingsForAction(const QString&) const {
  return Column().key != 0 ? QStringList{QString(QChar(Column().key))} : QStringList{};
}

QAccessibleInterface* MakeAccessible(const QString& className, QObject* object) {
  if (className != "vyn::CVynListBoxAObj"_L1) return nullptr;
  auto* list = qobject_cast<CVynListBoxAObj*>(object);
  return list != nullptr ? new AccessibleList(list) : nullptr;
}

int IndexOf(const CVynListBoxAObj* list, qint64 row, int column) {
  const qint64 index = (row + 1) * static_cast<qint64>(list->Columns().size()) + column;
  return static_cast<int>(std::min<qint64>(index, std::numeric_limits<int>::max()));
}

}  // namespace

void InstallObjectListAccessibility() {
  static const bool installed = (QAccessible::installFactory(&MakeAccessible), true);
  Q_UNUSED(installed);
}

void TellObjectListFocus(CVynListBoxAObj* list) {
  if (!QAccessible::isActive() || list->GetValueSelect() < 0) return;
  QAccessibleEvent focus(list, QAccessible::Focus);
  focus.setChild(IndexOf(list, list->GetValueSelect(), std::max(0, list->CurrentColumn())));
  QAccessible::updateAccessibility(&focus);
}

void TellObjectListCellChanged(CVynListBoxAObj* list, qint64 row, int column) {
  if (!QAccessible::isActive()) return;
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(list, changed);
  event.setChild(IndexOf(list, row, column));
  QAccessible::updateAccessibility(&event);
}

void TellObjectListReset(CVynListBoxAObj* list) {
  if (!QAccessible::isActive()) return;
  QAccessibleTableModelChangeEvent reset(list, QAccessibleTableModelChangeEvent::ModelReset);
  QAccessible::updateAccessibility(&reset);
}

}  // namespace vyn
