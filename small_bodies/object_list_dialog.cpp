#include "small_bodies/object_list_dialog.h"

#include <algorithm>

#include <QScreen>

#include "resources/string_table.h"
#include "small_bodies/all_button_rule.h"

namespace vyn {
namespace {

const QString kFaceName = QStringLiteral("ＭＳ ゴシック");

/// Room around the content of every column.
constexpr int kColumnPadding = 10;
constexpr int kIndicatorImages = 2;

/// The switch on which those of the same row depend.
bool ShowsObject(const ObjectColumn& column) {
  return column.kind == ObjectColumnKind::Check && column.use == ColumnUse::Always;
}

bool IsIndicator(const ObjectColumn& column) { return column.kind == ObjectColumnKind::Indicator; }

}  // namespace

CDlgObjectList::CDlgObjectList(CCorVyn* commandHandle, CCorVyn* secondHandle,
                               const Declaration& declaration, QWidget* parent)
    : CVynDialog(commandHandle, secondHandle, declaration.templateNumber,
                 LoadString(declaration.registryKey), parent),
      classPath_(declaration.classPath),
      listControl_(declaration.listControl),
      columns_(declaration.columns) {}

QString CDlgObjectList::ObjectPath(qint64 row) const {
  return classPath_ + QStringView(u".No") + QString::number(row + 1);
}

int CDlgObjectList::CountObjects() { return GetInt(classPath_ + QStringView(u".Count")); }

QString CDlgObjectList::ColumnTitle(int column) const { return columns_[column].title.toString(); }

tagHeaderDataItem CDlgObjectList::HeaderOf(const ObjectColumn& column, quint32 id) {
  tagHeaderDataItem header;
  const bool isText = column.kind == ObjectColumnKind::Text;
  const bool isChanged =
      column.kind == ObjectColumnKind::Check || column.kind == ObjectColumnKind::Choice;
  header.id = id;
  header.kind = column.kind;
  header.cellsCentered = isText ? 0 : 1;
  header.rowHeading = column.isIdentifier ? 1 : -1;
  header.titleCentered = isText ? 0 : 1;
  header.titleLines = isText ? 1 : 2;
  header.key = column.key;
  header.hasAllButton = isChanged ? 1 : 0;
  header.padding = kColumnPadding;
  header.text = (column.sample.isEmpty() ? column.title : column.sample).toString();
  for (const QStringView option : column.options) header.options.append(option.toString());
  header.optionCount = static_cast<qint32>(header.options.size());
  return header;
}

void CDlgObjectList::DeclareList(CVynListBoxAObj& list, bool hasHeader) {
  list.UseVScrollBar(1);
  list.HeaderVisible(hasHeader ? 1 : 0);
  list.SelectableDataItem(1);
  list.AutoAdjustDataItemHeight(1);
}

void CDlgObjectList::InitListBoxAObj() {
  objectList_ = static_cast<CVynListBoxAObj*>(GetDlgItem(listControl_));
  objectList_->Attach(listControl_, this);
  DeclareList(*objectList_, true);
  tagRegFont font = objectList_->GetRegFontDefault(1);
  font.faceName = kFaceName;
  objectList_->SetRegFont(font);
  DeclareColumns();
  connect(objectList_, &CVynListBoxAObj::headerAreaWidthChanged, this,
          &CDlgObjectList::StretchObjectColumns);
  if (HasCorVyn()) objectList_->SetValueCountTotal(CountObjects(), 0);
  objectList_->CalcLayout();
  objectList_->Update();
  // The toolkit alone would leave a list that is mostly empty a good part of the screen.
  resize(sizeHint().boundedTo(screen()->availableSize()));
}

/// Laid out with the samples first, so that the widths are those of the texts to come.
void CDlgObjectList::DeclareColumns() {
  const int count = static_cast<int>(columns_.size());
  objectList_->SetHeaderCount(count);
  for (int i = 0; i < count; ++i) {
    *objectList_->GetHeaderDataItemPtr(i) = HeaderOf(columns_[i], static_cast<quint32>(i));
    if (columns_[i].sample.isEmpty()) objectList_->GetHeaderDataItemPtr(i)->text = ColumnTitle(i);
    if (IsIndicator(columns_[i])) {
      objectList_->LoadItemBitmap(static_cast<quint32>(i), columns_[i].bitmap, kIndicatorImages);
    }
  }
  objectList_->CalcLayout();
  KeepRoomForTitles();
  for (int i = 0; i < count; ++i) objectList_->GetHeaderDataItemPtr(i)->text = ColumnTitle(i);
  StretchObjectColumns();
}

std::vector<quint32> CDlgObjectList::StretchingColumns() const {
  std::vector<quint32> ids;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (columns_[i].stretches) ids.push_back(static_cast<quint32>(i));
  }
  return ids;
}

/// Columns that share the spare width evenly need, each of them, what the widest needs.
void CDlgObjectList::KeepRoomForTitles() {
  int widest = 0, missing = 0;
  const std::vector<quint32> ids = StretchingColumns();
  const auto width = [this](quint32 id) { return objectList_->GetHeaderDataItemPtr(id)->width; };
  for (const quint32 id : ids) widest = std::max(widest, width(id));
  for (const quint32 id : ids) missing += widest - width(id);
  objectList_->setMinimumWidth(objectList_->minimumSizeHint().width() + missing);
}

void CDlgObjectList::StretchObjectColumns() { StretchColumns(*objectList_, StretchingColumns()); }

void CDlgObjectList::StretchColumns(CVynListBoxAObj& list,
                                    const std::vector<quint32>& stretchingIds) {
  int spare = list.GetHeaderAreaWidth();
  for (const tagHeaderDataItem& column : list.Columns()) {
    if (std::ranges::find(stretchingIds, column.id) == stretchingIds.end()) spare -= column.width;
  }
  // The pixels that cannot be shared evenly stay unused.
  const int share = spare / static_cast<int>(stretchingIds.size());
  for (const quint32 id : stretchingIds) list.GetHeaderDataItemPtr(id)->width = std::max(share, 1);
  list.CalcLayout();
}

void CDlgObjectList::customEvent(QEvent* event) {
  if (event->type() != ObjectListMessage()) return CVynDialog::customEvent(event);
  const auto* message = static_cast<CVynMessage*>(event);
  if (message->lParam == nullptr) return;
  OnVynListBoxAObj(message->wParam, static_cast<tagUpdateInfo*>(message->lParam));
}

int CDlgObjectList::OnVynListBoxAObj(quintptr reason, tagUpdateInfo* record) {
  switch (static_cast<ObjectListReason>(reason)) {
    case ObjectListReason::Fill:
      GetAllVynListBoxAObj(*record);
      break;
    case ObjectListReason::AllButton:
      ChangeAllButtonVynListBoxAObj(*record);
      break;
    case ObjectListReason::CellChanged:
      ChangeDataItemOnceVynListBoxAObj(*record);
      break;
    case ObjectListReason::SelectionChanged:
      ChangeSelectDataItemVynListBoxAObj();
      break;
  }
  return 0;
}

void CDlgObjectList::GetAllVynListBoxAObj(tagUpdateInfo& record) {
  if (!HasCorVyn() || record.ColumnCount() == 0 || record.rowCount < 1) return;
  for (qint64 row = 0; row < record.rowCount; ++row) {
    const QString objectPath = ObjectPath(record.firstRow + row);
    for (qint64 i = 0; i < record.ColumnCount(); ++i) {
      tagDataColumn& column = record.Column(i);
      FillCell(static_cast<int>(column.id), objectPath, column.Cell(row));
    }
    UpdateCtrlStatusOneLineVynListBoxAObj(record, row);
  }
}

void CDlgObjectList::FillCell(int column, const QString& objectPath, tagDataItem& cell) {
  const ObjectColumn& declared = columns_[column];
  if (declared.kind == ObjectColumnKind::Text) {
    cell.text = CellText(column, objectPath);
    if (declared.isIdentifier) cell.textFlag = 1;
  } else if (declared.kind == ObjectColumnKind::Choice) {
    cell.value = CellOption(column, objectPath);
  } else {
    cell.value = IsOn(declared, objectPath) ? 1 : 0;
  }
}

QString CDlgObjectList::CellText(int column, const QString& objectPath) {
  return GetString(objectPath + columns_[column].path);
}

bool CDlgObjectList::IsOn(const ObjectColumn& column, const QString& path) {
  if (IsVisible(path + column.path)) return true;
  return !column.secondPath.isEmpty() && IsVisible(path + column.secondPath);
}

void CDlgObjectList::ChangeDataItemOnceVynListBoxAObj(tagUpdateInfo& record) {
  if (!HasCorVyn()) return;
  if (record.columnIndex < 0 || record.columnIndex >= record.ColumnCount()) return;
  tagDataColumn& changed = record.Column(record.columnIndex);
  if (record.rowIndex < 0 || record.rowIndex >= changed.CellCount()) return;
  const int column = static_cast<int>(changed.id);
  if (IsIndicator(columns_[column])) return;
  SendColumn(column, ObjectPath(record.firstRow + record.rowIndex),
             changed.Cell(record.rowIndex).value);
  if (ShowsObject(columns_[column])) {
    UpdateCtrlStatusOneLineVynListBoxAObj(record, record.rowIndex);
  }
  ColumnWasChanged(column);
  ShowSky();
}

void CDlgObjectList::ChangeAllButtonVynListBoxAObj(tagUpdateInfo& record) {
  if (!HasCorVyn() || record.columnIndex < 0 || record.columnIndex >= record.ColumnCount()) return;
  const tagDataColumn& cells = record.Column(record.columnIndex);
  const int column = static_cast<int>(cells.id);
  const ObjectColumnKind kind = columns_[column].kind;
  if (kind == ObjectColumnKind::Text || kind == ObjectColumnKind::Indicator) return;
  const bool isChoice = kind == ObjectColumnKind::Choice;
  SendColumn(column, classPath_, isChoice ? AllButtonOption(cells) : AllButtonSwitchesOn(cells));
  ColumnWasChanged(column);
  ShowSky();
  GetAllVynListBoxAObj(record);
}

void CDlgObjectList::SendColumn(int column, const QString& path, int value) {
  const ObjectColumn& declared = columns_[column];
  if (declared.kind == ObjectColumnKind::Text) return;
  if (declared.kind == ObjectColumnKind::Choice) return SendOption(column, path, value);
  DoitVisible(path + declared.path, value == 1);
  if (!declared.secondPath.isEmpty()) DoitVisible(path + declared.secondPath, value == 1);
}

bool CDlgObjectList::CanBeChanged(ColumnUse use, bool isShown, bool isSolarMode) const {
  switch (use) {
    case ColumnUse::Always:
      return true;
    case ColumnUse::WhenShown:
      return isShown;
    case ColumnUse::WhenShownInSky:
      return isShown && !isSolarMode;
    case ColumnUse::WhenShownInSolarMode:
      return isShown && isSolarMode;
  }
  return true;
}

void CDlgObjectList::UpdateCtrlStatusOneLineVynListBoxAObj(tagUpdateInfo& record, qint64 row) {
  if (!HasCorVyn() || row < 0 || row >= record.rowCount) return;
  const bool isShown = IsVisible(ObjectPath(record.firstRow + row));
  const bool isSolarMode = IsSolarMode();
  for (qint64 i = 0; i < record.ColumnCount(); ++i) {
    tagDataColumn& column = record.Column(i);
    const bool usable = CanBeChanged(columns_[column.id].use, isShown, isSolarMode);
    column.Cell(row).status = usable ? kCellNormal : kCellDisabled;
  }
}

void CDlgObjectList::ChooseClassColor(QStringView path) {
  if (HasCorVyn()) ChooseColorAndFont(classPath_ + path);
}

}  // namespace vyn
