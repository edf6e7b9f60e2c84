// Opening, closing and the lists; the limits, the search and the element file have sources of their
// own.
#include "small_bodies/element_class_dialog.h"

#include <algorithm>

#include <QComboBox>
#include <QKeyEvent>
#include <QSlider>

#include "resources/pictures.h"
#include "siblings/controls/controls.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

// The columns of a type list.
constexpr quint32 kTypeShown = 0, kTypeName = 1;
constexpr ObjectColumn kTypeShownColumn{.title = u"表示", .kind = ObjectColumnKind::Check};

// The pictures of the search buttons, each for light windows and, one number on, for dark ones.
constexpr int kBackwardPicture = 13100, kForwardPicture = 13102;
constexpr double kPictureWidth = 14.0, kPictureHeight = 18.0;

/// Whether other cells are shown after the list's call than before. An empty batch asks nothing.
bool ShowsCells(ObjectListReason reason, const tagUpdateInfo& record) {
  return (reason == ObjectListReason::Fill && record.rowCount > 0) ||
         reason == ObjectListReason::AllButton || reason == ObjectListReason::CellChanged;
}

void ShowPicture(QWidget* control, int number) {
  const double scaling = control->logicalDpiX() / 96.0;
  const QSize size(static_cast<int>(kPictureWidth * scaling),
                   static_cast<int>(kPictureHeight * scaling));
  const int picture = CVynDialogBase::IconSelector(control) > 0 ? number : number + 1;
  static_cast<CVynButton*>(control)->SetPicture(
      LoadPicture(picture, size, control->devicePixelRatioF()));
}

}  // namespace

CDlgElementClass::CDlgElementClass(CCorVyn* commandHandle, CCorVyn* secondHandle,
                                   const ElementDeclaration& declaration,
                                   std::vector<TypeList> typeLists, QWidget* parent)
    : CDlgObjectList(commandHandle, secondHandle, declaration.base, parent),
      declaration_(declaration),
      id_(declaration.controls),
      typeLists_(std::move(typeLists)) {}

bool CDlgElementClass::OnInitDialog() {
  GetScript(savedScript_);
  CDlgObjectList::OnInitDialog();
  InitListBoxAObj();
  InitTypeLists();
  ShowPicture(GetDlgItem(id_.SearchBackward()), kBackwardPicture);
  ShowPicture(GetDlgItem(id_.SearchForward()), kForwardPicture);
  LoadSearchHistory();
  InitCtrl();
  return true;
}

int CDlgElementClass::GetScript(QString& script) {
  script = HasCorVyn() ? GetString(Path(u".Status")) : QString();
  return 1;
}

void CDlgElementClass::AttachControls() {
  CDlgObjectList::AttachControls();
  brighterSlider_ = static_cast<QSlider*>(GetDlgItem(id_.BrighterSlider()));
  connect(brighterSlider_, &QSlider::valueChanged, this, &CDlgElementClass::OnHScroll);
  OnClicked({id_.BrighterCheck()}, &CDlgElementClass::OnBnClickedChkLimitBrighter);
  OnTextChanged({id_.BrighterEdit()}, &CDlgElementClass::OnEnChangeEdtLimitBrighter);
  OnTextChanged({id_.SpanEdit()}, &CDlgElementClass::OnEnChangeVectorSpandays);
  OnTextChanged({id_.MultiplierEdit()}, &CDlgElementClass::OnEnChangeVectorMultiplier);
  AttachSpins();
  OnClicked({id_.NewButton()}, &CDlgElementClass::OnBnClickedElementNew);
  OnClicked({id_.EditButton()}, &CDlgElementClass::OnBnClickedElementEdit);
  OnClicked({id_.DeleteButton()}, &CDlgElementClass::OnBnClickedElementDel);
  OnClicked({id_.ImportButton()}, &CDlgElementClass::OnBnClickedElementImport);
  OnClicked({id_.FileButton()}, &CDlgElementClass::OnBnClickedElementElmFile);
  OnClicked({id_.SearchBackward()}, &CDlgElementClass::OnBnClickedSearchBackward);
  OnClicked({id_.SearchForward()}, &CDlgElementClass::OnBnClickedSearchForward);
  AttachSearch();
  AttachColorButton(id_.ColorButton(), &CDlgElementClass::OnBnClickedColorFont);
}

void CDlgElementClass::AttachSpins() {
  auto* brighter = static_cast<CVynSpinButton*>(GetDlgItem(id_.BrighterSpin()));
  connect(brighter, &CVynSpinButton::deltaPressed, this,
          [this](int delta, Qt::KeyboardModifiers modifiers) {
            OnDeltaposSpinLimitBrighter(delta, modifiers.testFlag(Qt::ShiftModifier));
          });
  for (const int spin : {id_.SpanSpin(), id_.MultiplierSpin()}) {
    OnSpin(spin, [this, spin](int delta) { OnDeltaposSpinVector(spin, delta); });
  }
}

/// What is typed is not completed from the history: it is the text to search for as it stands.
void CDlgElementClass::AttachSearch() {
  searchCombo_ = static_cast<QComboBox*>(GetDlgItem(id_.SearchCombo()));
  searchCombo_->setEditable(true);
  searchCombo_->setInsertPolicy(QComboBox::NoInsert);
  searchCombo_->setCompleter(nullptr);
  for (const int button : {id_.SearchBackward(), id_.SearchForward()}) {
    auto* search = static_cast<CVynButton*>(GetDlgItem(button));
    search->setToolTip(search->text());
  }
}

void CDlgElementClass::DoDataExchange(CDataExchange& exchange) {
  exchange.Check(id_.BrighterCheck(), brighterFlag_);
  exchange.DDX_DoubleFmt(id_.BrighterEdit(), brighterMagnitude_, 1, 5);
  exchange.DDX_Double(id_.SpanEdit(), vectorSpanDays_, 4);
  exchange.DDX_Double(id_.MultiplierEdit(), vectorMultiplier_, 4);
}

void CDlgElementClass::InitCtrl() {
  if (HasCorVyn()) {
    InitBrighter();
    InitDisplay();
    InitVector();
    InitOrbitalTypes();
    InitMoreTypes();
  }
  UpdateData(false);
  UpdateCtrl();
}

void CDlgElementClass::InitOrbitalTypes() {
  std::vector<tagLimitTypeInfo> types;
  const int count = GetInt(Path(u".OrbitalType.Count"));
  for (int number = 1; number <= count; ++number) {
    const QString path = Path(u".OrbitalType.#") + QString::number(number);
    const QString objectName = GetString(path + u".ObjectName");
    if (objectName.isEmpty()) continue;
    const QString localName = GetString(path + u".LocalName");
    types.push_back({localName.isEmpty() ? u"<不明>"_s : localName, objectName});
  }
  ShowTypes(Types(id_.OrbitalTypeList()), std::move(types));
}

void CDlgElementClass::ShowTypes(TypeList& typeList, std::vector<tagLimitTypeInfo> types) {
  typeList.types = std::move(types);
  KeepRoomForNames(typeList);
  typeList.list->SetValueCountTotal(static_cast<qint64>(typeList.types.size()), 0);
  typeList.list->Update();
}

/// On a narrow screen a list gives way to its longest name only; no name makes it wider than it
/// comes up on a wide one.
void CDlgElementClass::KeepRoomForNames(const TypeList& typeList) {
  CVynListBoxAObj& list = *typeList.list;
  int widest = 0;
  for (const tagLimitTypeInfo& type : typeList.types) {
    widest = std::max(widest, list.fontMetrics().horizontalAdvance(type.displayName));
  }
  list.setMinimumWidth(std::min(list.minimumSizeHint().width() + widest, list.sizeHint().width()));
}

CDlgElementClass::TypeList& CDlgElementClass::Types(int control) {
  return *std::ranges::find(typeLists_, control, &TypeList::control);
}

void CDlgElementClass::InitTypeLists() {
  for (TypeList& typeList : typeLists_) {
    CVynListBoxAObj* list = static_cast<CVynListBoxAObj*>(GetDlgItem(typeList.control));
    typeList.list = list;
    list->Attach(typeList.control, this);
    DeclareList(*list, false);
    list->SetHeaderCount(2);
    *list->GetHeaderDataItemPtr(0) = HeaderOf(kTypeShownColumn, kTypeShown);
    *list->GetHeaderDataItemPtr(1) =
        HeaderOf({.title = typeList.title, .isIdentifier = true}, kTypeName);
    list->CalcLayout();
    const auto stretch = [this, list] { StretchColumns(*list, {kTypeName}); };
    stretch();
    connect(list, &CVynListBoxAObj::headerAreaWidthChanged, this, stretch);
  }
}

bool CDlgElementClass::HasSelection() const {
  const qint64 selected = ObjectList().GetValueSelect();
  return selected >= 0 && selected < ObjectList().GetValueCountTotal();
}

void CDlgElementClass::UpdateCtrl() {
  if (!HasCorVyn()) return;
  Enable({id_.BrighterSlider(), id_.BrighterEdit(), id_.BrighterSpin(), id_.BrighterUnit()},
         IsChecked(id_.BrighterCheck()));
  const bool hasVectors = IsVisible(ClassPath()) && IsVisible(Path(u".Vector"));
  for (int id = id_.VectorGroup(); id <= id_.MultiplierUnit(); ++id) Enable(id, hasVectors);
  Enable({id_.EditButton(), id_.DeleteButton()}, HasSelection());
}

void CDlgElementClass::UpdateDispCountAndTotalCount() {
  if (!HasCorVyn()) return;
  const auto show = [this](int control, QStringView property) {
    static_cast<CVynStatic*>(GetDlgItem(control))->setText(QString::number(GetInt(Path(property))));
  };
  show(id_.ShownCount(), u".CountOfVisible");
  show(id_.TotalCount(), u".Count");
}

int CDlgElementClass::OnVynListBoxAObj(quintptr reason, tagUpdateInfo* record) {
  const auto isCalling = [record](const TypeList& typeList) {
    return static_cast<quint32>(typeList.control) == record->controlId;
  };
  const auto caller = std::ranges::find_if(typeLists_, isCalling);
  const auto kind = static_cast<ObjectListReason>(reason);
  if (caller == typeLists_.end()) {
    CDlgObjectList::OnVynListBoxAObj(reason, record);
    if (ShowsCells(kind, *record)) UpdateDispCountAndTotalCount();
  } else if (kind == ObjectListReason::Fill) {
    GetAllVynListBoxAObjType(*caller, *record);
  } else if (kind == ObjectListReason::CellChanged) {
    ChangeDataItemOnceVynListBoxAObjType(*caller, *record);
  }
  return 0;
}

void CDlgElementClass::ColumnWasChanged(int column) {
  if (column == declaration_.vectorColumn) UpdateCtrl();
}

QString CDlgElementClass::TypePath(const TypeList& typeList, qint64 row) const {
  return ClassPath() + u'.' + typeList.word + u'.' +
         typeList.types[static_cast<std::size_t>(row)].objectName;
}

void CDlgElementClass::GetAllVynListBoxAObjType(const TypeList& typeList, tagUpdateInfo& record) {
  if (!HasCorVyn() || record.ColumnCount() == 0) return;
  for (qint64 row = 0; row < record.rowCount; ++row) FillTypeRow(typeList, record, row);
}

void CDlgElementClass::FillTypeRow(const TypeList& typeList, tagUpdateInfo& record, qint64 row) {
  const qint64 type = record.firstRow + row;
  if (type >= static_cast<qint64>(typeList.types.size())) return;
  record.Column(kTypeShown).Cell(row).value = IsVisible(TypePath(typeList, type)) ? 1 : 0;
  record.Column(kTypeName).Cell(row).text =
      typeList.types[static_cast<std::size_t>(type)].displayName;
  record.Column(kTypeName).Cell(row).textFlag = 1;
}

void CDlgElementClass::ChangeDataItemOnceVynListBoxAObjType(const TypeList& typeList,
                                                            tagUpdateInfo& record) {
  const qint64 type = record.firstRow + record.rowIndex;
  if (!HasCorVyn() || record.columnIndex != kTypeShown) return;
  if (record.rowIndex < 0 || record.rowIndex >= record.rowCount) return;
  if (type >= static_cast<qint64>(typeList.types.size())) return;
  const int value = record.Column(kTypeShown).Cell(record.rowIndex).value;
  DoitVisible(TypePath(typeList, type), value == 1);
  ShowSky();
  ObjectList().Update();
}

void CDlgElementClass::OnOK() {
  SaveSearchHistory();
  CDlgObjectList::OnOK();
}

/// Enter in the search box searches; elsewhere it closes, as in every dialog. Told apart here and
/// not in OnOK, since the button can be pressed without taking the focus from the box.
void CDlgElementClass::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && IsSearching()) {
    DoSearch(event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
  } else {
    CDlgObjectList::keyPressEvent(event);
  }
}

void CDlgElementClass::OnCancel() {
  SaveSearchHistory();
  if (HasCorVyn()) {
    Doit(Path(u".Init()"));
    if (!savedScript_.isEmpty()) Doit(savedScript_);
    ShowSky();
  }
  CDlgObjectList::OnCancel();
}

}  // namespace vyn
