#include "major_bodies/planet_grid_dialog.h"

#include <algorithm>

#include "core_link/number_text.h"
#include "core_link/reply.h"
#include "core_link/statement.h"
#include "core_link/vector_step.h"
#include "resources/string_table.h"
#include "siblings/controls/controls.h"

namespace vyn {

using enum GridFeature;

namespace {

constexpr int kEarthRow = 2;
constexpr int kNumberChars = 4;

bool Holds(GridRows rows, int body) {
  return rows == GridRows::All || (rows == GridRows::EarthOnly) == (body == kEarthRow);
}

}  // namespace

CDlgPlanetGrid::CDlgPlanetGrid(CCorVyn* commandHandle, CCorVyn* secondHandle,
                               const PlanetGrid& grid, const GridPaths& paths,
                               const QString& registryKey, QWidget* parent)
    : CVynLiveDialog(commandHandle, secondHandle, grid.templateNumber, registryKey, parent),
      grid_(grid),
      paths_(paths) {}

// Opening.

bool CDlgPlanetGrid::OnInitDialog() {
  isReady_ = 0;
  return CVynLiveDialog::OnInitDialog();
}

void CDlgPlanetGrid::AttachControls() {
  CVynLiveDialog::AttachControls();
  focusBoxes_.clear();
  focusRadios_.clear();
  focusButtons_.clear();
  for (int body = 0; body < static_cast<int>(grid_.bodies.size()); ++body) AttachRow(body);
  for (const GridColumn& column : grid_.columns) {
    AttachColumn(column);
    SubclassColumn(column);
  }
  for (const GridNumber& number : {grid_.magnification, grid_.vectorSpan, grid_.vectorMultiplier}) {
    static_cast<QLineEdit*>(GetDlgItem(number.edit))->setMaxLength(kNumberChars);
  }
  static_cast<CVynSpinButton*>(GetDlgItem(grid_.magnification.spin))
      ->SetRange(minMagnification_, maxMagnification_);
  OnClicked({grid_.vectorCheck}, &CDlgPlanetGrid::OnVectorShow);
  OnTextChanged({grid_.magnification.edit}, &CDlgPlanetGrid::OnEnChangePlnEditRate);
  OnTextChanged({grid_.vectorSpan.edit}, &CDlgPlanetGrid::OnEnChangePlnEditVectorSpandays);
  OnTextChanged({grid_.vectorMultiplier.edit}, &CDlgPlanetGrid::OnEnChangePlnEditVectorMultiplier);
  OnSpin(grid_.magnification.spin, [this](int delta) { OnDeltaposDspPlnSpinRate(delta); });
  OnSpin(grid_.vectorSpan.spin,
         [this](int delta) { OnDeltaposSpinVector(grid_.vectorSpan, delta); });
  OnSpin(grid_.vectorMultiplier.spin,
         [this](int delta) { OnDeltaposSpinVector(grid_.vectorMultiplier, delta); });
  AttachColorButton(grid_.colorButton, &CDlgPlanetGrid::OnButtonFont);
}

/// Boxes on which others of the row depend re-run the row's rules; the rest only apply.
void CDlgPlanetGrid::AttachRow(int body) {
  for (const GridColumn& column : grid_.columns) {
    if (column.controls[body] == 0) continue;
    auto* button = static_cast<QAbstractButton*>(GetDlgItem(column.controls[body]));
    connect(button, &QAbstractButton::clicked, this, [this, feature = column.feature, body] {
      if (feature == Shown || feature == Name || feature == PlaceNames) {
        OnCheckBody(body);
      } else if (feature == OrbitInTheSky || feature == Orbit) {
        OnPlnCheckBodyOrbits(body);
      } else {
        OnApply();
      }
    });
  }
}

void CDlgPlanetGrid::AttachColumn(const GridColumn& column) {
  switch (column.feature) {
#define VYN_ATTACH_COLUMN_BUTTONS(Feature, Button)                   \
  case Feature:                                                      \
    OnClicked({column.onButton}, &CDlgPlanetGrid::On##Button##On);   \
    OnClicked({column.offButton}, &CDlgPlanetGrid::On##Button##Off); \
    break;
    VYN_GRID_COLUMN_BUTTONS(VYN_ATTACH_COLUMN_BUTTONS)
#undef VYN_ATTACH_COLUMN_BUTTONS
    case Japanese:
      OnClicked({column.onButton}, &CDlgPlanetGrid::OnButtonJp);
      break;
    case English:
      OnClicked({column.onButton}, &CDlgPlanetGrid::OnButtonEng);
      break;
  }
}

void CDlgPlanetGrid::SubclassColumn(const GridColumn& column) {
  const int bodies = static_cast<int>(grid_.bodies.size());
  if (column.feature == Japanese || column.feature == English) {
    SubclassRadioButtonControl(column.controls.data(), bodies, focusRadios_.emplace_back().data());
  } else {
    SubclassCheckBoxControl(column.controls.data(), bodies, focusBoxes_.emplace_back().data());
  }
  const int buttons[] = {column.onButton, column.offButton};
  SubclassButtonControl(buttons, 2, focusButtons_.emplace_back().data());
}

void CDlgPlanetGrid::Init() {
  solarMode_ = IsSolarMode();
  for (int body = 0; body < static_cast<int>(grid_.bodies.size()); ++body) ReadBody(body);
  magnification_ = GetInt(paths_.magnificationQuery.toString());
  SetValue(grid_.vectorCheck, GetBool(paths_.vectorQuery.visible.toString()));
  vectorSpanDays_ = GetDouble(paths_.vectorQuery.span.toString());
  vectorMultiplier_ = GetDouble(paths_.vectorQuery.multiplier.toString());
  UpdateData(false);
}

QString CDlgPlanetGrid::BodyPath(QStringView pattern, int body) const {
  const QStringView word = grid_.bodies[body].word;
  QString path = pattern.toString();
  path.replace(QLatin1String("{Body}"), word.toString());
  path.replace(QLatin1String("{body}"), word.toString().toLower());
  return path;
}

void CDlgPlanetGrid::ReadBody(int body) {
  const int name = grid_.Control(Name, body);
  const int language = grid_.Control(Japanese, body);
  SetValue(name, 0);
  for (const GridReading& reading : paths_.readings) {
    if (!Holds(reading.rows, body) || grid_.Control(reading.feature, body) == 0) continue;
    const bool on = GetBool(BodyPath(reading.path, body));
    switch (reading.kind) {
      case GridReadingKind::Box:
        SetValue(grid_.Control(reading.feature, body), on);
        break;
      case GridReadingKind::NameAndLanguage:
        SetValue(language, on);
        [[fallthrough]];
      case GridReadingKind::Name:
        SetValue(name, IsOn(name) || on);
        break;
      case GridReadingKind::Language:
        SetValue(language, on);
        break;
    }
  }
}

void CDlgPlanetGrid::DoDataExchange(CDataExchange& exchange) {
  CVynLiveDialog::DoDataExchange(exchange);
  exchange.Int(grid_.magnification.edit, magnification_);
  exchange.DDX_Double(grid_.vectorSpan.edit, vectorSpanDays_, kNumberChars);
  exchange.DDX_Double(grid_.vectorMultiplier.edit, vectorMultiplier_, kNumberChars);
}

// Rules.

void CDlgPlanetGrid::UpdateControls() {
  EnableDisablePlanets();
  for (const GridFeature feature : {Orbit, OrbitalPlane}) EnableColumnButtons(feature, solarMode_);
  EnableColumnButtons(OrbitInTheSky, !solarMode_);
  PlnCheckOrbits();
  EnableColumnButtons(Magnitude, true);
  EnableDisableVector();
  isReady_ = 1;
}

void CDlgPlanetGrid::EnableColumnButtons(GridFeature feature, bool on) {
  const GridColumn* column = grid_.Find(feature);
  Enable({column->heading, column->onButton, column->offButton}, on);
}

bool CDlgPlanetGrid::IsBoxChecked(GridFeature feature, int body) const {
  return IsChecked(grid_.Control(feature, body));
}

void CDlgPlanetGrid::EnableBox(GridFeature feature, int body, bool on) {
  if (const int control = grid_.Control(feature, body)) Enable(control, on);
}

void CDlgPlanetGrid::EnableDisableBody(int body, int shown) {
  for (const GridFeature feature :
       {Name, Magnitude, Date, PlaceNames, Compass, Grid, LagrangianPoints}) {
    EnableBox(feature, body, shown);
  }
  for (const GridFeature feature : {Japanese, English}) {
    EnableBox(feature, body, shown && IsBoxChecked(Name, body));
  }
  EnableBox(LeadLines, body, shown && IsBoxChecked(PlaceNames, body));
  EnableBox(Orbit, body, shown && solarMode_);
  EnableBox(OrbitalPlane, body, shown && solarMode_);
  EnableBox(OrbitInTheSky, body, shown && !solarMode_);
  PlnCheckBodyOrbits(body);
}

void CDlgPlanetGrid::EnableDisablePlanets() {
  for (int body = 0; body < static_cast<int>(grid_.bodies.size()); ++body) EnableDisableBody(body);
}

void CDlgPlanetGrid::PlnCheckBodyOrbits(int body) {
  const auto isDrawn = [&](GridFeature orbit) {
    return GetDlgItem(grid_.Control(orbit, body))->isEnabled() && IsBoxChecked(orbit, body);
  };
  EnableBox(Perpendicular, body, isDrawn(OrbitInTheSky) || isDrawn(Orbit));
}

void CDlgPlanetGrid::PlnCheckOrbits() {
  for (int body = 0; body < static_cast<int>(grid_.bodies.size()); ++body) PlnCheckBodyOrbits(body);
}

void CDlgPlanetGrid::EnableDisableVector() {
  const bool on = IsChecked(grid_.vectorCheck);
  for (const GridNumber& number : {grid_.vectorSpan, grid_.vectorMultiplier}) {
    Enable({number.label, number.edit, number.spin, number.unit}, on);
  }
}

// The state script.

bool CDlgPlanetGrid::CheckTypedValues() {
  const int magnification = reply::ToInt(EditText(grid_.magnification.edit));
  if (magnification < minMagnification_ || magnification > maxMagnification_) {
    ShowInformation(
        QString::asprintf(qUtf8Printable(LoadString(13368)), minMagnification_, maxMagnification_));
    return false;
  }
  return IsVectorValueAllowed(grid_.vectorSpan, 13380) &&
         IsVectorValueAllowed(grid_.vectorMultiplier, 13381);
}

bool CDlgPlanetGrid::IsVectorValueAllowed(const GridNumber& number, int messageNumber) {
  const double value = reply::ToDouble(EditText(number.edit));
  if (value >= kMinVectorValue && value <= kMaxVectorValue) return true;
  ShowInformation(QString::asprintf(qUtf8Printable(LoadString(messageNumber)), kMinVectorValue,
                                    kMaxVectorValue));
  return false;
}

void CDlgPlanetGrid::WriteScript(QString& out) {
  for (const int body : paths_.scriptOrder) WriteBody(body, out);
  if (paths_.keepsObserverBody && IsHorizonView() && CommandHandle() != nullptr) {
    out += ObserverBodyStatement(CommandHandle()->GetLocationObject());
  }
  out += statement::Int(paths_.magnificationStatement, magnification_);
  if (solarMode_) return;
  out += statement::Bool(QString(paths_.vectorStatement + u".Visible"), IsOn(grid_.vectorCheck));
  out += statement::Double(QString(paths_.vectorStatement + u".span"), vectorSpanDays_);
  out += statement::Double(QString(paths_.vectorStatement + u".multiplier"), vectorMultiplier_);
}

void CDlgPlanetGrid::WriteBody(int body, QString& out) {
  for (const GridStatement& row : paths_.statements) {
    const int control = grid_.Control(row.feature, body);
    const bool inMode = row.mode == GridMode::Both || (row.mode == GridMode::Solar) == solarMode_;
    if (control == 0 || !inMode || !Holds(row.rows, body)) continue;
    const int language = Value(grid_.Control(Japanese, body));
    const bool on =
        IsOn(control) && (row.kind == GridStatementKind::Box ||
                          language == (row.kind == GridStatementKind::EnglishName ? 1 : 0));
    out += statement::Bool(BodyPath(row.path, body), on);
  }
}

// Handlers.

void CDlgPlanetGrid::OnCheckBody(int body) {
  Apply();
  EnableDisableBody(body);
}

void CDlgPlanetGrid::OnPlnCheckBodyOrbits(int body) {
  Apply();
  PlnCheckBodyOrbits(body);
}

void CDlgPlanetGrid::SetColumn(GridFeature feature, bool on) {
  for (const int control : grid_.Find(feature)->controls) {
    if (control != 0) static_cast<QAbstractButton*>(GetDlgItem(control))->setChecked(on);
  }
  if (feature == Shown || feature == Name || feature == PlaceNames) EnableDisablePlanets();
  if (feature == OrbitInTheSky || feature == Orbit) PlnCheckOrbits();
  Apply();
}

void CDlgPlanetGrid::OnVectorShow() {
  EnableDisableVector();
  Apply();
}

void CDlgPlanetGrid::OnEnChangePlnEditRate() {
  const QString text = EditText(grid_.magnification.edit);
  if (!isReady_ || text.isEmpty()) return;
  const int shown = std::clamp(reply::ToInt(text), minMagnification_, maxMagnification_);
  ShowEdit(grid_.magnification.edit, QString::number(shown));
  Apply();
}

/// The edit's own handler of changes applies what is written here.
void CDlgPlanetGrid::OnDeltaposDspPlnSpinRate(int delta) {
  auto* edit = static_cast<QLineEdit*>(GetDlgItem(grid_.magnification.edit));
  const int stepped = reply::ToInt(edit->text()) - delta;
  edit->setText(QString::number(std::clamp(stepped, minMagnification_, maxMagnification_)));
}

void CDlgPlanetGrid::OnDeltaposSpinVector(const GridNumber& number, int delta) {
  const double stepped = StepVectorValue(reply::ToDouble(EditText(number.edit)), delta);
  ShowEdit(number.edit, ShortNumberText(stepped, kNumberChars));
  Apply();
}

void CDlgPlanetGrid::OnButtonFont() { ChooseColorAndFont(paths_.colorPath.toString()); }

}  // namespace vyn
