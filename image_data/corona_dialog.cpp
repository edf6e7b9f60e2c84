#include "image_data/corona_dialog.h"

#include <QListWidget>

#include "core_link/number_text.h"
#include "resources/string_table.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kSetList = 11085, kLayerCheck = 11108, kSetCheck = 11103, kTitleEdit = 11117;
constexpr int kEastRadio = 11118, kWestRadio = 11119, kNorthRadio = 11135, kSouthRadio = 11136;
constexpr double kOpeningViewAngleDeg = 3.0;

const QString kBase = u"solar.sun.corona"_s;

QString SetPath(int number) { return kBase + ".#"_L1 + QString::number(number); }

}  // namespace

/// The settings are those of the planet textures: this dialog has no key of its own.
CDlgCorona::CDlgCorona(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CImageDataDialog(commandHandle, secondHandle, 13016, LoadString(13475),
                       {DateFields(), SiteFields(), PlacementFields(), CoronaFields()}, parent) {}

CDlgCorona::CDlgCorona(QWidget* parent) : CDlgCorona(nullptr, nullptr, parent) {}

bool CDlgCorona::OnInitDialog() {
  addedSets_ = 0;
  CImageDataDialog::OnInitDialog();
  UpdateDataSetLst();
  InitCorVyn();
  ReadSet();
  record_.viewAngleDeg = kOpeningViewAngleDeg;
  Push();
  UpdateStatus();
  MakeStatus();
  return true;
}

void CDlgCorona::AttachControls() {
  CImageDataDialog::AttachControls();
  OnSelected(kSetList, &CDlgCorona::OnSelectData);
  OnClicked({11086}, &CDlgCorona::OnBnClickedPtxBtnAdd);
  OnClicked({11087}, &CDlgCorona::OnBnClickedPtxBtnDel);
  OnClicked({kLayerCheck, kSetCheck}, &CDlgCorona::OnBnClickedChkVisible);
  OnClicked({kEastRadio, kWestRadio, kNorthRadio, kSouthRadio}, &CDlgCorona::OnEnChangeEdtLocation);
}

void CDlgCorona::DoDataExchange(CDataExchange& exchange) {
  CImageDataDialog::DoDataExchange(exchange);
  exchange.Check(kLayerCheck, record_.layerVisible);
  exchange.Check(kSetCheck, record_.setVisible);
  exchange.Text(kTitleEdit, record_.title);
  exchange.Radio(kEastRadio, record_.west);
  exchange.Radio(kNorthRadio, record_.south);
}

void CDlgCorona::TransferMembers(const CorVynTransfer& transfer) {
  DataSetRecord& r = record_;
  transfer.UpdateCorVynBool(kBase, u"visible", r.layerVisible);
  transfer.UpdateCorVyn(kBase, u"brightness", r.layerBrightness);
  const int row = SelectedRow(kSetList);
  if (row < 0) return;
  const QString path = SetPath(row + 1);
  transfer.UpdateCorVynBool(path, u"visible", r.setVisible);
  transfer.UpdateCorVyn(path, u"title", r.title);
  transfer.UpdateCorVynFile(path, u"imagefile", r.imagePath);
  transfer.UpdateCorVynDate(path, u"time", r);
  transfer.UpdateCorVynLngLat(path, u"location.longitude", r.west, r.longitudeDegrees,
                              r.longitudeMinutes, r.longitudeSeconds);
  transfer.UpdateCorVynLngLat(path, u"location.latitude", r.south, r.latitudeDegrees,
                              r.latitudeMinutes, r.latitudeSeconds);
  transfer.UpdateCorVynInt(path, u"location.Altitude", r.altitudeMeters);
  UpdatePlacement(transfer, path);
}

/// The site's controls are not among them and stay usable.
void CDlgCorona::UpdateStatus() { EnableImageGroups(11155); }

QString CDlgCorona::BodyPath() const { return u"Solar.Sun"_s; }

// The list of sets.

void CDlgCorona::UpdateDataSetLst() {
  QStringList titles;
  const int count = AskInt(kBase + u".count");
  for (int number = 1; number <= count; ++number) titles.append(RowTitle(number));
  List(kSetList)->clear();
  List(kSetList)->addItems(titles);
}

QString CDlgCorona::RowTitle(int number) {
  QString title = Ask(SetPath(number) + u".title");
  if (!title.isEmpty()) return title;
  const double jd = AskDouble(SetPath(number) + u".time");
  return PlainDateText(DateInZone(jd, AskDouble(u"time.timezone"_s)));
}

void CDlgCorona::OnSelectData() {
  ReadSet();
  const int row = SelectedRow(kSetList);
  if (row >= 0) record_.imagePath = Ask(SetPath(row + 1) + u'.' + u"imagefile");
  Push();
  UpdateStatus();
  Repaint();
}

/// The new row is called by the number of sets added while the dialog is open.
void CDlgCorona::OnBnClickedPtxBtnAdd() {
  Send(kBase + u".Add()");
  List(kSetList)->addItem(u"new"_s + QString::number(++addedSets_));
  SelectRow(kSetList, List(kSetList)->count() - 1);
  OnSelectData();
}

/// The row stays until the dialog is opened again, as it always has.
void CDlgCorona::OnBnClickedPtxBtnDel() {
  const int row = SelectedRow(kSetList);
  if (row >= 0) Send(kBase + ".Delete("_L1 + QString::number(row + 1) + u')');
}

// The view.

void CDlgCorona::ChangeViewAngle() {
  Send("View.Angle = "_L1 + SixDecimals(record_.viewAngleDeg));
  Send(u"Show Sky"_s);
}

/// The view is told twice to follow the Sun, in two spellings.
void CDlgCorona::OnBnClickedBtnPlnCenter() {
  Pull();
  Send(u"View.Coordinate = Ecliptic"_s);
  Send(u"View.Center.Track = TRUE"_s);
  Send(u"View.Center = Solar.Sun"_s);
  Send(u"View.Center.track = true"_s);
  ChangeViewAngle();
}

void CDlgCorona::OnBnClickedBtnSendDate() {
  Pull();
  const DataSetRecord& r = record_;
  Send(TimeAssignment(r, SixDecimals(r.second)) + u';');
  const double longitude =
      SignedDegrees(r.west, r.longitudeDegrees, r.longitudeMinutes, r.longitudeSeconds);
  const double latitude =
      SignedDegrees(r.south, r.latitudeDegrees, r.latitudeMinutes, r.latitudeSeconds);
  Send(u"location = location(%1, %2, %3); show sky"_s.arg(
      SixDecimals(longitude), SixDecimals(latitude), QString::number(r.altitudeMeters)));
}

// Numbers.

void CDlgCorona::OnNumberTyped(const NumberField& field) {
  if (field.group == FieldGroup::ViewAngle) ChangeViewAngle();
  CImageDataDialog::OnNumberTyped(field);
}

void CDlgCorona::OnNumberStepped(const NumberField& field) {
  if (field.group == FieldGroup::ViewAngle) ChangeViewAngle();
  CImageDataDialog::OnNumberStepped(field);
}

void CDlgCorona::OnEnChangeEdtLocation() {
  Pull();
  ClampGroup(SiteFields(), FieldGroup::Site, record_);
  ClampGroup(SiteFields(), FieldGroup::Altitude, record_);
  Push();
  SendSet();
  Repaint();
}

// Closing.

/// Sets of one year get one name; the core engine keeps them in one file.
void CDlgCorona::SaveData() {
  QString folder = Ask(kBase + u".SavePath");
  if (folder.endsWith(u'\\')) folder.chop(1);
  const int count = AskInt(kBase + u".count");
  for (int number = 1; number <= count; ++number) {
    if (!Ask(SetPath(number) + u".file").isEmpty()) continue;
    const int year = DateInZone(AskDouble(SetPath(number) + u".time"), 0.0).year;
    Send(SetPath(number) + ".file = "_L1 + folder + "\\corona"_L1 + QString::number(year) +
         ".txt"_L1);
  }
  Send(kBase + u".save()");
}

}  // namespace vyn
