#include "image_data/taken_image_dialog.h"

#include <algorithm>
#include <array>

#include <QListWidget>

#include "core_link/reply.h"
#include "image_data/taken_image_new_dialog.h"
#include "resources/dialog_template.h"
#include "resources/string_table.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kImageList = 11085, kImageCheck = 11103, kLayerCheck = 11108, kActiveCheck = 11114;

constexpr std::array kBodies{
    ImagedBody{u"火星", u"solar.planet.mars"},
    ImagedBody{u"木星", u"solar.planet.jupiter"},
    ImagedBody{u"太陽", u"solar.sun"},
};

/// As they are spelled before an image is added.
constexpr TimePaths kTimePathsToAdd{u"time.year", u"time.month",  u"time.day",
                                    u"time.hour", u"time.Minute", u"time.second"};

QString Member(const QString& path, int number) { return path + ".#"_L1 + QString::number(number); }

/// What stands behind the last backslash; the whole path where there is none.
QString FileName(const QString& path) { return path.section(u'\\', -1); }

CalendarDate AsShown(const ObservationTime& time) {
  return {time.year, time.month, time.day, time.hour, time.minute, time.second, kJstHours};
}

}  // namespace

CDlgTakenImg::CDlgTakenImg(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CBodyImageDialog(commandHandle, secondHandle, 13013, LoadString(13365), kBodies,
                       {DateFields(), PlacementFields(), TakenImageFields()}, parent) {}

CDlgTakenImg::CDlgTakenImg(QWidget* parent) : CDlgTakenImg(nullptr, nullptr, parent) {}

bool CDlgTakenImg::OnInitDialog() {
  CBodyImageDialog::OnInitDialog();
  UpdateDataSetLst();
  AskTime();
  ReadSet();
  AskDiskMultipliers();
  TakeDiskMultiplier();
  Push();
  UpdateStatus();
  MakeStatus();
  return true;
}

void CDlgTakenImg::AttachControls() {
  CBodyImageDialog::AttachControls();
  OnSelected(kImageList, &CDlgTakenImg::OnSelectData);
  OnClicked({11086}, &CDlgTakenImg::OnBnClickedPtxBtnAdd);
  OnClicked({11087}, &CDlgTakenImg::OnBnClickedPtxBtnDel);
  OnClicked({kImageCheck, kLayerCheck}, &CDlgTakenImg::OnBnClickedChkVisible);
  OnClicked({kActiveCheck}, &CDlgTakenImg::OnBnClickedChkActive);
}

void CDlgTakenImg::DoDataExchange(CDataExchange& exchange) {
  CBodyImageDialog::DoDataExchange(exchange);
  exchange.Check(kLayerCheck, record_.layerVisible);
  exchange.Check(kImageCheck, record_.setVisible);
  exchange.Check(kActiveCheck, record_.isActive);
}

void CDlgTakenImg::TransferMembers(const CorVynTransfer& transfer) {
  if (GetObjNo() < 0) return;
  transfer.UpdateCorVynBool(LayerPath(), u"visible", record_.layerVisible);
  transfer.UpdateCorVyn(LayerPath(), u"brightness", record_.layerBrightness);
  const int row = SelectedRow(kImageList);
  if (row < 0) return;
  const QString path = LayerPath() + ".#"_L1 + LabelOfRow(row);
  transfer.UpdateCorVynBool(path, u"visible", record_.setVisible);
  transfer.UpdateCorVyn(path, u"brightness", record_.setBrightness);
  transfer.UpdateCorVynFile(path, u"imagefile", record_.imagePath);
  transfer.UpdateCorVynDate(path, u"time", record_);
  UpdatePlacement(transfer, path);
  if (!transfer.IsSending()) transfer.UpdateCorVyn(path, u"range", record_.range);
}

void CDlgTakenImg::UpdateStatus() {
  Enable({11103, 11104, 11105, 11106, 11114}, HasImage());
  EnableImageGroups(11158);
}

// The list of images.

void CDlgTakenImg::UpdateDataSetLst() {
  {
    const QSignalBlocker blocker(List(kImageList));
    List(kImageList)->clear();
  }
  const int count = AskInt(LayerPath() + u".count");
  for (int number = 1; number <= count; ++number) {
    const QString path = Member(LayerPath(), number);
    const QString imagePath = Ask(path + u".imagefile");
    const QString label = Ask(path + u".Label");
    const CalendarDate moment = DateInZone(AskDouble(path + u".time"), 0.0);
    AddRow(MakeTitle(moment, true, imagePath), LabelToNo(label, number));
  }
}

void CDlgTakenImg::AddRow(const QString& title, int labelNumber) {
  auto* row = new QListWidgetItem(title, List(kImageList));
  row->setData(Qt::UserRole, labelNumber);
}

/// An image without a label is called by its number.
int CDlgTakenImg::LabelToNo(const QString& label, int number) {
  return label.isEmpty() ? number : labels_.LabelToNo(label);
}

QString CDlgTakenImg::LabelOfRow(int row) const {
  return labels_.NoToLabel(List(kImageList)->item(row)->data(Qt::UserRole).toInt());
}

QString CDlgTakenImg::MakeTitle(const CalendarDate& moment, bool isGiven,
                                const QString& imagePath) {
  const CalendarDate shown =
      isGiven ? ChangeTimezone(moment, AskDouble(u"time.timezone"_s)) : AsShown(record_);
  return PlainDateText(shown) + " <"_L1 + FileName(imagePath) + u'>';
}

void CDlgTakenImg::OnCbnSelchangeCmbObj() {
  UpdateDataSetLst();
  TakeDiskMultiplier();
  Push();
  OnSelectData();
}

void CDlgTakenImg::OnSelectData() {
  ReadSet();
  const int row = SelectedRow(kImageList);
  record_.isActive = 0;
  if (row >= 0) {
    const QString label = LabelOfRow(row);
    record_.imagePath = Ask(LayerPath() + ".#"_L1 + label + ".imagefile"_L1);
    const QString active = Ask(BodyPath() + u".TakenImage.Active");
    record_.isActive = active.compare(label, Qt::CaseInsensitive) == 0;
  } else {
    record_.imagePath.clear();
  }
  Push();
  UpdateStatus();
  Repaint();
}

/// What was chosen is sent before the new image is read, or it would be lost to the reading.
void CDlgTakenImg::OnBnClickedPtxBtnAdd() {
  Pull();
  CDlgTakenImgNew dialog(this);
  dialog.SetTime(AskTime(kTimePathsToAdd));
  if (dialog.DoModal() != kOkButton) return;
  record_.imagePath = dialog.ImagePath();
  static_cast<ObservationTime&>(record_) = dialog.Time();
  Send(BodyPath() + u".TakenImage.Add()");
  const int number = List(kImageList)->count() + 1;
  const QString label = Ask(Member(LayerPath(), number) + u".Label");
  AddRow(MakeTitle({}, false, record_.imagePath), LabelToNo(label, number));
  SelectRow(kImageList, number - 1);
  Push();
  SendSet();
  OnSelectData();
}

void CDlgTakenImg::OnBnClickedPtxBtnDel() {
  const int row = SelectedRow(kImageList);
  if (row < 0) return;
  Send(BodyPath() + ".TakenImage.Delete("_L1 + LabelOfRow(row) + u')');
  {
    const QSignalBlocker blocker(List(kImageList));
    delete List(kImageList)->takeItem(row);
  }
  SelectRow(kImageList, std::min(row, List(kImageList)->count() - 1));
  OnSelectData();
}

/// An image that is no longer to be the active one is not told so: another takes its place.
void CDlgTakenImg::OnBnClickedChkActive() {
  Pull();
  const int row = SelectedRow(kImageList);
  if (record_.isActive != 0 && row >= 0) SetActive(row);
}

void CDlgTakenImg::SetActive(int row) {
  Send(BodyPath() + ".TakenImage.Active = "_L1 + LabelOfRow(row));
}

// Closing.

/// Of every body, since the user may have gone from one to the next.
void CDlgTakenImg::SaveData() {
  for (const ImagedBody& body : Bodies()) SaveImagesOf(body);
}

void CDlgTakenImg::SaveImagesOf(const ImagedBody& body) {
  const QString base = body.path + u".takenimage"_s;
  const QString prefix = body.path.toString().section(u'.', -1);
  QString folder = Ask(base + u".SavePath");
  if (folder.endsWith(u'\\')) folder.chop(1);
  const int count = AskInt(base + u".count");
  for (int number = 1; number <= count; ++number) {
    const QString path = Member(base, number);
    if (!Ask(path + u".file").isEmpty()) continue;
    const QString date = CompactDateText(DateInZone(AskDouble(path + u".time"), 0.0));
    Send(path + ".file = \""_L1 + folder + u'\\' + prefix + date + ".txt\""_L1);
  }
  Send(base + u".save()");
}

}  // namespace vyn
