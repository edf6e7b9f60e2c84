#include "elements/element_man_edit_dialog.h"

#include <QDateTime>
#include <QScopedValueRollback>

#include "elements/editor_fields.h"
#include "elements/element_page.h"
#include "elements/element_writer.h"
#include "elements/loaded_identifiers.h"
#include "elements/orbit_conversion.h"
#include "resources/string_table.h"
#include "siblings/controls/controls.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kTemplate = 13006;
constexpr int kIdentifier = 1601;
constexpr int kPermanentLabel = 1604;
constexpr int kPerihelionRadio = 1611, kEpochRadio = 1612;
constexpr int kMeanAnomaly = 1622;
constexpr int kDistanceRadio = 1624, kAxisRadio = 1625;
constexpr int kAxis = 1630;
constexpr int kCoefficientLabel = 1642;
constexpr int kPeriod = 1666;
constexpr int kPages = 1669, kAddPage = 1670, kDeletePage = 1671;

constexpr int kLastPageStays = 13329;
constexpr int kCometPermanentLabel = 13324;
constexpr int kCoefficientText = 13325;
constexpr int kSlopeParameterText = 13326;

}  // namespace

CDlgElementManEdit::CDlgElementManEdit(CCorVyn* commandHandle, CCorVyn* secondHandle,
                                       QWidget* parent)
    : CVynDialog(commandHandle, secondHandle, kTemplate, {}, parent) {}

// Opening.

bool CDlgElementManEdit::OnInitDialog() {
  CVynDialog::OnInitDialog();
  page_ = 0;
  if (pages_.empty() || !BeginsObject({pages_[0].data(), 1})) {
    OnCancel();
    return true;
  }
  kindLetter_ = pages_[0].front();
  LimitTexts();
  FillPageList();
  SetCometMp();
  SetElmPage();
  return true;
}

void CDlgElementManEdit::AttachControls() {
  CVynDialog::AttachControls();
  OnTextChanged({kAxis}, &CDlgElementManEdit::OnChangeEditA);
  OnTextChanged({1633}, &CDlgElementManEdit::OnChangeEditE);
  OnTextChanged({1618, 1619, 1620, kMeanAnomaly}, &CDlgElementManEdit::OnChangeEditEpoch);
  OnTextChanged({1627}, &CDlgElementManEdit::OnChangeEditQ);
  OnTextChanged({1614, 1615, 1616}, &CDlgElementManEdit::OnChangeEditT);
  OnClicked({kDistanceRadio, kAxisRadio}, &CDlgElementManEdit::OnClickedEditDistMode);
  OnClicked({kPerihelionRadio, kEpochRadio}, &CDlgElementManEdit::OnClickedEditTimeMode);
  OnClicked({kAddPage}, &CDlgElementManEdit::OnEditAddPage);
  OnClicked({kDeletePage}, &CDlgElementManEdit::OnEditDelPage);
  // A list that is just being clicked would select the clicked row again behind a handler that
  // goes back to the old one.
  connect(PageList(), &QListWidget::currentRowChanged, this,
          &CDlgElementManEdit::OnSelchangeEditPage, Qt::QueuedConnection);
}

void CDlgElementManEdit::LimitTexts() {
  for (const EditorField& row : kEditorFields) {
    Edit(row.control)->setMaxLength(FieldOf(row.field).width);
  }
}

void CDlgElementManEdit::FillPageList() {
  PageList()->clear();
  for (int number = 1; number <= LastPage() + 1; ++number) {
    PageList()->addItem(QString::number(number));
  }
  PageList()->setCurrentRow(page_);
  Enable(kDeletePage, LastPage() > 0);
}

void CDlgElementManEdit::SetElmPage() {
  MakeEditDialogValue();
  SwitchTmode();
  SwitchQmode();
  ShowPeriod(Input());
  Edit(kIdentifier)->setReadOnly(page_ > 0);
}

void CDlgElementManEdit::MakeEditDialogValue() {
  const QScopedValueRollback guard(isUpdating_, true);
  const ElementInput input = ReadPage(Page(), kindLetter_ == 'C');
  distanceMode_ = input.distanceMode;
  timeMode_ = input.timeMode;
  static_cast<QAbstractButton*>(GetDlgItem(distanceMode_ ? kDistanceRadio : kAxisRadio))
      ->setChecked(true);
  static_cast<QAbstractButton*>(GetDlgItem(timeMode_ ? kPerihelionRadio : kEpochRadio))
      ->setChecked(true);
  for (const EditorField& row : kEditorFields) ShowText(row.control, input[row.field]);
  ShowText(kAxis, input.semiMajorAxis);
  ShowText(kMeanAnomaly, input.meanAnomaly);
}

// Rules of enabling and labels.

void CDlgElementManEdit::SetCometMp() {
  const bool isComet = kindLetter_ == 'C';
  Enable({1656, 1657, 1658, 1659, 1660, 1661, 1662, 1663, 1664}, isComet);
  auto* coefficient = static_cast<CVynStatic*>(GetDlgItem(kCoefficientLabel));
  coefficient->setText(LoadString(isComet ? kCoefficientText : kSlopeParameterText));
  if (!isComet) return;
  static_cast<CVynStatic*>(GetDlgItem(kPermanentLabel))->setText(LoadString(kCometPermanentLabel));
}

void CDlgElementManEdit::SwitchTmode() {
  Enable({1613, 1614, 1680, 1615, 1681, 1616, 1682}, timeMode_);
  Enable({1621, kMeanAnomaly, 1683}, !timeMode_);
}

void CDlgElementManEdit::SwitchQmode() {
  Enable({1626, 1627, 1628}, distanceMode_);
  Enable({1629, kAxis, 1631}, !distanceMode_);
}

// What follows from what is typed.

void CDlgElementManEdit::OnChangeEditQ() {
  if (distanceMode_) OrbitChanged();
}

void CDlgElementManEdit::OnChangeEditA() {
  if (!distanceMode_) OrbitChanged();
}

void CDlgElementManEdit::OnChangeEditE() { OrbitChanged(); }
void CDlgElementManEdit::OnChangeEditEpoch() { TimeChanged(); }
void CDlgElementManEdit::OnChangeEditT() { TimeChanged(); }

void CDlgElementManEdit::OrbitChanged() {
  if (isUpdating_) return;
  ElementInput input = Input();
  if (distanceMode_) {
    input.semiMajorAxis = PerihelionDistanceToAxis(input);
  } else {
    input[ElementField::PerihelionDistance] = AxisToPerihelionDistance(input);
  }
  ShowDerived(input);
  ShowPeriod(input);
  TimeChanged();
}

/// An orbit for which there is no M or T is let be while the user types; OK tells what is wrong.
void CDlgElementManEdit::TimeChanged() {
  if (isUpdating_) return;
  ElementInput input = Input();
  if (timeMode_) {
    TToEpoch(input);
  } else {
    EpochToT(input);
  }
  ShowDerived(input);
}

void CDlgElementManEdit::OnClickedEditDistMode() {
  distanceMode_ = IsChecked(kDistanceRadio);
  SwitchQmode();
}

void CDlgElementManEdit::OnClickedEditTimeMode() {
  timeMode_ = IsChecked(kPerihelionRadio);
  SwitchTmode();
}

ElementInput CDlgElementManEdit::Input() const {
  ElementInput input;
  input.isComet = kindLetter_ == 'C';
  input.distanceMode = distanceMode_;
  input.timeMode = timeMode_;
  for (const EditorField& row : kEditorFields) input[row.field] = EditText(row.control);
  input.semiMajorAxis = EditText(kAxis);
  input.meanAnomaly = EditText(kMeanAnomaly);
  return input;
}

void CDlgElementManEdit::ShowDerived(const ElementInput& input) {
  const QScopedValueRollback guard(isUpdating_, true);
  for (const ElementField field : {ElementField::PerihelionYear, ElementField::PerihelionMonth,
                                   ElementField::PerihelionDay, ElementField::PerihelionDistance}) {
    ShowText(ControlOf(field), input[field]);
  }
  ShowText(kAxis, input.semiMajorAxis);
  ShowText(kMeanAnomaly, input.meanAnomaly);
}

/// A derived text that is too long is not shown: cut, it would be another number.
void CDlgElementManEdit::ShowText(int id, const QString& text) {
  QLineEdit* edit = Edit(id);
  if (edit->text() != text) edit->setText(text.size() <= edit->maxLength() ? text : QString());
}

void CDlgElementManEdit::ShowPeriod(const ElementInput& input) {
  static_cast<CVynStatic*>(GetDlgItem(kPeriod))->setText(GetPeriodString(input));
}

// Pages.

void CDlgElementManEdit::OnEditAddPage() {
  if (!MakeElmRecord()) return;
  QByteArray added = TemplateRecord(kindLetter_, QDateTime::currentDateTimeUtc().date().year());
  CopySharedFields(pages_[0], added);
  pages_.push_back(added);
  page_ = LastPage();
  FillPageList();
  SetElmPage();
}

void CDlgElementManEdit::OnEditDelPage() {
  if (LastPage() == 0) {
    MsgBox(kLastPageStays);
    return;
  }
  pages_.erase(pages_.begin() + page_);
  // The first page is the one that tells the kind.
  pages_[0][0] = kindLetter_;
  page_ = std::min(page_, LastPage());
  FillPageList();
  SetElmPage();
}

void CDlgElementManEdit::OnSelchangeEditPage() {
  const int chosen = PageList()->currentRow();
  if (chosen < 0 || chosen == page_) return;
  if (MakeElmRecord()) {
    page_ = chosen;
    SetElmPage();
  } else {
    PageList()->setCurrentRow(page_);
  }
}

// Storing.

bool CDlgElementManEdit::MakeElmRecord() {
  const auto isTaken = [this](const QString& identifier) { return IDAlreadyExists(identifier); };
  if (const auto problem = StorePage(Input(), Page(), isTaken)) {
    ShowInformation(problem->message);
    FocusField(problem->control);
    return false;
  }
  for (QByteArray& other : pages_) {
    if (&other != &Page()) CopySharedFields(Page(), other);
  }
  return true;
}

bool CDlgElementManEdit::IDAlreadyExists(const QString& identifier) {
  const auto loaded = ReadDataPointers(GetDataPtr());
  return loaded && IsIdentifierLoaded(*loaded, identifier, objectNumber_);
}

QString CDlgElementManEdit::GetDataPtr() {
  if (!HasCorVyn()) return {};
  return GetString(kindLetter_ == 'C' ? u"Solar.comet.DataPtr"_s : u"Solar.minorplanet.DataPtr"_s);
}

void CDlgElementManEdit::OnOK() {
  if (MakeElmRecord()) CVynDialog::OnOK();
}

void CDlgElementManEdit::MsgBox(int stringId) { ShowInformation(LoadString(stringId)); }

void CDlgElementManEdit::FocusField(int id) {
  Edit(id)->setFocus(Qt::OtherFocusReason);
  Edit(id)->selectAll();
}

QLineEdit* CDlgElementManEdit::Edit(int id) const {
  return static_cast<QLineEdit*>(GetDlgItem(id));
}

QListWidget* CDlgElementManEdit::PageList() const {
  return static_cast<QListWidget*>(GetDlgItem(kPages));
}

}  // namespace vyn
