#include "host/view_state.h"

#include <algorithm>

#include "core_link/reply.h"
#include "core_link/statement.h"
#include "engine/reference_engine.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// Where a direction of view is kept, and what it is until it is set.
struct DirectionPath {
  QStringView longitude;
  QStringView latitude;
  Spherical fallback;
};

constexpr DirectionPath kHorizonPath{u"View.Azimuth", u"View.Altitude", {180.0, 40.0}};
constexpr DirectionPath kEclipticPath{u"View.Longitude", u"View.Latitude", {90.0, 0.0}};
constexpr DirectionPath kOutsidePath{
    u"View.Outside.Longitude", u"View.Outside.Latitude", {270.0, 35.0}};

const DirectionPath& SkyPath(ViewKind kind) {
  return kind == ViewKind::Horizon ? kHorizonPath : kEclipticPath;
}

double Clamped(double value, double from, double to) {
  return value >= from ? std::min(value, to) : from;
}

Spherical ReadDirection(const ReferenceEngine& engine, const DirectionPath& path) {
  const double longitude = engine.Number(path.longitude, path.fallback.longitudeDeg);
  const double latitude = engine.Number(path.latitude, path.fallback.latitudeDeg);
  return {degmal(longitude), Clamped(latitude, -90.0, 90.0)};
}

ViewKind ReadKind(ReferenceEngine& engine) {
  if (reply::IsSolarSystem(engine.Property(u"View.Projection"_s))) return ViewKind::SolarSystem;
  const QString coordinate = engine.Property(u"View.Coordinate"_s);
  const bool isEcliptic = coordinate.compare("Ecliptic"_L1, Qt::CaseInsensitive) == 0;
  return isEcliptic ? ViewKind::Ecliptic : ViewKind::Horizon;
}

QString Assignments(const DirectionPath& path, const Spherical& direction) {
  const double latitude = Clamped(direction.latitudeDeg, -90.0, 90.0);
  return u"%1 = %2; %3 = %4"_s.arg(path.longitude.toString())
      .arg(degmal(direction.longitudeDeg), 0, 'f', 4)
      .arg(path.latitude.toString())
      .arg(latitude, 0, 'f', 4);
}

}  // namespace

ViewState ReadViewState(ReferenceEngine& engine) {
  ViewState view;
  view.kind = ReadKind(engine);
  view.direction = ReadDirection(engine, SkyPath(view.kind));
  view.angleDeg = Clamped(engine.Number(u"View.Angle", view.angleDeg), kMinAngleDeg, kMaxAngleDeg);
  view.outside = ReadDirection(engine, kOutsidePath);
  view.distanceAu = Clamped(engine.Number(u"View.Outside.Distance", view.distanceAu),
                            kMinDistanceAu, kMaxDistanceAu);
  view.center = BodyOfPath(engine.Property(u"View.Center"_s)).value_or(SkyBody::Sun);
  view.isTracking = engine.IsOn(u"View.Center.Track");
  return view;
}

namespace view_command {

QString Look(ViewKind kind, const Spherical& direction) {
  return Assignments(SkyPath(kind), direction) + u"; View.Center.Track = FALSE" +
         statement::kRedraw;
}

QString Angle(double angleDeg) {
  const double angle = Clamped(angleDeg, kMinAngleDeg, kMaxAngleDeg);
  return u"View.Angle = %1"_s.arg(angle, 0, 'f', 4) + statement::kRedraw;
}

QString GoOutside(const Spherical& outside) {
  return Assignments(kOutsidePath, outside) + statement::kRedraw;
}

QString Distance(double distanceAu) {
  const double distance = Clamped(distanceAu, kMinDistanceAu, kMaxDistanceAu);
  return u"View.Outside.Distance = %1"_s.arg(distance, 0, 'g', 8) + statement::kRedraw;
}

}  // namespace view_command
}  // namespace vyn
