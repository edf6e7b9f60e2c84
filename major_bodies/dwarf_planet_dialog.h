// The dialog "準惑星": labels and geometric aids of the five dwarf planets.
#pragma once

#include "major_bodies/planet_grid_dialog.h"

namespace vyn {

class VYN_EXPORT CDlgDwarfPlanet : public CDlgPlanetGrid {
  Q_OBJECT

 public:
  /// With a core engine the settings are the planet dialog's.
  CDlgDwarfPlanet(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgDwarfPlanet(QWidget* parent);

 protected:
  // The handlers and rules of each row, by the names that subclasses know.
#define VYN_DWARF_PLANET(Body, row)                                      \
  void EnableDisable##Body(int shown) { EnableDisableBody(row, shown); } \
  void EnableDisable##Body() { EnableDisableBody(row); }                 \
  void OnCheck##Body##View() { OnCheckBody(row); }                       \
  void OnCheck##Body##Name() { OnCheckBody(row); }                       \
  void PlnCheck##Body##Orbits() { PlnCheckBodyOrbits(row); }             \
  void OnPlnCheck##Body##Orbits() { OnPlnCheckBodyOrbits(row); }
  VYN_DWARF_PLANET(Ceres, 0)
  VYN_DWARF_PLANET(Pluto, 1)
  VYN_DWARF_PLANET(Haumea, 2)
  VYN_DWARF_PLANET(Makemake, 3)
  VYN_DWARF_PLANET(Eris, 4)
#undef VYN_DWARF_PLANET
};

}  // namespace vyn
