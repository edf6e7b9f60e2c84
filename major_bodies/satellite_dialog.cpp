#include "major_bodies/satellite_dialog.h"

#include <algorithm>
#include <stdexcept>

#include "core_link/statement.h"
#include "core_link/window_message.h"
#include "resources/string_table.h"
#include "siblings/registry/registry.h"

namespace vyn {
namespace {

constexpr int kBodyListId = 1521, kSatelliteListId = 1507;
constexpr int kHeadingIds[] = {1501, 1502, 1503, 1504, 1505, 1506};

struct Body {
  QStringView path;
  QStringView label;
};

// clang-format off
constexpr Body kBodies[] = {
  {u"planet.mercury",       u"水星"},
  {u"planet.venus",         u"金星"},
  {u"planet.earth",         u"地球"},
  {u"planet.mars",          u"火星"},
  {u"planet.jupiter",       u"木星"},
  {u"planet.saturn",        u"土星"},
  {u"planet.uranus",        u"天王星"},
  {u"planet.neptune",       u"海王星"},
  {u"dwarfplanet.pluto",    u"冥王星"},
  {u"dwarfplanet.eris",     u"エリス"},
  {u"dwarfplanet.ceres",    u"セレス"},
  {u"dwarfplanet.makemake", u"マケマケ"},
  {u"dwarfplanet.haumea",   u"ハウメア"},
};
// clang-format on

const QString kSelectionName = QStringLiteral("PlanetListSel");

/// Registered once, when the library is loaded.
const QEvent::Type kChangedMessage =
    RegisterWindowMessage(QStringLiteral("SatelliteCheckListChangedMessage"));

QString SatellitePath(QStringView bodyPath, int number) {
  if (bodyPath == u"planet.earth" && number == 1) return QStringLiteral("Solar.moon");
  return u"Solar." + bodyPath.toString() + u".Satellite.no" + QString::number(number);
}

/// The Moon under its number, whose number switch is kept apart.
bool IsNumberedMoon(const QString& path) {
  return path.compare(u"Solar.Planet.Earth.Satellite.no1", Qt::CaseInsensitive) == 0;
}

}  // namespace

CDlgSat::CDlgSat(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CVynLiveDialog(commandHandle, secondHandle, 13003, LoadString(13361), parent) {}

CDlgSat::CDlgSat(QWidget* parent) : CDlgSat(nullptr, nullptr, parent) {}

void CDlgSat::AttachControls() {
  CVynLiveDialog::AttachControls();
  bodyList_ = static_cast<CVynListBox*>(GetDlgItem(kBodyListId));
  satelliteList_ = static_cast<CSatelliteListBox*>(GetDlgItem(kSatelliteListId));
  OnClicked({1509}, &CDlgSat::OnDspSatelliteBtnViewOn);
  OnClicked({1510}, &CDlgSat::OnDspSatelliteBtnViewOff);
  OnClicked({1511}, &CDlgSat::OnDspSatelliteBtnNameOn);
  OnClicked({1512}, &CDlgSat::OnDspSatelliteBtnNameOff);
  OnClicked({1513}, &CDlgSat::OnDspSatelliteBtnJp);
  OnClicked({1514}, &CDlgSat::OnDspSatelliteBtnEn);
  OnClicked({1515}, &CDlgSat::OnDspSatelliteBtnNumOn);
  OnClicked({1516}, &CDlgSat::OnDspSatelliteBtnNumOff);
  OnClicked({1517}, &CDlgSat::OnDspSatelliteBtnOrbitOn);
  OnClicked({1518}, &CDlgSat::OnDspSatelliteBtnOrbitOff);
  AttachColorButton(1519, &CDlgSat::OnBtnColor);
}

void CDlgSat::Init() {
  ReadSatellites();
  FillBodyList();
  std::array<QWidget*, kSatelliteToggleCount> headings;
  std::ranges::transform(kHeadingIds, headings.begin(), [this](int id) { return GetDlgItem(id); });
  satelliteList_->Attach(this, &records_, kChangedMessage, fontMetrics().averageCharWidth(),
                         headings);
  SetSatelliteListBoxItem();
  connect(bodyList_, &QListWidget::currentRowChanged, this, &CDlgSat::OnCheckChangeListPlanet);
}

void CDlgSat::ReadSatellites() {
  const int total = GetInt(QStringLiteral("solar.planet.satellite.count"));
  records_.clear();
  paths_.clear();
  satelliteCounts_.clear();
  for (int body = 0; body < static_cast<int>(std::size(kBodies)); ++body) {
    const QStringView bodyPath = kBodies[body].path;
    const int count = GetInt(QString(u"solar." + bodyPath + u".satellite.count"));
    satelliteCounts_.push_back(count);
    for (int number = 1; number <= count; ++number) {
      if (std::ssize(records_) >= total)
        throw std::invalid_argument("more satellites than counted");
      paths_.push_back(SatellitePath(bodyPath, number));
      records_.push_back(ReadSatellite(body, paths_.back()));
    }
  }
}

CCheckSatellite CDlgSat::ReadSatellite(int body, const QString& path) {
  CCheckSatellite record;
  record.name = GetString(path + u".name");
  record.numberText = kBodies[body].label + GetString(path + u".number");
  record.shown = IsExactlyTrue(path + u".Visible");
  const bool japanese = IsExactlyTrue(path + u".JapaneseName.Visible");
  const bool english = IsExactlyTrue(path + u".EnglishName.Visible");
  record.nameShown = japanese || english;
  record.japanese = !english;
  record.numberShown = IsExactlyTrue(path + u".Number.Visible");
  record.orbitShown = IsExactlyTrue(path + u".Orbit.Visible");
  if (IsNumberedMoon(path)) record.numberShown = moonNumberShown_;
  return record;
}

/// Unlike everywhere else a reply counts as true in capitals only.
bool CDlgSat::IsExactlyTrue(const QString& path) { return GetString(path) == u"TRUE"; }

void CDlgSat::FillBodyList() {
  bodyList_->clear();
  bodyList_->addItem(QStringLiteral("すべて"));
  bodyOfRow_.clear();
  for (int body = 0; body < static_cast<int>(std::size(kBodies)); ++body) {
    if (satelliteCounts_[body] <= 0) continue;
    bodyList_->addItem(kBodies[body].label.toString());
    bodyOfRow_.push_back(body);
  }
  const int stored = CRegistry(RegistryKey()).Read(kSelectionName, 0);
  bodyList_->setCurrentRow(stored >= 0 && stored < bodyList_->count() ? stored : 0);
}

void CDlgSat::SetSatelliteListBoxItem() {
  const int row = bodyList_->currentRow();
  const int selectedBody = row > 0 ? bodyOfRow_[row - 1] : -1;
  std::vector<int> rows;
  int record = 0;
  for (int body = 0; body < static_cast<int>(std::size(kBodies)); ++body) {
    for (int i = 0; i < satelliteCounts_[body]; ++i, ++record) {
      if (selectedBody < 0 || selectedBody == body) rows.push_back(record);
    }
  }
  satelliteList_->SetRows(rows);
}

void CDlgSat::WriteScript(QString& out) {
  for (size_t i = 0; i < records_.size(); ++i) {
    const CCheckSatellite& record = records_[i];
    const QString& path = paths_[i];
    const auto write = [&](QStringView property, bool on) {
      out += path + property + (on ? u" = TRUE;" : u" = FALSE;");
    };
    write(u".Visible", record.shown);
    write(u".Name.Visible", record.nameShown);
    // The language in force is written first.
    const bool english = record.nameShown && !record.japanese;
    if (english) write(u".EnglishName.Visible", true);
    write(u".JapaneseName.Visible", record.nameShown && record.japanese);
    if (!english) write(u".EnglishName.Visible", false);
    write(u".Number.Visible", record.numberShown);
    write(u".Orbit.Visible", record.orbitShown);
    if (IsNumberedMoon(path)) moonNumberShown_ = record.numberShown;
  }
}

void CDlgSat::SetInView(int CCheckSatellite::*field, int value) {
  for (int row = 0; row < satelliteList_->RowCount(); ++row) {
    satelliteList_->RecordOfRow(row).*field = value;
  }
  satelliteList_->viewport()->update();
  Apply();
}

void CDlgSat::customEvent(QEvent* event) {
  if (event->type() == kChangedMessage) {
    OnSatelliteCheckListChanged();
  } else {
    CVynLiveDialog::customEvent(event);
  }
}

void CDlgSat::OnDestroy() {
  CRegistry(RegistryKey()).Write(kSelectionName, bodyList_->currentRow());
  CVynLiveDialog::OnDestroy();
}

void CDlgSat::OnBtnColor() { ChooseColorAndFont(LoadString(13362)); }

}  // namespace vyn
