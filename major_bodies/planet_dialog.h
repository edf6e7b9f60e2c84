// The dialog "惑星": labels and geometric aids of the eight planets.
#pragma once

#include "major_bodies/planet_grid_dialog.h"

namespace vyn {

class VYN_EXPORT CDlgPlanet : public CDlgPlanetGrid {
  Q_OBJECT

 public:
  CDlgPlanet(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  explicit CDlgPlanet(QWidget* parent);

 protected:
  // The handlers and rules of each row, by the names that subclasses know.
#define VYN_PLANET(Body, row)                                            \
  void EnableDisable##Body(int shown) { EnableDisableBody(row, shown); } \
  void EnableDisable##Body() { EnableDisableBody(row); }
#define VYN_PLANET_WITH_PERPENDICULAR(Body, row)             \
  VYN_PLANET(Body, row)                                      \
  void OnCheck##Body##View() { OnCheckBody(row); }           \
  void OnCheck##Body##Name() { OnCheckBody(row); }           \
  void PlnCheck##Body##Orbits() { PlnCheckBodyOrbits(row); } \
  void OnPlnCheck##Body##Orbits() { OnPlnCheckBodyOrbits(row); }
  VYN_PLANET_WITH_PERPENDICULAR(Mercury, 0)
  VYN_PLANET_WITH_PERPENDICULAR(Venus, 1)
  VYN_PLANET(Earth, 2)
  VYN_PLANET_WITH_PERPENDICULAR(Mars, 3)
  VYN_PLANET_WITH_PERPENDICULAR(Jupiter, 4)
  VYN_PLANET_WITH_PERPENDICULAR(Saturn, 5)
  VYN_PLANET_WITH_PERPENDICULAR(Uranus, 6)
  VYN_PLANET_WITH_PERPENDICULAR(Neptune, 7)
#undef VYN_PLANET_WITH_PERPENDICULAR
#undef VYN_PLANET
  void OnDspPlnCheckEarthView() { OnCheckBody(2); }
  void OnDspPlnCheckEarthName() { OnCheckBody(2); }
  void OnDspPlnCheckEarthGeoName() { OnCheckBody(2); }
  void OnDspPlnCheckMarsGeoName() { OnCheckBody(3); }
};

}  // namespace vyn
