#include "host/scene_small_bodies.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "engine/element_table.h"
#include "engine/reference_engine.h"
#include "engine/sky/dust_trails.h"
#include "engine/sky/meteorites.h"
#include "engine/sky/sky_snapshot.h"
#include "engine/sky/time_scales.h"
#include "host/scene.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr std::size_t kMostWithAids = 1000;

struct AidSwitch {
  QStringView feature;
  bool SmallBodyAids::*value;
};

// clang-format off
constexpr AidSwitch kAidSwitches[]{
  {u"Magnitude",           &SmallBodyAids::magnitude},
  {u"Date",                &SmallBodyAids::date},
  {u"Vector",              &SmallBodyAids::vector},
  {u"Orbit",               &SmallBodyAids::orbit},
  {u"Orbit.InTheSky",      &SmallBodyAids::orbitInTheSky},
  {u"Orbit.Perpendicular", &SmallBodyAids::perpendicular},
  {u"OrbitalPlane",        &SmallBodyAids::orbitalPlane},
  {u"EclipticPlane",       &SmallBodyAids::eclipticPlane},
};

/// By the number of the orbital type.
constexpr std::array<QRgb, 12> kSymbolColors{
  0xFFFF5050, 0xFFFF7840, 0xFFFFA040, 0xFFFFC850, 0xFFD8E060, 0xFF90E070,
  0xFFC0C0A0, 0xFF70C8C0, 0xFF70A8FF, 0xFFB090FF, 0xFFE090E0, 0xFF909090,
};
// clang-format on

struct TailColumns {
  const SwitchColumn* isOn;
  const SwitchColumn* outline;
  const SwitchColumn* surface;
};

/// Reads one kind's objects.
class SmallBodyReader {
 public:
  SmallBodyReader(const ReferenceEngine& engine, ElementKind kind, const Scene& scene)
      : engine_(engine),
        kind_(kind),
        scene_(scene),
        table_(engine.Elements(kind)),
        switches_(engine.Switches(kind)),
        places_(engine.PlacesAt(kind, scene.jdTt,
                                {scene.viewpoint.position, scene.viewpoint.velocity})) {
    for (std::size_t i = 0; i < aids_.size(); ++i) aids_[i] = Column(kAidSwitches[i].feature);
  }

  const SmallBodyPlaces& Places() const { return places_; }

  bool HasPlace(int object) const { return std::isfinite(places_.FromSite(object).x); }

  /// Whether any object may show more than its point.
  bool MayHaveAids() const {
    return std::any_of(switches_.begin() + 1, switches_.end(),
                       [](const SwitchColumn& column) { return column.OnCount() > 0; });
  }

  bool HasAids(int object) const {
    return std::any_of(switches_.begin() + 1, switches_.end(),
                       [object](const SwitchColumn& column) {
                         return column.OnCount() > 0 && column.IsOn(object);
                       });
  }

  SceneSmallBody Read(int object) const {
    SceneSmallBody body{object, places_.Heliocentric(object), places_.FromSite(object),
                        places_.Magnitude(object)};
    if (!HasAids(object)) return body;
    body.name = Name(object);
    for (std::size_t i = 0; i < aids_.size(); ++i) {
      body.aids.*kAidSwitches[i].value = aids_[i]->IsOn(object);
    }
    body.orbit = table_.BodyAt(object, scene_.jdTt).orbit;
    if (kind_ == ElementKind::Comet) ReadTails(&body);
    return body;
  }

 private:
  const SwitchColumn* Column(QStringView feature) const {
    return &switches_[ObjectSwitchOf(feature)];
  }

  TailColumns ColumnsOf(const QString& tail) const {
    return {Column(tail), Column(QString(tail + u".Outline")), Column(QString(tail + u".Surface"))};
  }

  /// Few comets have a Japanese name; the others are called by their English one in both languages.
  QString Name(int object) const {
    QString name;
    const bool isJapanese = japaneseName_->IsOn(object);
    if (isJapanese) name = table_.JapaneseName(object);
    if (name.isEmpty() && (isJapanese || englishName_->IsOn(object))) {
      name = table_.EnglishName(object);
    }
    if (!identifier_->IsOn(object)) return name;
    const QString identifier = table_.Identifier(object);
    return name.isEmpty() ? identifier : identifier + u' ' + name;
  }

  /// A tail of which neither the outline nor the surface is chosen has its surface.
  template <typename Facts>
  SceneTail<Facts> Tail(int object, const TailColumns& columns, const Facts& facts) const {
    const bool outline = columns.outline->IsOn(object);
    return {facts, outline, !outline || columns.surface->IsOn(object)};
  }

  void ReadTails(SceneSmallBody* body) const {
    const int object = body->object;
    const QString path = u"Solar.Comet.No"_s + QString::number(object + 1);
    const double factor = engine_.IsOn(QString(path + u".AutoEmissionSpan"))
                              ? AdjustedSpanDays(1.0, Length(body->heliocentric))
                              : 1.0;
    const auto number = [&](QStringView feature, double fallback) {
      return engine_.Number(QString(path + feature), fallback);
    };
    if (dustTail_.isOn->IsOn(object)) {
      body->dustTail = Tail(object, dustTail_, GrainsOf(object, number, factor));
    }
    if (ionTail_.isOn->IsOn(object)) {
      body->ionTail =
          Tail(object, ionTail_,
               IonTailSpan{std::max(0.0, number(u".IonTail.EmissionSpan", 3.0)) * factor});
    }
  }

  /// A beta of -1 is not set: the smallest is then 0.2, the largest that of the element record.
  template <typename Number>
  DustTailGrains GrainsOf(int object, const Number& number, double factor) const {
    const DustTailGrains usual;
    DustTailGrains grains;
    grains.emissionSpanDays =
        factor * std::max(0.0, number(u".DustTail.EmissionSpan", usual.emissionSpanDays));
    grains.betaMin = number(u".DustTail.BetaMin", -1.0);
    if (grains.betaMin < 0.0) grains.betaMin = usual.betaMin;
    grains.betaMax = number(u".DustTail.BetaMax", -1.0);
    if (grains.betaMax < 0.0) grains.betaMax = table_.BodyAt(object, scene_.jdTt).betaMax;
    return grains;
  }

  const ReferenceEngine& engine_;
  ElementKind kind_;
  const Scene& scene_;
  const ElementTable& table_;
  const ObjectSwitches& switches_;
  const SmallBodyPlaces& places_;
  // Looked up once: there may be a million objects to ask for.
  std::array<const SwitchColumn*, std::size(kAidSwitches)> aids_{};
  const SwitchColumn* japaneseName_ = Column(u"JapaneseName.Visible");
  const SwitchColumn* englishName_ = Column(u"EnglishName.Visible");
  const SwitchColumn* identifier_ = Column(u"ID.Visible");
  TailColumns dustTail_ = ColumnsOf(u"DustTail"_s);
  TailColumns ionTail_ = ColumnsOf(u"IonTail"_s);
};

/// On a crowded picture only bright comets are named.
void ThinOutNames(std::vector<SceneSmallBody>* bodies) {
  constexpr std::ptrdiff_t kCrowd = 200;
  constexpr double kFaintest = 16.0;
  const auto isNamed = [](const SceneSmallBody& body) { return !body.name.isEmpty(); };
  if (std::count_if(bodies->begin(), bodies->end(), isNamed) <= kCrowd) return;
  for (SceneSmallBody& body : *bodies) {
    if (!(body.magnitude <= kFaintest)) body.name.clear();
  }
}

void ReadComets(const ReferenceEngine& engine, Scene* scene) {
  const SmallBodyReader reader(engine, ElementKind::Comet, *scene);
  for (const int object : engine.ShownObjects(ElementKind::Comet)) {
    if (reader.HasPlace(object)) scene->comets.push_back(reader.Read(object));
  }
  ThinOutNames(&scene->comets);
}

void ReadMinorPlanets(const ReferenceEngine& engine, Scene* scene) {
  const SmallBodyReader reader(engine, ElementKind::MinorPlanet, *scene);
  MinorPlanetPoints& points = scene->minorPlanetPoints;
  points.places = &reader.Places();
  points.shown = engine.ShownObjects(ElementKind::MinorPlanet);
  if (engine.IsOn(u"Solar.MinorPlanet.Symbolic")) {
    points.symbols.reserve(points.shown.size());
    for (const int object : points.shown) {
      points.symbols.push_back(
          kSymbolColors[engine.OrbitalTypeNumber(ElementKind::MinorPlanet, object)]);
    }
  }
  if (!reader.MayHaveAids()) return;
  for (const int object : points.shown) {
    if (!reader.HasAids(object) || !reader.HasPlace(object)) continue;
    scene->minorPlanets.push_back(reader.Read(object));
    if (scene->minorPlanets.size() == kMostWithAids) break;
  }
}

void ReadMeteorites(const ReferenceEngine& engine, Scene* scene) {
  int number = 0;
  for (const Meteorite& meteorite : RecordedMeteorites()) {
    const QString path = u"Solar.Meteorite.No"_s + QString::number(++number);
    if (!engine.IsOn(path)) continue;
    SceneTrack track{.orbit = meteorite.Orbit(),
                     .hasOrbit = engine.IsOn(QString(path + u".Orbit"))};
    const double fallJdTt = TtFromUt(meteorite.FallJdUt());
    track.heliocentric = PositionAt(track.orbit, std::min(scene->jdTt, fallJdTt));
    if (engine.IsOn(QString(path + u".JapaneseName.Visible"))) {
      track.name = meteorite.japaneseName.toString();
    }
    scene->meteorites.push_back(track);
  }
}

void ReadDustTrails(const ReferenceEngine& engine, Scene* scene) {
  int number = 0;
  for (const DustTrail& trail : KnownDustTrails()) {
    const QString path = u"Solar.DustTrail.No"_s + QString::number(++number);
    if (!engine.IsOn(path)) continue;
    scene->dustTrails.push_back({.name = trail.name.toString(),
                                 .orbit = trail.orbit,
                                 .hasOrbit = engine.IsOn(QString(path + u".Orbit"))});
  }
}

}  // namespace

void ReadSmallBodies(const ReferenceEngine& engine, Scene* scene) {
  if (engine.IsOn(u"Solar.Comet")) ReadComets(engine, scene);
  if (engine.IsOn(u"Solar.MinorPlanet")) ReadMinorPlanets(engine, scene);
  ReadMeteorites(engine, scene);
  ReadDustTrails(engine, scene);
}

}  // namespace vyn
