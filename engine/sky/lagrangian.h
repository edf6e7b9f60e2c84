// The five points at which a small body keeps its place relative to two large ones.
#pragma once

#include <array>

#include "engine/sky/bodies.h"

namespace vyn {

/// L1 to L5, in this order.
using LagrangianPoints = std::array<Vector3, 5>;

/// The points of a body that moves like this relative to its central one, relative to the central
/// body. `massFraction` is the body's part of both masses, between 0 and 0.5. The distance of the
/// moment is used throughout, as if both moved on circles. L4 goes ahead of the body, L5 behind.
/// Source: Murray and Dermott, "Solar System Dynamics", chapter 3.
LagrangianPoints LagrangianPointsOf(const StateVector& state, double massFraction);

/// The points of a planet and the Sun, relative to the Sun, or of the Moon and the Earth, relative
/// to the Earth. The Sun has none: zero vectors.
LagrangianPoints LagrangianPointsOf(Body body, double jdTt);

/// The distance of L1 and L2 from the smaller body and of L3 from the larger one, in units of the
/// distance between the two.
struct CollinearDistances {
  double l1;
  double l2;
  double l3;
};
CollinearDistances CollinearDistancesOf(double massFraction);

}  // namespace vyn
