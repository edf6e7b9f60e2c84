// The frame of a body's disk as an observer sees it.
#pragma once

#include "siblings/astro/vector3.h"

namespace vyn {

/// The rotation that turns a point of a disk into the frame fixed to its body. The disk's frame: x
/// to the right, y up and z towards the observer, with the body's axis upright. Made of the central
/// longitude ("CM") and latitude ("De"), in degrees.
Matrix3 BodyFromDisk(double centralLongitudeDeg, double centralLatitudeDeg);

}  // namespace vyn
