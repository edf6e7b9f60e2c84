#include "image_data/data_set_dialog.h"

#include <algorithm>

#include <QComboBox>
#include <QListWidget>
#include <QSignalBlocker>

#include "core_link/reply.h"
#include "core_link/statement.h"
#include "core_link/wait_cursor.h"
#include "siblings/controls/preview.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kPreview = 11100;

}  // namespace

CDataSetDialog::CDataSetDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
                               const QString& registryKey,
                               std::initializer_list<std::span<const NumberField>> fields,
                               QWidget* parent)
    : CNumberDialog(commandHandle, secondHandle, templateNumber, registryKey, fields, parent) {}

CDataSetDialog::~CDataSetDialog() = default;

// Opening and closing.

bool CDataSetDialog::OnInitDialog() {
  record_ = {};
  return CNumberDialog::OnInitDialog();
}

void CDataSetDialog::OnOK() {
  Pull();
  SaveData();
  CNumberDialog::OnOK();
}

void CDataSetDialog::OnCancel() {
  PlayStatus();
  CNumberDialog::OnCancel();
}

// Numbers.

/// Those of a site, a shift and a spot are typed as one, and so are those of a time of day: a second
/// beyond 59.0 would keep a new hour from being sent.
void CDataSetDialog::ClampTyped(const NumberField& field) {
  switch (field.group) {
    case FieldGroup::Site:
      ClampGroup(fields_, FieldGroup::Altitude, record_);
      [[fallthrough]];
    case FieldGroup::Time:
    case FieldGroup::Offset:
    case FieldGroup::Spot:
      return ClampGroup(fields_, field.group, record_);
    default:
      CNumberDialog::ClampTyped(field);
  }
}

void CDataSetDialog::OnNumberTyped(const NumberField& field) {
  if (field.group == FieldGroup::Magnification) return ChangeDiskMag();
  SendSet();
  Repaint();
}

void CDataSetDialog::OnNumberStepped(const NumberField& field) {
  if (field.group == FieldGroup::Magnification) ChangeDiskMag();
  SendSet();
  Repaint();
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

ObservationTime CDataSetDialog::AskTime(const TimePaths& paths) {
  std::array<int, 6> parts{};
  std::ranges::transform(paths, parts.begin(),
                         [this](QStringView path) { return AskInt(path.toString()); });
  const auto [year, month, day, hour, minute, second] = parts;
  return {year, month, day, hour, minute, static_cast<double>(second)};
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
