#include "tools/vyn-drive/list_control.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QComboBox>

#include "siblings/controls/object_list_box.h"
#include "siblings/controls/satellite_list_box.h"
#include "tools/vyn-drive/input.h"
#include "tools/vyn-drive/output.h"
#include "tools/vyn-drive/script.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

[[noreturn]] void ThrowHasNo(const QString& what) {
  throw ScriptError{u"the control has no "_s + what};
}

void ClickItem(QAbstractItemView& view, const QModelIndex& index) {
  view.scrollTo(index);
  Settle();
  // A row may be wider than what is seen of it.
  const QRect seen = view.visualRect(index).intersected(view.viewport()->rect());
  ClickAt(*view.viewport(), seen.center());
}

class ItemList final : public ListControl {
 public:
  explicit ItemList(QAbstractItemView& view) : view_(view) {}

  int RowCount() const override { return view_.model()->rowCount(view_.rootIndex()); }
  int SelectedRow() const override {
    const QModelIndexList rows = view_.selectionModel()->selectedIndexes();
    return rows.isEmpty() ? -1 : rows.first().row();
  }
  QString RowText(int row) const override { return Index(row).data().toString(); }
  void Choose(int row) override {
    if (view_.isVisible() && view_.isEnabled()) ClickItem(view_, Index(row));
  }

 private:
  QModelIndex Index(int row) const { return view_.model()->index(row, 0, view_.rootIndex()); }

  QAbstractItemView& view_;
};

class ComboList final : public ListControl {
 public:
  explicit ComboList(QComboBox& combo) : combo_(combo) {}

  int RowCount() const override { return combo_.count(); }
  int SelectedRow() const override { return combo_.currentIndex(); }
  QString RowText(int row) const override { return combo_.itemText(row); }
  void Choose(int row) override {
    if (!combo_.isVisible() || !combo_.isEnabled()) return;
    combo_.setFocus(Qt::MouseFocusReason);
    combo_.showPopup();
    ClickItem(*combo_.view(), combo_.model()->index(row, combo_.modelColumn()));
  }

 private:
  QComboBox& combo_;
};

/// Its cells are named by the headings above them.
class SatelliteList final : public ListControl {
 public:
  explicit SatelliteList(CSatelliteListBox& list) : list_(list) {}

  int RowCount() const override { return list_.RowCount(); }
  int SelectedRow() const override { return list_.SelectedRow(); }
  QString RowText(int row) const override { return list_.RecordOfRow(row).name; }
  void Choose(int row) override {
    ShowRow(row);
    const QRect area = list_.visualItemRect(list_.item(row));
    ClickAt(*list_.viewport(), {area.left() + area.height() / 2, area.center().y()});
  }
  void ClickCell(int row, int column) override {
    ShowRow(row);
    ClickAt(*list_.viewport(), list_.ToggleRect(row, ToggleUnder(column)).center());
  }
  void DoubleClickCell(int row, int column) override {
    ShowRow(row);
    DoubleClickAt(*list_.viewport(), list_.ToggleRect(row, ToggleUnder(column)).center());
  }
  QStringList Cells(int row) const override {
    const CCheckSatellite& record = list_.RecordOfRow(row);
    QStringList cells{Quoted(record.name), Quoted(record.numberText)};
    for (const int value :
         {record.shown, record.nameShown, record.japanese, record.numberShown, record.orbitShown}) {
      cells.append(QString::number(value));
    }
    return cells;
  }

 private:
  void ShowRow(int row) {
    list_.scrollToItem(list_.item(row));
    Settle();
  }

  SatelliteToggle ToggleUnder(int headingId) const {
    const auto toggle = list_.ToggleUnder(headingId);
    if (!toggle) throw ScriptError{u"no such column: "_s + QString::number(headingId)};
    return *toggle;
  }

  CSatelliteListBox& list_;
};

/// Its cells are named by their column's id.
class ObjectList final : public ListControl {
 public:
  explicit ObjectList(CVynListBoxAObj& list) : list_(list) {}

  int RowCount() const override { return static_cast<int>(list_.GetValueCountTotal()); }
  int SelectedRow() const override { return static_cast<int>(list_.GetValueSelect()); }
  QString RowText(int row) const override {
    for (const tagDataItem& cell : RowCells(row)) {
      if (!cell.text.isEmpty()) return cell.text;
    }
    return {};
  }
  void Choose(int row) override { ClickAtPosition(row, TextColumn()); }
  void ClickCell(int row, int column) override { ClickAtPosition(row, PositionOf(column)); }
  void DoubleClickCell(int row, int column) override {
    const int position = PositionOf(column);
    ShowRow(row);
    DoubleClickAt(list_, list_.CellRect(row, position).center());
  }
  void ClickHeader(int column) override {
    ClickAt(list_, list_.TitleRect(PositionOf(column)).center());
  }
  QStringList Cells(int row) const override {
    QStringList texts;
    const std::vector<tagDataItem> cells = RowCells(row);
    for (std::size_t i = 0; i < cells.size(); ++i) {
      const bool isText = list_.Columns()[i].kind == ObjectColumnKind::Text;
      texts += (cells[i].status == kCellDisabled ? u"~"_s : QString()) +
               (isText ? Quoted(cells[i].text) : QString::number(cells[i].value));
    }
    return texts;
  }
  QStringList Headers() const override {
    QStringList titles;
    for (const tagHeaderDataItem& column : list_.Columns()) titles += column.text;
    return titles;
  }

 private:
  std::vector<tagDataItem> RowCells(int row) const {
    const tagUpdateInfo batch = list_.AskRows(row, 1);
    if (batch.rowCount == 0) throw ScriptError{u"no such row: "_s + QString::number(row)};
    std::vector<tagDataItem> cells;
    for (qint64 i = 0; i < batch.ColumnCount(); ++i) cells.push_back(batch.Column(i).Cell(0));
    return cells;
  }

  int PositionOf(int id) const {
    const auto found =
        std::ranges::find(list_.Columns(), static_cast<quint32>(id), &tagHeaderDataItem::id);
    if (found == list_.Columns().end()) {
      throw ScriptError{u"no such column: "_s + QString::number(id)};
    }
    return static_cast<int>(found - list_.Columns().begin());
  }

  /// Where a click selects and changes nothing.
  int TextColumn() const {
    const auto found =
        std::ranges::find(list_.Columns(), ObjectColumnKind::Text, &tagHeaderDataItem::kind);
    if (found == list_.Columns().end()) ThrowHasNo(u"column of texts"_s);
    return static_cast<int>(found - list_.Columns().begin());
  }

  void ClickAtPosition(int row, int position) {
    ShowRow(row);
    ClickAt(list_, list_.CellRect(row, position).center());
  }

  void ShowRow(int row) {
    list_.ScrollTo(row);
    Settle();
  }

  CVynListBoxAObj& list_;
};

}  // namespace

ListControl::~ListControl() = default;
QString ListControl::RowText(int) const { ThrowHasNo(u"texts of rows"_s); }
void ListControl::Choose(int) { ThrowHasNo(u"selection"_s); }
void ListControl::ClickCell(int, int) { ThrowHasNo(u"cells"_s); }
void ListControl::DoubleClickCell(int, int) { ThrowHasNo(u"cells"_s); }
void ListControl::ClickHeader(int) { ThrowHasNo(u"headings"_s); }
QStringList ListControl::Cells(int) const { ThrowHasNo(u"cells"_s); }
QStringList ListControl::Headers() const { ThrowHasNo(u"headings"_s); }

std::unique_ptr<ListControl> AsList(QWidget& control) {
  if (auto* combo = qobject_cast<QComboBox*>(&control)) return std::make_unique<ComboList>(*combo);
  if (auto* satellites = qobject_cast<CSatelliteListBox*>(&control)) {
    return std::make_unique<SatelliteList>(*satellites);
  }
  if (auto* objects = qobject_cast<CVynListBoxAObj*>(&control)) {
    return std::make_unique<ObjectList>(*objects);
  }
  if (auto* view = qobject_cast<QAbstractItemView*>(&control)) {
    return std::make_unique<ItemList>(*view);
  }
  return nullptr;
}

}  // namespace vyn::drive
