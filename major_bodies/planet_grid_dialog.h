// What the dialogs of planets and dwarf planets share: a grid of switches, one row a body and one
// column a feature, with disk magnification and motion vectors.
#pragma once

#include <list>
#include <span>

#include "core_link/live_dialog.h"
#include "resources/planet_grid.h"
#include "siblings/controls/focus_controls.h"

namespace vyn {

/// The rows of a grid for which a line of a table holds.
enum class GridRows { All, AllButEarth, EarthOnly };

/// What a reply sets: the feature's box; the name's box when any of its readings is true; the
/// language; or name and language at once.
enum class GridReadingKind { Box, Name, Language, NameAndLanguage };

/// One property asked for every body. In a path "{Body}" stands for the body's word, "{body}" for
/// the same in lower case.
struct GridReading {
  GridReadingKind kind;
  GridFeature feature;
  QStringView path;
  GridRows rows = GridRows::All;
};

/// What is written: the feature's box, or the name's box together with the language.
enum class GridStatementKind { Box, JapaneseName, EnglishName };
enum class GridMode { Both, Solar, Sky };

/// One property written for every body that has the feature.
struct GridStatement {
  GridStatementKind kind;
  GridFeature feature;
  QStringView path;
  GridMode mode = GridMode::Both;
  GridRows rows = GridRows::All;
};

/// How a grid speaks to the core engine.
struct GridPaths {
  std::span<const GridReading> readings;
  std::span<const GridStatement> statements;
  std::span<const int> scriptOrder;  ///< the bodies' rows in the order of the state script
  bool keepsObserverBody;  ///< in horizon coordinates the body under the observer stays visible
  QStringView magnificationQuery, magnificationStatement;
  struct {
    QStringView visible, span, multiplier;
  } vectorQuery;
  QStringView vectorStatement;  ///< what ".Visible", ".span" and ".multiplier" follow
  QStringView colorPath;
};

class VYN_EXPORT CDlgPlanetGrid : public CVynLiveDialog {
  Q_OBJECT

 protected:
  CDlgPlanetGrid(CCorVyn* commandHandle, CCorVyn* secondHandle, const PlanetGrid& grid,
                 const GridPaths& paths, const QString& registryKey, QWidget* parent);

  bool OnInitDialog() override;
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void Init() override;
  void UpdateControls() override;
  bool CheckTypedValues() override;
  void WriteScript(QString& out) override;

  // Attach focus-showing controls to the controls with these numbers, one each.
  void SubclassButtonControl(const int* ids, int count, CFocusButton* controls) {
    Subclass(ids, count, controls);
  }
  void SubclassCheckBoxControl(const int* ids, int count, CFocusCheckBox* controls) {
    Subclass(ids, count, controls);
  }
  void SubclassRadioButtonControl(const int* ids, int count, CFocusRadioButton* controls) {
    Subclass(ids, count, controls);
  }

  // The rules of one row; the form without `shown` takes the row's "表示" box.
  void EnableDisableBody(int body, int shown);
  void EnableDisableBody(int body) {
    EnableDisableBody(body, IsBoxChecked(GridFeature::Shown, body));
  }
  void EnableDisablePlanets();
  /// Enables a row's perpendicular where an orbit is drawn from which it could fall.
  void PlnCheckBodyOrbits(int body);
  void PlnCheckOrbits();
  void EnableDisableVector();

  // Handlers of one row.
  void OnCheckBody(int body);
  void OnPlnCheckBodyOrbits(int body);

  /// Sets a whole column on or off and applies it. A language is chosen by its column's "on".
  void SetColumn(GridFeature feature, bool on);

  // The column buttons by the names that hosts know: "...On" and "...Off" of each.
#define VYN_GRID_COLUMN_BUTTONS(X)                                                          \
  X(Shown, ButtonView)                                                                      \
  X(Name, ButtonName)                                                                       \
  X(Magnitude, ButtonMag)                                                                   \
  X(Date, ButtonDate) X(PlaceNames, DspPlnButtonGeoname) X(LeadLines, DspPlnButtonLeadLine) \
      X(Compass, DspPlnButtonCompass) X(Grid, DspPlnButtonGrid)                             \
          X(LagrangianPoints, DspPlnButtonLpnt) X(OrbitInTheSky, DspPlnButtonSkyOrbit)      \
              X(Perpendicular, DspPlnButtonObPerp) X(Orbit, DspPlnButtonOrbit)              \
                  X(OrbitalPlane, DspPlnButtonObPlane)
#define VYN_DECLARE_COLUMN_BUTTONS(Feature, Button)                \
  void On##Button##On() { SetColumn(GridFeature::Feature, true); } \
  void On##Button##Off() { SetColumn(GridFeature::Feature, false); }
  VYN_GRID_COLUMN_BUTTONS(VYN_DECLARE_COLUMN_BUTTONS)
#undef VYN_DECLARE_COLUMN_BUTTONS
  void OnButtonJp() { SetColumn(GridFeature::Japanese, true); }
  void OnButtonEng() { SetColumn(GridFeature::English, true); }

  void OnVectorShow();
  void OnEnChangePlnEditRate();
  void OnDeltaposDspPlnSpinRate(int delta);
  void OnEnChangePlnEditVectorSpandays() { Apply(); }
  void OnEnChangePlnEditVectorMultiplier() { Apply(); }
  void OnDeltaposSpinVector(const GridNumber& number, int delta);
  void OnButtonFont();

 private:
  bool IsBoxChecked(GridFeature feature, int body) const;
  void EnableBox(GridFeature feature, int body, bool on);
  void EnableColumnButtons(GridFeature feature, bool on);
  /// Numbers of 0 have no control.
  template <class Control>
  void Subclass(const int* ids, int count, Control* controls) {
    for (int i = 0; i < count; ++i) {
      if (ids[i] != 0) controls[i].Attach(GetDlgItem(ids[i]));
    }
  }
  void SubclassColumn(const GridColumn& column);
  void AttachRow(int body);
  void AttachColumn(const GridColumn& column);
  void ReadBody(int body);
  void WriteBody(int body, QString& out);
  QString BodyPath(QStringView pattern, int body) const;
  bool IsVectorValueAllowed(const GridNumber& number, int messageNumber);

  const PlanetGrid& grid_;
  const GridPaths& paths_;
  // One array a column, since a column is subclassed in one call.
  std::list<std::array<CFocusCheckBox, kMaxGridBodies>> focusBoxes_;
  std::list<std::array<CFocusRadioButton, kMaxGridBodies>> focusRadios_;
  std::list<std::array<CFocusButton, 2>> focusButtons_;
  int solarMode_ = 0;
  int isReady_ = 0;
  int minMagnification_ = 1;
  int maxMagnification_ = 500;
  int magnification_ = 0;
  double vectorSpanDays_ = 0.0;
  double vectorMultiplier_ = 0.0;
};

}  // namespace vyn
