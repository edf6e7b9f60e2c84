#include "engine/sky/comet_tails.h"

#include <algorithm>
#include <cmath>

#include "engine/sky/bodies.h"

namespace vyn {
namespace {

constexpr double kSecondsPerDay = 86400.0;
constexpr double kWindAuPerDay = 400.0 * kSecondsPerDay / kKmPerAu;
constexpr double kIonAuPerDay = 100.0 * kSecondsPerDay / kKmPerAu;

/// Stumpff's functions c1, c2 and c3 of x.
struct Stumpff {
  double c1;
  double c2;
  double c3;
};

Stumpff StumpffOf(double x) {
  if (std::abs(x) < 1e-3) {
    return {1.0 - x / 6.0 + x * x / 120.0, 0.5 - x / 24.0 + x * x / 720.0,
            1.0 / 6.0 - x / 120.0 + x * x / 5040.0};
  }
  const double root = std::sqrt(std::abs(x));
  const double c0 = x > 0.0 ? std::cos(root) : std::cosh(root);
  const double c1 = (x > 0.0 ? std::sin(root) : std::sinh(root)) / root;
  return {c1, (1.0 - c0) / x, (1.0 - c1) / x};
}

/// Where a body is `days` later under a gravity that may be 0 or repel: universal variables with
/// alpha = 2 mu / r - v^2. Time grows with s everywhere, so that halving brackets Newton's steps.
/// Source: Danby, "Fundamentals of Celestial Mechanics" (2nd ed.), chapter 6.9.
Vector3 PlaceLater(const StateVector& state, double gravity, double days) {
  const double r = Length(state.position);
  const double outward = Dot(state.position, state.velocity);
  const double alpha = 2.0 * gravity / r - Dot(state.velocity, state.velocity);
  double s = days / r;
  double low = 0.0;
  double high = HUGE_VAL;
  Stumpff c{};
  for (int step = 0; step < 60; ++step) {
    c = StumpffOf(alpha * s * s);
    const double time = s * (r * c.c1 + s * (outward * c.c2 + s * gravity * c.c3));
    const double distance = r + s * (outward * c.c1 + s * (gravity - alpha * r) * c.c2);
    if (std::abs(time - days) < 1e-12 * days) break;
    (time < days ? low : high) = s;
    double next = s - (time - days) / distance;
    if (!(next > low && next < high)) next = std::isinf(high) ? 2.0 * s : 0.5 * (low + high);
    s = next;
  }
  const double f = 1.0 - gravity / r * s * s * c.c2;
  const double g = days - gravity * s * s * s * c.c3;
  return f * state.position + g * state.velocity;
}

/// Younger grains lie closer together; the tail bends most near the nucleus.
double AgeOf(int row, int rows, double spanDays) {
  const double part = static_cast<double>(row) / rows;
  return spanDays * part * (0.3 + 0.7 * part);
}

}  // namespace

Vector3 GrainPlace(const OrbitElements& orbit, double jdTt, double ageDays, double beta) {
  const StateVector start = StateAt(orbit, jdTt - ageDays);
  if (ageDays <= 0.0) return start.position;
  return PlaceLater(start, orbit.gravity * (1.0 - beta), ageDays);
}

TailSheet DustTail(const OrbitElements& orbit, double jdTt, const DustTailGrains& grains) {
  constexpr int kAges = 20;
  constexpr int kBetas = 12;
  const OrbitPlane plane = PlaneOf(orbit);
  TailSheet sheet(kBetas + 1);
  for (int age = 0; age <= kAges; ++age) {
    const double days = AgeOf(age, kAges, grains.emissionSpanDays);
    const StateVector start = StateAt(orbit, plane, jdTt - days);
    for (int i = 0; i <= kBetas; ++i) {
      const double beta = grains.betaMin + (grains.betaMax - grains.betaMin) * i / kBetas;
      sheet[i].push_back(days > 0.0 ? PlaceLater(start, orbit.gravity * (1.0 - beta), days)
                                    : start.position);
    }
  }
  return sheet;
}

TailSheet IonTail(const OrbitElements& orbit, double jdTt, double emissionSpanDays) {
  constexpr int kPieces = 12;
  constexpr double kHalfWidth = 0.0262;
  const StateVector nucleus = StateAt(orbit, jdTt);
  const Vector3 axis = Normalized(kWindAuPerDay * Normalized(nucleus.position) - nucleus.velocity);
  const Vector3 across = Normalized(Cross(axis, Cross(nucleus.position, nucleus.velocity)));
  TailSheet sheet(3);
  for (int piece = 0; piece <= kPieces; ++piece) {
    const double length = kIonAuPerDay * emissionSpanDays * piece / kPieces;
    for (int side = -1; side <= 1; ++side) {
      sheet[side + 1].push_back(nucleus.position + length * (axis + side * kHalfWidth * across));
    }
  }
  return sheet;
}

std::vector<Vector3> EdgeOf(const TailSheet& sheet) {
  if (sheet.empty() || sheet.front().empty()) return {};
  std::vector<Vector3> edge = sheet.front();
  for (std::size_t i = 1; i + 1 < sheet.size(); ++i) edge.push_back(sheet[i].back());
  edge.insert(edge.end(), sheet.back().rbegin(), sheet.back().rend());
  return edge;
}

double AdjustedSpanDays(double spanDays, double sunDistanceAu) {
  return spanDays * std::pow(sunDistanceAu, 1.5);
}

}  // namespace vyn
