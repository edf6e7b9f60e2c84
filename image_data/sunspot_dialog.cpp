#include "image_data/sunspot_dialog.h"

#include <algorithm>

#include <QListWidget>
#include <QPainter>

#include "core_link/number_text.h"
#include "core_link/reply.h"
#include "resources/string_table.h"
#include "siblings/controls/preview.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kSetList = 11089, kSpotList = 11099, kLayerCheck = 11108, kSetCheck = 11103;
constexpr int kCmEdit = 11101, kDeEdit = 11102;
constexpr int kNoSpot = -100;
constexpr int kNewSpotType = 2;

// The casing in which each command has always been sent.
const QString kLayer = u"Solar.Sun.Sunspot"_s;
const QString kAssigned = u"Solar.Sun.sunspot"_s;
const QString kAsked = u"solar.sun.sunspot"_s;
const QString kDeleted = u"Solar.sun.sunspot"_s;

QString Member(const QString& path, int number) { return path + ".#"_L1 + QString::number(number); }

QString DecimalText(double value) { return QString::number(value, 'f', 1); }

/// A list's selection after its row was deleted: the same place, else the last row.
int RowAfterDeletion(int row, int rows) { return std::min(row, rows - 1); }

}  // namespace

CDlgSunSpot::CDlgSunSpot(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CDataSetDialog(commandHandle, secondHandle, 13014, LoadString(13364),
                     {DateFields(), SunspotFields()}, parent),
      draggedSpot_(kNoSpot) {}

CDlgSunSpot::CDlgSunSpot(QWidget* parent) : CDlgSunSpot(nullptr, nullptr, parent) {}

bool CDlgSunSpot::OnInitDialog() {
  draggedSpot_ = kNoSpot;
  CDataSetDialog::OnInitDialog();
  UpdateDataSetLst();
  AskTime();
  record_.diskMultiplier = AskInt(u"Solar.Sun.Disk.Multiplier"_s);
  Push();
  ReadSet();
  MakeStatus();
  return true;
}

void CDlgSunSpot::AttachControls() {
  CDataSetDialog::AttachControls();
  OnSelected(kSetList, &CDlgSunSpot::OnSelectDataSet);
  OnSelected(kSpotList, &CDlgSunSpot::OnSelectSpot);
  OnClicked({11086}, &CDlgSunSpot::OnBnClickedPtxBtnAdd);
  OnClicked({11087}, &CDlgSunSpot::OnBnClickedPtxBtnDel);
  OnClicked({11088}, &CDlgSunSpot::OnBnClickedPtxBtnDelSpot);
  OnClicked({kLayerCheck, kSetCheck}, &CDlgSunSpot::OnBnClickedChkVisible);
  OnClicked({11142}, &CDlgSunSpot::OnBnClickedBtnSendDate);
  OnClicked({11161}, &CDlgSunSpot::ChangeViewCenter);
  // A spot that is dragged changes its row at every move; that must not measure all others.
  List(kSpotList)->setUniformItemSizes(true);
  AttachMouse();
}

void CDlgSunSpot::AttachMouse() {
  Preview()->SetPainter([this](QPainter& painter) { picture_.Paint(painter, SpotNumber() - 1); });
  connect(Preview(), &CVynPreview::pressed, this, [this](QPoint point, Qt::MouseButton button) {
    if (button == Qt::LeftButton) OnLButtonDown(point);
    if (button == Qt::RightButton) OnRButtonDown(point);
  });
  connect(Preview(), &CVynPreview::moved, this, &CDlgSunSpot::OnMouseMove);
  connect(Preview(), &CVynPreview::released, this, [this](QPoint, Qt::MouseButton button) {
    if (button == Qt::LeftButton) OnLButtonUp();
  });
}

void CDlgSunSpot::DoDataExchange(CDataExchange& exchange) {
  CDataSetDialog::DoDataExchange(exchange);
  exchange.Check(kLayerCheck, record_.layerVisible);
  exchange.Check(kSetCheck, record_.setVisible);
  if (exchange.Saving()) return;
  QString cm = DecimalText(record_.centralLongitudeDeg);
  QString de = DecimalText(record_.centralLatitudeDeg);
  exchange.Text(kCmEdit, cm);
  exchange.Text(kDeEdit, de);
}

QString CDlgSunSpot::BodyPath() const { return u"Solar.Sun"_s; }
int CDlgSunSpot::SetNumber() const { return SelectedRow(kSetList) + 1; }
int CDlgSunSpot::SpotNumber() const { return SelectedRow(kSpotList) + 1; }

void CDlgSunSpot::TransferMembers(const CorVynTransfer& transfer) {
  transfer.UpdateCorVynBool(kLayer, u"visible", record_.layerVisible);
  if (SetNumber() == 0) return;
  const QString path = Member(kAssigned, SetNumber());
  transfer.UpdateCorVynBool(path, u"visible", record_.setVisible);
  if (!transfer.IsSending()) {
    transfer.UpdateCorVyn(path, u"CM", record_.centralLongitudeDeg);
    transfer.UpdateCorVyn(path, u"De", record_.centralLatitudeDeg);
  }
  transfer.UpdateCorVynDate(path, u"jd", record_);
  if (SpotNumber() > 0) TransferSpot(transfer, Member(path, SpotNumber()));
}

void CDlgSunSpot::TransferSpot(const CorVynTransfer& transfer, const QString& path) {
  transfer.UpdateCorVyn(path, u"longitude", record_.spotLongitudeDeg);
  transfer.UpdateCorVyn(path, u"latitude", record_.spotLatitudeDeg);
  transfer.UpdateCorVynInt(path, u"type", record_.spotType);
}

void CDlgSunSpot::Repaint() { Preview()->update(); }

// The lists.

void CDlgSunSpot::UpdateDataSetLst() {
  QStringList titles;
  const int count = AskInt(kAsked + u".count");
  for (int number = 1; number <= count; ++number) titles.append(GetTitle(number));
  {
    const QSignalBlocker blocker(List(kSetList));
    List(kSetList)->clear();
    List(kSetList)->addItems(titles);
  }
  SelectRow(kSetList, 0);
  OnSelectDataSet();
}

QString CDlgSunSpot::GetTitle(int number) {
  return PaddedDateText(DateInZone(AskDouble(Member(kAsked, number) + u".jd"), kJstHours));
}

void CDlgSunSpot::OnSelectDataSet() {
  SelectRow(kSpotList, -1);
  ReadSet();
  UpdateSpotsLst();
  Repaint();
}

void CDlgSunSpot::OnSelectSpot() {
  ReadSet();
  Repaint();
}

QString CDlgSunSpot::SpotTitle(int number) const {
  const Sunspot& spot = picture_.Spots()[number - 1];
  return u"#%1:(%2, %3)"_s.arg(QString::number(number), SixDecimals(spot.longitudeDeg),
                               SixDecimals(spot.latitudeDeg));
}

/// The spots of the selected set; the selected row stays as far as it is there. The disk is drawn
/// for whole degrees of its orientation, which is how it is asked here. A drag ends, for the spot
/// held may be gone.
void CDlgSunSpot::UpdateSpotsLst() {
  draggedSpot_ = kNoSpot;
  std::vector<Sunspot>& spots = picture_.Spots();
  spots.clear();
  if (SetNumber() > 0) {
    const QString path = Member(kAsked, SetNumber());
    const int cm = AskInt(path + u".CM");
    const int de = AskInt(path + u".De");
    const int count = AskInt(path + u".count");
    for (int number = 1; number <= count; ++number) {
      const QString spot = Member(path, number);
      const double longitude = AskDouble(spot + u".longitude");
      const double latitude = AskDouble(spot + u".latitude");
      spots.push_back({longitude, latitude, AskInt(spot + u".type"), kNoPoint});
    }
    picture_.SetOrientation(Preview()->size(), cm, de);
  } else {
    picture_.SetOrientation(Preview()->size(), 0.0, 0.0);
  }
  UpdateSpotsLstTitle();
}

void CDlgSunSpot::UpdateSpotsLstTitle() {
  const int selectedRow = SelectedRow(kSpotList);
  QStringList titles;
  const int count = static_cast<int>(picture_.Spots().size());
  for (int number = 1; number <= count; ++number) titles.append(SpotTitle(number));
  {
    const QSignalBlocker blocker(List(kSpotList));
    List(kSpotList)->clear();
    List(kSpotList)->addItems(titles);
  }
  SelectRow(kSpotList, selectedRow < count ? selectedRow : -1);
}

void CDlgSunSpot::OnBnClickedPtxBtnAdd() {
  Send(kAssigned + u".Add()");
  const int row = List(kSetList)->count();
  {
    const QSignalBlocker blocker(List(kSetList));
    List(kSetList)->addItem(GetTitle(row + 1));
  }
  SelectRow(kSetList, row);
  OnSelectDataSet();
}

void CDlgSunSpot::OnBnClickedPtxBtnDel() {
  const int row = SelectedRow(kSetList);
  if (row < 0) return;
  Send(kDeleted + ".Delete("_L1 + QString::number(row + 1) + u')');
  {
    const QSignalBlocker blocker(List(kSetList));
    delete List(kSetList)->takeItem(row);
  }
  SelectRow(kSetList, RowAfterDeletion(row, List(kSetList)->count()));
  OnSelectDataSet();
}

void CDlgSunSpot::OnBnClickedPtxBtnDelSpot() {
  const int row = SelectedRow(kSpotList);
  if (row < 0) return;
  Send(Member(kDeleted, SetNumber()) + ".Delete("_L1 + QString::number(row + 1) + "); show sky"_L1);
  OnSelectDataSet();
  SelectRow(kSpotList, RowAfterDeletion(row, List(kSpotList)->count()));
  OnSelectSpot();
}

// Numbers.

/// Of date and time only year, month and day are put into their ranges; what is no time of day is
/// not sent. Beyond the poles a latitude comes only by its spin button.
void CDlgSunSpot::ClampTyped(const NumberField& field) {
  if (field.group == FieldGroup::Date || field.group == FieldGroup::Time) {
    ClampGroup(DateFields(), FieldGroup::Date, record_);
    return FixDay(record_);
  }
  CDataSetDialog::ClampTyped(field);
  if (field.group == FieldGroup::Spot) {
    record_.spotLatitudeDeg = std::clamp(record_.spotLatitudeDeg, -90.0, 90.0);
  }
}

void CDlgSunSpot::OnNumberTyped(const NumberField& field) {
  switch (field.group) {
    case FieldGroup::Date:
    case FieldGroup::Time:
      return OnEnChangeEdtDate();
    case FieldGroup::Spot:
      return OnEnChangeEdtLngLatType();
    default:
      return CDataSetDialog::OnNumberTyped(field);
  }
}

/// A new time moves the disk, and with it the spots on it.
void CDlgSunSpot::OnEnChangeEdtDate() {
  SendSet();
  ReadSet();
  UpdateSpotsLst();
  Preview()->repaint();
}

void CDlgSunSpot::OnEnChangeEdtLngLatType() {
  if (SetNumber() == 0 || SpotNumber() == 0) return;
  const CorVynTransfer transfer = Transfer(TransferDirection::Send);
  TransferSpot(transfer, Member(Member(kAssigned, SetNumber()), SpotNumber()));
  Send(u"show sky"_s);
  UpdateSpotsLst();
  Preview()->repaint();
}

void CDlgSunSpot::OnNumberStepped(const NumberField& field) {
  CDataSetDialog::OnNumberStepped(field);
  ReadOrientation();
  UpdateSpotsLst();
}

void CDlgSunSpot::ReadOrientation() {
  if (SetNumber() == 0) return;
  const CorVynTransfer transfer = Transfer(TransferDirection::Read);
  const QString path = Member(kAssigned, SetNumber());
  transfer.UpdateCorVyn(path, u"CM", record_.centralLongitudeDeg);
  transfer.UpdateCorVyn(path, u"De", record_.centralLatitudeDeg);
  Push();
}

void CDlgSunSpot::OnBnClickedBtnSendDate() {
  Pull();
  Send(TimeAssignment(record_, SixDecimals(record_.second)) + u"; show sky");
}

// The mouse.

bool CDlgSunSpot::IsDragging() const { return draggedSpot_ != kNoSpot; }

/// The command has no closing parenthesis and never had one.
void CDlgSunSpot::OnRButtonDown(QPoint point) {
  const auto place = picture_.Disk().GetSunLocation(point);
  if (!place || SetNumber() == 0) return;
  Send(Member(kAssigned, SetNumber()) + u".Add(%1, %2, %3"_s.arg(SixDecimals(place->longitudeDeg),
                                                                 SixDecimals(place->latitudeDeg),
                                                                 QString::number(kNewSpotType)));
  Send(u"show sky"_s);
  UpdateSpotsLst();
  Repaint();
}

void CDlgSunSpot::OnLButtonDown(QPoint point) {
  const int spot = picture_.SpotAt(point);
  if (spot < 0) return;
  draggedSpot_ = spot;
  grab_ = point - picture_.Spots()[spot].screenPoint;
}

void CDlgSunSpot::OnMouseMove(QPoint point) {
  if (!IsDragging()) return;
  Sunspot& spot = picture_.Spots()[draggedSpot_];
  spot.screenPoint = QPoint(std::clamp(point.x(), 0, Preview()->width()),
                            std::clamp(point.y(), 0, Preview()->height())) -
                     grab_;
  if (const auto place = picture_.Disk().GetSunLocation(spot.screenPoint)) {
    spot.longitudeDeg = place->longitudeDeg;
    spot.latitudeDeg = place->latitudeDeg;
    const CorVynTransfer transfer = Transfer(TransferDirection::Send);
    const QString path = Member(Member(kAssigned, SetNumber()), draggedSpot_ + 1);
    transfer.UpdateCorVyn(path, u"longitude", spot.longitudeDeg);
    transfer.UpdateCorVyn(path, u"latitude", spot.latitudeDeg);
    Send(u"show sky"_s);
    ShowDraggedSpot();
  }
  Repaint();
}

/// The numbers shown are those of the selected spot, which may be the one dragged.
void CDlgSunSpot::ShowDraggedSpot() {
  List(kSpotList)->item(draggedSpot_)->setText(SpotTitle(draggedSpot_ + 1));
  if (SpotNumber() != draggedSpot_ + 1) return;
  Pull();
  record_.spotLongitudeDeg = picture_.Spots()[draggedSpot_].longitudeDeg;
  record_.spotLatitudeDeg = picture_.Spots()[draggedSpot_].latitudeDeg;
  Push();
}

/// A spot let go off the disk is where it was on it last.
void CDlgSunSpot::OnLButtonUp() {
  if (!IsDragging()) return;
  draggedSpot_ = kNoSpot;
  picture_.RecalcSunSpotPt();
  Repaint();
}

// Closing.

void CDlgSunSpot::SaveData() {
  const QString base = u"solar.sun"_s + u".sunspot"_s;
  QString folder = Ask(base + u".SavePath");
  if (folder.endsWith(u'\\')) folder.chop(1);
  const int count = AskInt(base + u".count");
  for (int number = 1; number <= count; ++number) {
    const QString path = Member(base, number);
    if (!Ask(path + u".file").isEmpty()) continue;
    const QString name = CompactDateText(DateInZone(AskDouble(path + u".jd"), 0.0));
    Send(path + ".file = \""_L1 + folder + u'\\' + name + ".txt\""_L1);
  }
  Send(base + u".save()");
}

}  // namespace vyn
