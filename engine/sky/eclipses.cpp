#include "engine/sky/eclipses.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "engine/sky/observer.h"
#include "engine/sky/time_scales.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

constexpr double kEarthRadiusAu = kEarthRadiusKm / kKmPerAu;
constexpr double kSunRadiusAu = 696000.0 / kKmPerAu;
constexpr double kMeanLunationDays = 29.530588861;
constexpr double kNewMoonJdTt = 2451550.09766;
constexpr double kMinutesPerDay = 1440.0;

double MoonRadiusAu(ShadowCone cone) {
  return (cone == ShadowCone::Umbra ? 0.272281 : 0.2725076) * kEarthRadiusAu;
}

/// Sun and Moon from the Earth's centre as light shows them.
struct SunAndMoon {
  Vector3 sun;
  Vector3 moon;
};

SunAndMoon SunAndMoonAt(double jdTt) {
  const StateVector earth = HeliocentricState(Body::Earth, jdTt);
  const StateVector moon = GeocentricMoon(jdTt);
  return {ApparentPlace(-earth.position, -earth.velocity),
          ApparentPlace(moon.position, moon.velocity)};
}

/// From the Sun through the Moon.
Vector3 ShadowAxis(const SunAndMoon& bodies) { return Normalized(bodies.moon - bodies.sun); }

/// From the Earth's centre to the nearest point of the shadow's axis.
Vector3 AxisMiss(double jdTt) {
  const SunAndMoon bodies = SunAndMoonAt(jdTt);
  const Vector3 axis = ShadowAxis(bodies);
  return bodies.moon - axis * Dot(bodies.moon, axis);
}

double FullMoonSeparation(double jdTt) {
  const SunAndMoon bodies = SunAndMoonAt(jdTt);
  return AngleBetween(bodies.moon, -bodies.sun);
}

/// The smallest value of a function with one valley, to a tenth of a second.
template <typename Function>
double LowestWithin(double from, double to, Function function) {
  constexpr double kInverseGolden = 1.0 / std::numbers::phi;
  // Steps are counted, for at a date far enough away no two numbers lie so close together.
  constexpr int kSteps = 31;
  for (int step = 0; step < kSteps; ++step) {
    const double left = to - (to - from) * kInverseGolden;
    const double right = from + (to - from) * kInverseGolden;
    if (function(left) < function(right)) {
      to = right;
    } else {
      from = left;
    }
  }
  return (from + to) / 2.0;
}

/// The moment nearest to the date at which the Moon is closest to a syzygy; `offset` in lunations
/// from new moon. True syzygies are within 0.7 days of the mean ones.
template <typename Function>
double SyzygyNear(double jdUt, double offset, Function separation) {
  const double jdTt = TtFromUt(jdUt);
  const double lunation = std::round((jdTt - kNewMoonJdTt) / kMeanLunationDays - offset) + offset;
  const double mean = kNewMoonJdTt + lunation * kMeanLunationDays;
  return LowestWithin(mean - 1.2, mean + 1.2, separation);
}

/// The Moon's shadow at a moment, in the frame that turns with the Earth.
class MoonShadow {
 public:
  MoonShadow(double jdUt, ShadowCone cone) : cone_(cone) {
    const SunAndMoon bodies = SunAndMoonAt(TtFromUt(jdUt));
    const Matrix3 turn = ToEarthFixed(jdUt);
    moon_ = turn * bodies.moon;
    axis_ = turn * ShadowAxis(bodies);
    const double sign = cone == ShadowCone::Umbra ? -1.0 : 1.0;
    const double moonRadius = MoonRadiusAu(cone);
    sinHalfAngle_ = (kSunRadiusAu + sign * moonRadius) / Length(bodies.moon - bodies.sun);
    apex_ = moon_ - axis_ * (sign * moonRadius / sinHalfAngle_);
  }

  const Vector3& Axis() const { return axis_; }
  const Vector3& Apex() const { return apex_; }
  const Vector3& Moon() const { return moon_; }

  /// Where the axis meets the ground, in au; nothing where it passes the Earth by.
  std::optional<Vector3> Centre() const { return OnGround(moon_, axis_); }

  /// Where the cone's edge on this side of the axis meets the ground.
  std::optional<Vector3> Edge(const Vector3& side) const {
    const double sign = cone_ == ShadowCone::Umbra ? -1.0 : 1.0;
    const double cosHalfAngle = std::sqrt(1.0 - sinHalfAngle_ * sinHalfAngle_);
    return OnGround(apex_, axis_ * cosHalfAngle + side * (sign * sinHalfAngle_));
  }

 private:
  /// The sunward of the two points in which a line meets the ellipsoid.
  static std::optional<Vector3> OnGround(const Vector3& point, const Vector3& direction) {
    const auto stretched = [](const Vector3& v) {
      return Vector3{v.x, v.y, v.z / (1.0 - kEarthFlattening)};
    };
    const Vector3 from = stretched(point);
    const Vector3 along = Normalized(stretched(direction));
    const double middle = -Dot(from, along);
    const Vector3 nearest = from + along * middle;
    const double half = kEarthRadiusAu * kEarthRadiusAu - Dot(nearest, nearest);
    if (half < 0.0) return {};
    const Vector3 hit = nearest - along * std::sqrt(half);
    return Vector3{hit.x, hit.y, hit.z * (1.0 - kEarthFlattening)};
  }

  ShadowCone cone_;
  Vector3 moon_;
  Vector3 axis_;
  Vector3 apex_;
  double sinHalfAngle_ = 0.0;
};

Spherical Geographic(const Vector3& onGround) {
  const double shrink = (1.0 - kEarthFlattening) * (1.0 - kEarthFlattening);
  return DcToAd({onGround.x, onGround.y, onGround.z / shrink});
}

std::optional<Spherical> Geographic(const std::optional<Vector3>& onGround) {
  return onGround ? std::optional(Geographic(*onGround)) : std::nullopt;
}

/// Whether the umbra reaches the ground at a point of its axis.
bool IsTotalAt(const MoonShadow& umbra, const Vector3& ground) {
  return Dot(umbra.Apex() - ground, umbra.Axis()) > 0.0;
}

/// To the right of the umbra's way over the ground, at right angles to its axis.
Vector3 RightOfTheWay(double jdUt, const Vector3& axis, const Vector3& centre) {
  constexpr double kDays = 10.0 / 86400.0;
  const MoonShadow later(jdUt + kDays, ShadowCone::Umbra);
  const double depth = Dot(centre - later.Moon(), later.Axis());
  const Vector3 laterAxisPoint = later.Moon() + later.Axis() * depth;
  return Normalized(Cross(axis, laterAxisPoint - centre));
}

std::optional<CentralPathPoint> CentralPointAt(double jdUt) {
  const MoonShadow umbra(jdUt, ShadowCone::Umbra);
  const std::optional<Vector3> centre = umbra.Centre();
  if (!centre) return {};
  // The lines of the cone cross in its apex, so that an antumbra's edge lies on the other side.
  const bool total = IsTotalAt(umbra, *centre);
  const Vector3 right = RightOfTheWay(jdUt, umbra.Axis(), *centre) * (total ? 1.0 : -1.0);
  return CentralPathPoint{jdUt, Geographic(*centre), Geographic(umbra.Edge(-right)),
                          Geographic(umbra.Edge(right)), total};
}

EclipseKind KindAt(double jdGreatestUt, double missAu) {
  const MoonShadow umbra(jdGreatestUt, ShadowCone::Umbra);
  const MoonShadow penumbra(jdGreatestUt, ShadowCone::Penumbra);
  // On the way of a shadow whose axis passes by, the point of the ground nearest to it.
  const Vector3 axisPoint = umbra.Moon() - umbra.Axis() * Dot(umbra.Moon(), umbra.Axis());
  const Vector3 towardsEarth = missAu > 0.0 ? -axisPoint / missAu : Vector3{};
  const bool central = umbra.Centre() || umbra.Edge(towardsEarth) || umbra.Edge(-towardsEarth);
  if (central) {
    const Vector3 ground =
        umbra.Centre().value_or(Normalized(axisPoint) * (kEarthRadiusAu * (1 - kEarthFlattening)));
    return IsTotalAt(umbra, ground) ? EclipseKind::Total : EclipseKind::Annular;
  }
  return penumbra.Edge(towardsEarth) ? EclipseKind::Partial : EclipseKind::None;
}

EclipseKind LunarKind(double umbralMagnitude, double penumbralMagnitude) {
  if (umbralMagnitude >= 1.0) return EclipseKind::Total;
  if (umbralMagnitude > 0.0) return EclipseKind::Partial;
  return penumbralMagnitude > 0.0 ? EclipseKind::Penumbral : EclipseKind::None;
}

}  // namespace

double EarthShadow::Magnitude(ShadowCone cone) const {
  const double radius = cone == ShadowCone::Umbra ? umbraRadiusDeg : penumbraRadiusDeg;
  return (radius + moonRadiusDeg - separationDeg) / (2.0 * moonRadiusDeg);
}

EarthShadow EarthShadowAt(double jdUt) {
  constexpr double kMeanEarthRadius = 0.998340;
  constexpr double kDanjonEnlargement = 1.01;
  const SunAndMoon bodies = SunAndMoonAt(TtFromUt(jdUt));
  const double sunDistance = Length(bodies.sun);
  EarthShadow shadow;
  shadow.axis = -Normalized(bodies.sun);
  shadow.moonDistanceAu = Length(bodies.moon);
  shadow.separationDeg = AngleBetween(bodies.moon, shadow.axis) * kDegPerRad;
  shadow.moonRadiusDeg =
      std::asin(MoonRadiusAu(ShadowCone::Penumbra) / shadow.moonDistanceAu) * kDegPerRad;
  const double sunRadiusDeg = std::asin(kSunRadiusAu / sunDistance) * kDegPerRad;
  const double sunParallaxDeg = std::asin(kEarthRadiusAu / sunDistance) * kDegPerRad;
  const double moonParallaxDeg =
      std::asin(kEarthRadiusAu / shadow.moonDistanceAu) * kDegPerRad * kMeanEarthRadius;
  const double enlargedDeg = kDanjonEnlargement * moonParallaxDeg + sunParallaxDeg;
  shadow.umbraRadiusDeg = enlargedDeg - sunRadiusDeg;
  shadow.penumbraRadiusDeg = enlargedDeg + sunRadiusDeg;
  return shadow;
}

LunarEclipse LunarEclipseNear(double jdUt) {
  LunarEclipse eclipse;
  eclipse.jdGreatestUt = UtFromTt(SyzygyNear(jdUt, 0.5, FullMoonSeparation));
  const EarthShadow shadow = EarthShadowAt(eclipse.jdGreatestUt);
  eclipse.umbralMagnitude = shadow.Magnitude(ShadowCone::Umbra);
  eclipse.penumbralMagnitude = shadow.Magnitude(ShadowCone::Penumbra);
  eclipse.kind = LunarKind(eclipse.umbralMagnitude, eclipse.penumbralMagnitude);
  return eclipse;
}

SolarEclipse SolarEclipseNear(double jdUt) {
  const double jdTt = SyzygyNear(jdUt, 0.0, [](double jd) { return Length(AxisMiss(jd)); });
  const Vector3 miss = AxisMiss(jdTt);
  SolarEclipse eclipse;
  eclipse.jdGreatestUt = UtFromTt(jdTt);
  eclipse.kind = KindAt(eclipse.jdGreatestUt, Length(miss));
  const bool north = (ToEarthFixed(eclipse.jdGreatestUt) * miss).z > 0.0;
  eclipse.gamma = Length(miss) / kEarthRadiusAu * (north ? 1.0 : -1.0);
  return eclipse;
}

std::vector<std::optional<Spherical>> ShadowOutline(double jdUt, ShadowCone cone, int count) {
  const MoonShadow shadow(jdUt, cone);
  const Vector3 right = Normalized(Cross({0.0, 0.0, 1.0}, shadow.Axis()));
  const Vector3 up = Cross(shadow.Axis(), right);
  std::vector<std::optional<Spherical>> outline;
  outline.reserve(std::max(count, 0));
  for (int i = 0; i < count; ++i) {
    const double angle = 2.0 * std::numbers::pi * i / count;
    outline.push_back(Geographic(shadow.Edge(right * std::cos(angle) + up * std::sin(angle))));
  }
  return outline;
}

std::vector<CentralPathPoint> CentralPathNear(double jdUt, double stepMinutes) {
  constexpr double kLongestHalfHours = 3.0;
  const SolarEclipse eclipse = SolarEclipseNear(jdUt);
  std::vector<CentralPathPoint> path;
  if (!(stepMinutes > 0.0)) return path;
  if (eclipse.kind != EclipseKind::Annular && eclipse.kind != EclipseKind::Total) return path;
  const int steps = static_cast<int>(kLongestHalfHours * 60.0 / stepMinutes);
  for (int i = -steps; i <= steps; ++i) {
    const double jd = eclipse.jdGreatestUt + i * stepMinutes / kMinutesPerDay;
    if (const auto point = CentralPointAt(jd)) path.push_back(*point);
  }
  return path;
}

}  // namespace vyn
