// What helps to see an orbit in space, for both views: perpendiculars to the ecliptic and arrows of
// motion. Places are relative to the Sun, in au, in the ecliptic of J2000.
#pragma once

#include <array>
#include <vector>

#include "host/scene.h"

namespace vyn {

struct BodyDisplay;
struct SmallBodyDisplay;

using Segment = std::array<Vector3, 2>;

/// From places all along the orbit down or up to the ecliptic.
std::vector<Segment> OrbitPerpendiculars(SkyBody body, double jdTt);
std::vector<Segment> OrbitPerpendiculars(const OrbitElements& orbit);

/// The same from where the body is now.
Segment PerpendicularOf(const Vector3& heliocentric);

/// From where the body is to where it goes within the span of its vector, lengthened.
Segment MotionInSpace(const SceneBody& body, const BodyDisplay& display, double jdTt);
Segment MotionInSpace(const SceneSmallBody& body, const SmallBodyDisplay& display, double jdTt);

/// The way of the body among the stars within that time as the observer sees it, who moves along,
/// lengthened along its great circle but no farther than half round it: directions.
std::vector<Vector3> MotionInTheSky(const SceneBody& body, const BodyDisplay& display,
                                    const Scene& scene);
std::vector<Vector3> MotionInTheSky(const SceneSmallBody& body, const SmallBodyDisplay& display,
                                    const Scene& scene);

}  // namespace vyn
