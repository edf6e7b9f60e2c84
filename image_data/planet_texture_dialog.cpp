#include "image_data/planet_texture_dialog.h"

#include <algorithm>
#include <array>

#include <QComboBox>

#include "resources/string_table.h"
#include "siblings/registry/registry.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kLayerCombo = 11102, kVisibleCheck = 11103, kDefaultCheck = 11107;
constexpr int kLayers = 10;
constexpr int kSettingsKeyText = 13475;

constexpr std::array kBodies{
    ImagedBody{u"火星", u"solar.planet.mars"},
    ImagedBody{u"木星", u"solar.planet.jupiter"},
};

QString LayersOf(QStringView body) { return body + u".surface.#"_s; }

CRegistry Defaults() { return CRegistry(LoadString(kSettingsKeyText) + u"\\Default"); }

/// Keeps an assignment under its path; what is none is passed over.
void WriteDefault(const QString& command) {
  const qsizetype equals = command.indexOf(u'=');
  if (equals < 0) return;
  Defaults().Write(command.first(equals).trimmed(), command.sliced(equals + 1).trimmed());
}

}  // namespace

CDlgPlanetTex::CDlgPlanetTex(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CBodyImageDialog(commandHandle, secondHandle, 13012, LoadString(kSettingsKeyText), kBodies,
                       {DateFields(), PlacementFields(), TextureFields()}, parent) {}

CDlgPlanetTex::CDlgPlanetTex(QWidget* parent) : CDlgPlanetTex(nullptr, nullptr, parent) {}

void CDlgPlanetTex::SendDefaults(CCorVyn& corVyn) {
  const CRegistry defaults = Defaults();
  for (const QString& path : defaults.GetRegEnumValue()) {
    corVyn.Doit(path + " = "_L1 + defaults.Read(path));
  }
}

bool CDlgPlanetTex::OnInitDialog() {
  saveAsDefault_ = 0;
  CBodyImageDialog::OnInitDialog();
  InitCorVyn();
  ReadSet();
  AskDiskMultipliers();
  TakeDiskMultiplier();
  Push();
  UpdateStatus();
  MakeStatus();
  return true;
}

void CDlgPlanetTex::AttachControls() {
  CBodyImageDialog::AttachControls();
  auto* layers = static_cast<QComboBox*>(GetDlgItem(kLayerCombo));
  for (int layer = 1; layer <= kLayers; ++layer) layers->addItem(QString::number(layer));
  OnSelected(kLayerCombo, &CDlgPlanetTex::OnCbnSelchangeCmbObj);
  OnClicked({kVisibleCheck}, &CDlgPlanetTex::OnBnClickedChkVisible);
}

void CDlgPlanetTex::DoDataExchange(CDataExchange& exchange) {
  CBodyImageDialog::DoDataExchange(exchange);
  exchange.Check(kVisibleCheck, record_.setVisible);
  exchange.Check(kDefaultCheck, saveAsDefault_);
}

template <class Handle>
void CDlgPlanetTex::ForEachLayer(Handle handle) {
  for (const ImagedBody& body : Bodies()) {
    for (int layer = 1; layer <= kLayers; ++layer) {
      handle(LayersOf(body.path) + QString::number(layer));
    }
  }
}

/// Layers that are not used carry the present moment.
void CDlgPlanetTex::InitCorVyn() {
  static_cast<ObservationTime&>(record_) = AskTime();
  Push();
  const CorVynTransfer read = Transfer(TransferDirection::Read);
  const CorVynTransfer send = Transfer(TransferDirection::Send);
  ForEachLayer([&](const QString& path) {
    QString file;
    read.UpdateCorVynFile(path, u"file", file);
    if (!file.isEmpty()) return;
    send.UpdateCorVynDate(path, u"date", record_);
    send.UpdateCorVyn(path, u"brightness", record_.setBrightness);
    send.UpdateCorVyn(path, u"radius", record_.radius);
  });
}

void CDlgPlanetTex::TransferMembers(const CorVynTransfer& transfer) {
  const int layer = static_cast<const QComboBox*>(GetDlgItem(kLayerCombo))->currentIndex() + 1;
  if (GetObjNo() >= 0) TransferLayer(transfer, LayersOf(BodyPath()) + QString::number(layer));
}

void CDlgPlanetTex::TransferLayer(const CorVynTransfer& transfer, const QString& path) {
  QString type = u"disk"_s;
  transfer.UpdateCorVynBool(path, u"visible", record_.setVisible);
  transfer.UpdateCorVyn(path, u"brightness", record_.setBrightness);
  transfer.UpdateCorVyn(path, u"type", type);
  transfer.UpdateCorVynFile(path, u"file", record_.imagePath);
  transfer.UpdateCorVynDate(path, u"date", record_);
  UpdatePlacement(transfer, path);
  if (!transfer.IsSending()) transfer.UpdateCorVyn(path, u"range", record_.range);
}

void CDlgPlanetTex::UpdateStatus() {
  Enable({11104, 11105, 11106}, HasImage() && record_.setVisible != 0);
  EnableImageGroups(11158);
}

void CDlgPlanetTex::OnCbnSelchangeCmbObj() {
  ReadSet();
  TakeDiskMultiplier();
  Push();
  UpdateStatus();
  Repaint();
}

/// What was saved before, where it is about to be saved anew: a layer that has lost its image must
/// not come back.
void CDlgPlanetTex::ClearDefaultPlanetTex() {
  if (saveAsDefault_ == 0) return;
  CRegistry defaults = Defaults();
  for (const QString& name : defaults.GetRegEnumValue()) {
    const bool isLayer = std::ranges::any_of(Bodies(), [&name](const ImagedBody& body) {
      return name.startsWith(LayersOf(body.path), Qt::CaseInsensitive);
    });
    if (isLayer) defaults.DeleteValue(name);
  }
}

void CDlgPlanetTex::SaveData() {
  ClearDefaultPlanetTex();
  if (saveAsDefault_ == 0) return;
  const CorVynTransfer read = Transfer(TransferDirection::Read);
  QStringList commands;
  const CorVynTransfer capture(
      [&commands](const QString& command) {
        commands.append(command);
        return QString();
      },
      TransferDirection::Send);
  ForEachLayer([&](const QString& path) {
    TransferLayer(read, path);
    if (HasImage()) TransferLayer(capture, path);
  });
  for (const QString& command : commands) WriteDefault(command);
}

}  // namespace vyn
