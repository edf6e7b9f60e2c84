#include "host/image_overlays.h"

#include <algorithm>

#include "engine/reference_engine.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kSurfaceLayers = 10;

/// Reads below one path of the engine.
class Node {
 public:
  Node(ReferenceEngine& engine, QString path) : engine_(engine), path_(std::move(path)) {}

  bool IsOn(QStringView member) const { return engine_.IsOn(QString(path_ + member)); }
  QString Text(QStringView member) const { return engine_.Property(path_ + member); }
  double Number(QStringView member, double fallback = 0.0) const {
    return engine_.Number(QString(path_ + member), fallback);
  }
  double Opacity() const { return std::clamp(Number(u".Brightness", 1.0), 0.0, 1.0); }
  int Count() const { return static_cast<int>(Number(u".Count")); }
  Node Member(int number) const { return {engine_, path_ + u".#"_s + QString::number(number)}; }

  Placement ReadPlacement() const {
    return {Number(u".Offset.X"), Number(u".Offset.Y"),
            std::clamp(Number(u".Radius", 0.3), kMinRadius, kMaxRadius), Number(u".Roll")};
  }

 private:
  ReferenceEngine& engine_;
  QString path_;
};

/// Calls `action` for every set that is switched on, if the whole node is.
template <class Action>
void ForEachShown(const Node& node, Action action) {
  if (!node.IsOn(u".Visible")) return;
  for (int number = 1; number <= node.Count(); ++number) {
    const Node set = node.Member(number);
    if (set.IsOn(u".Visible")) action(set);
  }
}

/// The sets of a corona have no opacity of their own.
void ReadImages(const Node& node, std::vector<ImageOverlay>* images) {
  ForEachShown(node, [&](const Node& set) {
    const QString path = set.Text(u".ImageFile");
    if (path.isEmpty()) return;
    images->push_back({path, set.ReadPlacement(), node.Opacity() * set.Opacity()});
  });
}

/// The active image lies over the others.
void ReadTakenImages(const Node& node, std::vector<ImageOverlay>* images) {
  const QString active = node.Text(u".Active");
  std::vector<ImageOverlay> onTop;
  ForEachShown(node, [&](const Node& set) {
    const QString path = set.Text(u".ImageFile");
    if (path.isEmpty()) return;
    const bool isActive = !active.isEmpty() && set.Text(u".Label") == active;
    (isActive ? onTop : *images)
        .push_back({path, set.ReadPlacement(), node.Opacity() * set.Opacity()});
  });
  images->insert(images->end(), onTop.begin(), onTop.end());
}

void ReadLayers(const Node& surface, std::vector<SurfaceLayer>* layers) {
  for (int number = 1; number <= kSurfaceLayers; ++number) {
    const Node layer = surface.Member(number);
    const QString path = layer.Text(u".File");
    if (path.isEmpty() || !layer.IsOn(u".Visible")) continue;
    layers->push_back({{path, layer.ReadPlacement(), layer.Opacity()},
                       layer.Number(u".Date"),
                       layer.Number(u".Range", 90.0)});
  }
}

void ReadSpots(const Node& node, std::vector<SunSpot>* spots) {
  ForEachShown(node, [spots](const Node& set) {
    for (int number = 1; number <= set.Count(); ++number) {
      const Node spot = set.Member(number);
      spots->push_back({spot.Number(u".Longitude"), spot.Number(u".Latitude"),
                        static_cast<int>(spot.Number(u".Type", 1.0))});
    }
  });
}

}  // namespace

const BodyOverlays* Overlays::Of(SkyBody body) const {
  switch (body) {
    case SkyBody::Sun:
      return &sun;
    case SkyBody::Mars:
      return &mars;
    case SkyBody::Jupiter:
      return &jupiter;
    default:
      return nullptr;
  }
}

Overlays ReadOverlays(ReferenceEngine& engine) {
  Overlays overlays;
  ReadSpots({engine, u"Solar.Sun.Sunspot"_s}, &overlays.sun.spots);
  ReadImages({engine, u"Solar.Sun.Corona"_s}, &overlays.sun.images);
  ReadTakenImages({engine, u"Solar.Sun.TakenImage"_s}, &overlays.sun.images);
  for (const auto& [path, body] : {std::pair{u"Solar.Planet.Mars"_s, &overlays.mars},
                                   std::pair{u"Solar.Planet.Jupiter"_s, &overlays.jupiter}}) {
    ReadLayers({engine, path + u".Surface"_s}, &body->layers);
    ReadTakenImages({engine, path + u".TakenImage"_s}, &body->images);
  }
  return overlays;
}

}  // namespace vyn
