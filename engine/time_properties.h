// The moment shown, as the properties below "Time" tell it. It is kept as one Julian date in
// "Time.JD", from which the year to the second are computed in the zone of "Time.TimeZone".
#pragma once

#include <QString>
#include <QStringView>

#include "engine/property_tree.h"

namespace vyn {

/// What a query of a canonical path at or below "Time" replies that has no value of its own: empty
/// until a moment has been assigned.
QString ReadTime(const PropertyTree& tree, QStringView path);

/// Carries out an assignment to such a path. "Time" and "Time.JD" take a Julian date in universal
/// time; a part of the date moves the moment, or is kept by itself where there is no moment yet.
/// What is not a number or no date changes nothing.
void AssignTime(PropertyTree& tree, const QString& path, const QString& value);

/// The Julian date in universal time of the moment; that of the starting state without one.
double JulianDateOf(const PropertyTree& tree);

}  // namespace vyn
