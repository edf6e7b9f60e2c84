#include "image_data/image_data_dialog.h"

#include "image_data/image_file_types.h"
#include "resources/string_table.h"
#include "siblings/controls/preview.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kFileEdit = 11111;
constexpr int kMissingFileText = 13477;

}  // namespace

CImageDataDialog::~CImageDataDialog() = default;

/// A message about the first image waits until the dialog is seen.
bool CImageDataDialog::OnInitDialog() {
  CDataSetDialog::OnInitDialog();
  QMetaObject::invokeMethod(this, &CImageDataDialog::Repaint, Qt::QueuedConnection);
  return true;
}

void CImageDataDialog::AttachControls() {
  CDataSetDialog::AttachControls();
  OnClicked({11112}, &CImageDataDialog::OnBnClickedBtnTexFile);
  OnClicked({11142}, &CImageDataDialog::OnBnClickedBtnSendDate);
  OnClicked({11161}, &CImageDataDialog::OnBnClickedBtnPlnCenter);
  preview_.Attach(
      Preview(), [this] { return record_.imagePath; },
      [this] { return static_cast<const Placement&>(record_); });
  connect(Preview(), &CVynPreview::pressed, this, &CImageDataDialog::OnLButtonDown);
  connect(Preview(), &CVynPreview::moved, this, &CImageDataDialog::OnMouseMove);
  connect(Preview(), &CVynPreview::released, this,
          [this](QPoint, Qt::MouseButton button) { OnLButtonUp(button); });
}

void CImageDataDialog::DoDataExchange(CDataExchange& exchange) {
  CDataSetDialog::DoDataExchange(exchange);
  exchange.Text(kFileEdit, record_.imagePath);
}

/// After a failure the path goes back to the image that is still there. It does so before the
/// message, under which the preview may have to be painted.
void CImageDataDialog::Repaint() {
  const QString path = record_.imagePath;
  const ImageLoading loading = preview_.Load(path);
  if (loading != ImageLoading::Done) {
    record_.imagePath = preview_.LoadedPath();
    Push();
    UpdateStatus();
    const bool isMissing = loading == ImageLoading::Missing;
    ShowInformation(FilledString(isMissing ? kMissingFileText : kUnknownImageText, {path}));
  }
  preview_.Repaint();
}

void CImageDataDialog::UpdatePlacement(const CorVynTransfer& transfer, const QString& path) {
  transfer.UpdateCorVyn(path, u"offset.x", record_.offsetX);
  transfer.UpdateCorVyn(path, u"offset.y", record_.offsetY);
  transfer.UpdateCorVyn(path, u"radius", record_.radius);
  transfer.UpdateCorVyn(path, u"roll", record_.rollDeg);
  if (!transfer.IsSending()) ClampGroup(PlacementFields(), FieldGroup::Roll, record_);
}

void CImageDataDialog::EnableImageGroups(int last) {
  Enable({11120, 11167, 11121, 11122, 11123, 11168, 11124, 11125, 11169, 11170, 11126, 11127, 11128,
          11171, 11129, 11130, 11172},
         HasImage());
  for (int id = 11140; id <= last; ++id) Enable(id, HasImage());
  constexpr int kRollUnit = 11173;
  Enable(kRollUnit, HasImage());
}

void CImageDataDialog::OnBnClickedBtnSendDate() {
  Pull();
  const QString wholeSecond = QString::number(static_cast<int>(record_.second));
  Send(TimeAssignment(record_, wholeSecond) + u"; show sky");
}

void CImageDataDialog::OnBnClickedBtnTexFile() {
  Pull();
  if (!AskImagePath()) return;
  Push();
  SendSet();
  UpdateStatus();
  Repaint();
}

void CImageDataDialog::OnLButtonDown(QPoint point, Qt::MouseButton button) {
  if (button != Qt::LeftButton || !preview_.BeginDrag(point)) return;
  preview_.UpdateCursor(point);
}

void CImageDataDialog::OnMouseMove(QPoint point) {
  preview_.UpdateCursor(point);
  if (!preview_.IsDragging()) return;
  // Before the edits, which round, are read: the handle was grabbed where the overlay is drawn.
  const Placement dragged = preview_.Drag(point);
  Pull();
  static_cast<Placement&>(record_) = dragged;
  Push();
  preview_.RepaintNow();
  SendSet();
}

void CImageDataDialog::OnLButtonUp(Qt::MouseButton button) {
  if (button == Qt::LeftButton && preview_.IsDragging()) preview_.EndDrag();
}

}  // namespace vyn
