#include "host/orbit_aids.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/display_state.h"

namespace vyn {
namespace {

constexpr double kFarthestAu = 200.0;

Segment ToEcliptic(const Vector3& place) { return {place, Vector3{place.x, place.y, 0.0}}; }

StateVector operator-(const StateVector& a, const StateVector& b) {
  return {a.position - b.position, a.velocity - b.velocity};
}

Segment Lengthened(const Vector3& from, const Vector3& to, double multiplier) {
  return {from, from + (to - from) * multiplier};
}

/// From a direction to where a body is seen that will then have this place and velocity.
std::vector<Vector3> WayInTheSky(const Vector3& seen, const StateVector& laterState,
                                 double spanDays, double multiplier, const Scene& scene) {
  constexpr double kRadPerPoint = 0.02;
  const Viewpoint& viewpoint = scene.viewpoint;
  // The site stays where it is on its body, so that the body's turning does not count as motion.
  const StateVector site = StateVector{viewpoint.position, viewpoint.velocity} -
                           HeliocentricState(viewpoint.body, scene.jdTt);
  const StateVector there =
      laterState - HeliocentricState(viewpoint.body, scene.jdTt + spanDays) - site;
  const Vector3 from = Normalized(seen);
  const Vector3 to = Normalized(ApparentPlace(there.position, there.velocity));
  const Vector3 ahead = Cross(Normalized(Cross(from, to)), from);
  const double angle = std::min(AngleBetween(from, to) * multiplier, std::numbers::pi);
  const int steps = 1 + static_cast<int>(angle / kRadPerPoint);
  std::vector<Vector3> way;
  for (int i = 0; i <= steps; ++i) {
    const double part = angle * i / steps;
    way.push_back(std::cos(part) * from + std::sin(part) * ahead);
  }
  return way;
}

}  // namespace

std::vector<Segment> OrbitPerpendiculars(SkyBody body, double jdTt) {
  return OrbitPerpendiculars(OrbitOf(body, jdTt));
}

std::vector<Segment> OrbitPerpendiculars(const OrbitElements& orbit) {
  constexpr int kFeet = 72;
  std::vector<Segment> segments;
  for (const Vector3& place : OrbitPolyline(orbit, kFeet + 1, kFarthestAu)) {
    segments.push_back(ToEcliptic(place));
  }
  return segments;
}

Segment PerpendicularOf(const Vector3& heliocentric) { return ToEcliptic(heliocentric); }

Segment MotionInSpace(const SceneBody& body, const BodyDisplay& display, double jdTt) {
  return Lengthened(HeliocentricState(body.body, jdTt).position,
                    HeliocentricState(body.body, jdTt + display.vectorSpanDays).position,
                    display.vectorMultiplier);
}

Segment MotionInSpace(const SceneSmallBody& body, const SmallBodyDisplay& display, double jdTt) {
  return Lengthened(body.heliocentric, PositionAt(body.orbit, jdTt + display.vectorSpanDays),
                    display.vectorMultiplier);
}

std::vector<Vector3> MotionInTheSky(const SceneBody& body, const BodyDisplay& display,
                                    const Scene& scene) {
  return WayInTheSky(body.seen, HeliocentricState(body.body, scene.jdTt + display.vectorSpanDays),
                     display.vectorSpanDays, display.vectorMultiplier, scene);
}

std::vector<Vector3> MotionInTheSky(const SceneSmallBody& body, const SmallBodyDisplay& display,
                                    const Scene& scene) {
  return WayInTheSky(body.seen, StateAt(body.orbit, scene.jdTt + display.vectorSpanDays),
                     display.vectorSpanDays, display.vectorMultiplier, scene);
}

}  // namespace vyn
