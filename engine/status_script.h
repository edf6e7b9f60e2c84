// Writes scripts of the command language that bring a state back.
#pragma once

#include <QString>
#include <QStringView>

#include "engine/world.h"

namespace vyn {

/// The state now.
Snapshot TakeSnapshot(World& world);

/// A script that gives the path and all below it the values that they have now.
QString StatusScript(World& world, QStringView path);

/// A script that takes back what has changed since the snapshot; empty when nothing has.
QString RestoringScript(World& world, const Snapshot& snapshot);

}  // namespace vyn
