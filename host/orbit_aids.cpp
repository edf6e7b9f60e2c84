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

}  // namespace

std::vector<Segment> OrbitPerpendiculars(SkyBody body, double jdTt) {
  constexpr int kFeet = 72;
  std::vector<Segment> segments;
  for (const Vector3& place : OrbitPolyline(OrbitOf(body, jdTt), kFeet + 1, kFarthestAu)) {
    segments.push_back(ToEcliptic(place));
  }
  return segments;
}

Segment PerpendicularOf(const SceneBody& body) { return ToEcliptic(body.heliocentric); }

Segment MotionInSpace(const SceneBody& body, const BodyDisplay& display, double jdTt) {
  const Vector3 from = HeliocentricState(body.body, jdTt).position;
  const Vector3 to = HeliocentricState(body.body, jdTt + display.vectorSpanDays).position;
  return {from, from + (to - from) * display.vectorMultiplier};
}

std::vector<Vector3> MotionInTheSky(const SceneBody& body, const BodyDisplay& display,
                                    const Scene& scene) {
  constexpr double kRadPerPoint = 0.02;
  const double later = scene.jdTt + display.vectorSpanDays;
  const Viewpoint& viewpoint = scene.viewpoint;
  // The site stays where it is on its body, so that the body's turning does not count as motion.
  const StateVector site = StateVector{viewpoint.position, viewpoint.velocity} -
                           HeliocentricState(viewpoint.body, scene.jdTt);
  const StateVector there =
      HeliocentricState(body.body, later) - HeliocentricState(viewpoint.body, later) - site;
  const Vector3 from = Normalized(body.seen);
  const Vector3 to = Normalized(ApparentPlace(there.position, there.velocity));
  const Vector3 ahead = Cross(Normalized(Cross(from, to)), from);
  const double angle =
      std::min(AngleBetween(from, to) * display.vectorMultiplier, std::numbers::pi);
  const int steps = 1 + static_cast<int>(angle / kRadPerPoint);
  std::vector<Vector3> way;
  for (int i = 0; i <= steps; ++i) {
    const double part = angle * i / steps;
    way.push_back(std::cos(part) * from + std::sin(part) * ahead);
  }
  return way;
}

}  // namespace vyn
