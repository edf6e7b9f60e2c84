// The trails of dust from which the well-known meteor streams come.
#pragma once

#include <span>

#include <QStringView>

#include "engine/sky/kepler.h"

namespace vyn {

/// A trail lies along its parent's orbit, which stands for it.
struct DustTrail {
  QStringView name;
  QStringView parent;
  OrbitElements orbit;  ///< its dates of perihelion are those of the parent
};

/// By the time of year at which the streams are seen. Orbits of numbered comets: Minor Planet
/// Center, as in the comets' element file of 2026; of C/1861 G1 Marsden and Williams, "Catalogue of
/// Cometary Orbits"; of 2003 EH1 and Phaethon Jenniskens 2006, "Meteor Showers and their Parent
/// Comets". Which stream is whose: the same.
std::span<const DustTrail> KnownDustTrails();

}  // namespace vyn
