// How the Sun's disk stood at the moment of a set of sunspots.
#pragma once

#include <QString>
#include <QStringView>

#include "engine/property_tree.h"

namespace vyn {

/// What a query of a canonical path "Solar.Sun.Sunspot.#n.CM" or ".De" replies: the heliographic
/// longitude (0 up to 360) or latitude of the middle of the disk at the set's moment "JD", in
/// degrees, as seen from the Earth's centre. Empty for other paths and for a set without a moment.
/// Source: rotation elements of the IAU working group on cartographic coordinates; the Earth's
/// place from ERFA's eraEpv00, so good for centuries around 2000.
QString ReadSunspotOrientation(const PropertyTree& tree, QStringView path);

}  // namespace vyn
