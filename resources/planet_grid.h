// The grids of planets and dwarf planets: bodies by features, with the numbers of all controls. The
// templates are built from these tables and the dialogs read and write by them.
#pragma once

#include <array>
#include <span>

#include <QString>

namespace vyn {

enum class GridFeature {
  Shown,
  Name,
  Japanese,  ///< the language of the name: a radio button, Japanese in this column ...
  English,   ///< ... and English in this one
  Magnitude,
  Date,
  PlaceNames,
  LeadLines,
  Compass,
  Grid,
  LagrangianPoints,
  OrbitInTheSky,
  Perpendicular,
  Orbit,
  OrbitalPlane,
};

inline constexpr int kMaxGridBodies = 8;

/// One row of the grid.
struct GridBody {
  int label;
  const char16_t* text;
  QStringView word;  ///< as in the paths, capitalised
};

/// One column of the grid: its heading, the two buttons that set it for all bodies (a language
/// column has one), and its control in each row; 0 where there is none.
struct GridColumn {
  GridFeature feature;
  int heading;
  const char16_t* text;
  int onButton;
  int offButton;
  std::array<int, kMaxGridBodies> controls;
};

/// A number with its edit, spin button and texts.
struct GridNumber {
  int label;
  const char16_t* labelText;
  int edit;
  int spin;
  int unit;
  const char16_t* unitText;
};

struct PlanetGrid {
  int templateNumber;
  const char16_t* caption;
  int allLabel;
  const char16_t* allText;
  std::span<const GridBody> bodies;
  std::span<const GridColumn> columns;
  int magnificationGroup;
  GridNumber magnification;  ///< of the disks; labelled by its group
  int vectorGroup;
  int vectorCheck;
  GridNumber vectorSpan;  ///< days
  GridNumber vectorMultiplier;
  int colorButton;

  const GridColumn* Find(GridFeature feature) const;
  /// The control of a feature in a row; 0 where there is none.
  int Control(GridFeature feature, int body) const;
};

const PlanetGrid& PlanetsGrid();
const PlanetGrid& DwarfPlanetsGrid();

}  // namespace vyn
