#include "image_data/data_set_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QSignalBlocker>

#include "core_link/reply.h"
#include "core_link/statement.h"
#include "siblings/controls/preview.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kPreview = 11100;

class WaitCursor {
 public:
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
  Q_DISABLE_COPY_MOVE(WaitCursor)
};

std::vector<NumberField> Joined(std::initializer_list<std::span<const NumberField>> parts) {
  std::vector<NumberField> fields;
  for (const auto& part : parts) fields.insert(fields.end(), part.begin(), part.end());
  return fields;
}

}  // namespace

CDataSetDialog::CDataSetDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
                               const QString& registryKey,
                               std::initializer_list<std::span<const NumberField>> fields,
                               QWidget* parent)
    : CVynDialog(commandHandle, secondHandle, templateNumber, registryKey, parent),
      fields_(Joined(fields)) {}

CDataSetDialog::~CDataSetDialog() = default;

// Opening and closing.

bool CDataSetDialog::OnInitDialog() {
  record_ = {};
  CVynDialog::OnInitDialog();
  Push();
  return true;
}

void CDataSetDialog::AttachControls() {
  CVynDialog::AttachControls();
  for (const NumberField& field : fields_) AttachNumber(field);
}

/// What is typed as altitude waits for the next change of something else.
void CDataSetDialog::AttachNumber(const NumberField& field) {
  OnSpin(field.spin, [this, &field](int delta) { OnDeltaposSpn(field, delta); });
  if (field.group == FieldGroup::Altitude) return;
  OnTextChanged(field.edit, [this, &field] { OnEnChange(field); });
  connect(static_cast<QLineEdit*>(GetDlgItem(field.edit)), &QLineEdit::editingFinished, this,
          &CDataSetDialog::FinishTyping);
}

void CDataSetDialog::DoDataExchange(CDataExchange& exchange) {
  for (const NumberField& field : fields_) {
    if (!exchange.Saving() && KeepsItsText(field)) continue;
    QString text = field.Text(record_);
    exchange.Text(field.edit, text);
    if (exchange.Saving()) field.SetText(record_, text);
  }
}

void CDataSetDialog::OnOK() {
  Pull();
  SaveData();
  CVynDialog::OnOK();
}

void CDataSetDialog::OnCancel() {
  PlayStatus();
  CVynDialog::OnCancel();
}

// Numbers.

void CDataSetDialog::OnEnChange(const NumberField& field) {
  Pull();
  unfinished_ = field.Value(record_) < field.minimum ? &field : nullptr;
  typed_ = &field;
  ClampTyped(field);
  Push();
  OnNumberTyped(field);
  typed_ = nullptr;
}

/// Who types "0.2" must not find "0.000" after the first key: the text stays as long as it means
/// the value, and also while it is below its range, which what is typed next may mend.
bool CDataSetDialog::KeepsItsText(const NumberField& field) const {
  if (&field != typed_) return false;
  DataSetRecord shown = record_;
  field.SetText(shown, EditText(field.edit));
  return &field == unfinished_ || field.Text(shown) == field.Text(record_);
}

void CDataSetDialog::ClampTyped(const NumberField& field) {
  ClampGroup(fields_, field.group, record_);
  if (field.group == FieldGroup::Site) ClampGroup(fields_, FieldGroup::Altitude, record_);
  if (field.group == FieldGroup::Date) FixDay(record_);
}

void CDataSetDialog::OnNumberTyped(const NumberField& field) {
  if (field.group == FieldGroup::Magnification) return ChangeDiskMag();
  SendSet();
  Repaint();
}

void CDataSetDialog::OnDeltaposSpn(const NumberField& field, int delta) {
  Pull();
  field.Step(record_, delta);
  FixDay(record_);
  Push();
  OnNumberStepped(field);
}

void CDataSetDialog::OnNumberStepped(const NumberField& field) {
  if (field.group == FieldGroup::Magnification) ChangeDiskMag();
  SendSet();
  Repaint();
}

void CDataSetDialog::FinishTyping() {
  if (unfinished_ == nullptr) return;
  Pull();
  Push();
}

void CDataSetDialog::Pull() {
  UpdateData(true);
  if (unfinished_ != nullptr) {
    unfinished_->SetValue(record_, unfinished_->Clamped(unfinished_->Value(record_)));
  }
}

void CDataSetDialog::Push() {
  if (typed_ == nullptr) unfinished_ = nullptr;
  UpdateData(false);
}

// The core engine.

QString CDataSetDialog::Send(const QString& command) {
  return HasCorVyn() ? Doit(command) : QString();
}

QString CDataSetDialog::Ask(const QString& path) { return Send(statement::Query(path)); }
int CDataSetDialog::AskInt(const QString& path) { return reply::ToInt(Ask(path)); }
double CDataSetDialog::AskDouble(const QString& path) { return FiniteNumber(Ask(path)); }

CorVynTransfer CDataSetDialog::Transfer(TransferDirection direction) {
  return {[this](const QString& command) { return Send(command); }, direction};
}

void CDataSetDialog::UpdateCorVyn(TransferDirection direction) {
  Pull();
  TransferMembers(Transfer(direction));
  if (direction == TransferDirection::Send) {
    Send(u"show sky"_s);
  } else {
    Push();
  }
}

ObservationTime CDataSetDialog::AskTime() {
  ObservationTime time;
  time.year = AskInt(u"Time.Year"_s);
  time.month = AskInt(u"Time.Month"_s);
  time.day = AskInt(u"Time.Day"_s);
  time.hour = AskInt(u"Time.Hour"_s);
  time.minute = AskInt(u"Time.Minute"_s);
  time.second = AskInt(u"Time.Second"_s);
  return time;
}

void CDataSetDialog::MakeStatus() {
  const WaitCursor wait;
  Send(u"Init Status.#5"_s);
  Send(u"Make Status.#5"_s);
}

void CDataSetDialog::PlayStatus() {
  const WaitCursor wait;
  Send(Ask(u"Status.#5.Object"_s));
}

void CDataSetDialog::ChangeDiskMag() {
  Send(BodyPath() + ".Disk.Multiplier = "_L1 + QString::number(record_.diskMultiplier));
  Send(u"Show Sky"_s);
}

void CDataSetDialog::ChangeViewCenter() {
  Send("View.Center = "_L1 + BodyPath());
  Send(u"Show Sky"_s);
}

// Controls.

int CDataSetDialog::SelectedRow(int listId) const {
  const QModelIndexList rows = List(listId)->selectionModel()->selectedIndexes();
  return rows.isEmpty() ? -1 : rows.first().row();
}

void CDataSetDialog::SelectRow(int listId, int row) {
  const QSignalBlocker blocker(List(listId));
  List(listId)->setCurrentRow(row);
}

QListWidget* CDataSetDialog::List(int id) const {
  return static_cast<QListWidget*>(GetDlgItem(id));
}

CVynPreview* CDataSetDialog::Preview() const {
  return static_cast<CVynPreview*>(GetDlgItem(kPreview));
}

void CDataSetDialog::ConnectSelection(int id, const std::function<void()>& handler) {
  QWidget* control = GetDlgItem(id);
  if (auto* combo = qobject_cast<QComboBox*>(control)) {
    connect(combo, &QComboBox::currentIndexChanged, this, handler);
  } else {
    connect(List(id), &QListWidget::itemSelectionChanged, this, handler);
  }
}

void CDataSetDialog::OnBnClickedChkVisible() {
  SendSet();
  UpdateStatus();
  Repaint();
}

}  // namespace vyn
