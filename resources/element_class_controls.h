// The control numbers of the dialogs on comets and minor planets: the same controls in the same
// order, in two runs of numbers, with what one dialog has more between them.
#pragma once

namespace vyn {

struct ElementClassControls {
  int upper;  ///< number of the first control, above the object list
  int lower;  ///< number of the vector group

  constexpr int CountLabel() const { return upper; }
  constexpr int ShownCount() const { return upper + 1; }
  constexpr int CountSlash() const { return upper + 2; }
  constexpr int TotalCount() const { return upper + 3; }
  constexpr int CountUnit() const { return upper + 4; }
  constexpr int ObjectList() const { return upper + 5; }
  constexpr int LimitGroup() const { return upper + 6; }
  constexpr int BrighterGroup() const { return upper + 7; }
  constexpr int BrighterCheck() const { return upper + 8; }
  constexpr int BrighterSlider() const { return upper + 9; }
  constexpr int BrighterEdit() const { return upper + 10; }
  constexpr int BrighterSpin() const { return upper + 11; }
  constexpr int BrighterUnit() const { return upper + 12; }
  constexpr int OrbitalTypeLabel() const { return upper + 13; }
  constexpr int OrbitalTypeList() const { return upper + 14; }

  constexpr int VectorGroup() const { return lower; }
  constexpr int SpanLabel() const { return lower + 1; }
  constexpr int SpanEdit() const { return lower + 2; }
  constexpr int SpanSpin() const { return lower + 3; }
  constexpr int SpanUnit() const { return lower + 4; }
  constexpr int MultiplierLabel() const { return lower + 5; }
  constexpr int MultiplierEdit() const { return lower + 6; }
  constexpr int MultiplierSpin() const { return lower + 7; }
  constexpr int MultiplierUnit() const { return lower + 8; }
  constexpr int ElementGroup() const { return lower + 9; }
  constexpr int NewButton() const { return lower + 10; }
  constexpr int EditButton() const { return lower + 11; }
  constexpr int DeleteButton() const { return lower + 12; }
  constexpr int ImportButton() const { return lower + 13; }
  constexpr int FileButton() const { return lower + 14; }
  constexpr int SearchGroup() const { return lower + 15; }
  constexpr int SearchCombo() const { return lower + 16; }
  constexpr int SearchBackward() const { return lower + 17; }
  constexpr int SearchForward() const { return lower + 18; }
  constexpr int ColorButton() const { return lower + 19; }
};

inline constexpr ElementClassControls kCometControls{1700, 1715};
inline constexpr ElementClassControls kMinorPlanetControls{1800, 1817};

// What only the dialog on minor planets has.
inline constexpr int kSpectralTypeLabel = 1815;
inline constexpr int kSpectralTypeList = 1816;
inline constexpr int kSymbolicCheck = 1837;

}  // namespace vyn
