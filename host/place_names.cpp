#include "host/place_names.h"

#include <algorithm>
#include <vector>

#include <QFontMetricsF>
#include <QPainter>

#include "host/disk_painter.h"
#include "host/display_state.h"
#include "host/surface_places.h"

namespace vyn {
namespace {

constexpr double kSmallestFeaturePixels = 4.0;
const QColor kNameColor(255, 224, 150);
const QColor kLeadLineShadow(20, 16, 0, 110);

struct NamedPlace {
  QPointF at;
  QString name;
};

LabelStyle NameStyle() { return {kNameColor, LabelFont(9)}; }

QString NameOf(const SurfacePlace& place, const BodyDisplay& display) {
  const bool isEnglish = display.englishName && !display.japaneseName;
  return (isEnglish ? place.englishName : place.japaneseName).toString();
}

std::vector<NamedPlace> VisiblePlaces(SkyBody body, const Disk& disk, const BodyDisplay& display) {
  std::vector<NamedPlace> visible;
  for (const SurfacePlace& place : PlacesOn(body)) {
    const auto at = disk.AtPlace(place.longitudeDeg, place.latitudeDeg);
    const double pixels = place.diameterKm / RadiusKm(body) * disk.radius;
    if (at && pixels >= kSmallestFeaturePixels) visible.push_back({*at, NameOf(place, display)});
  }
  return visible;
}

/// The heights of a column's lines: each as near to its feature as the lines above and below let it
/// be, all between the disk's top and bottom where they fit there.
std::vector<double> ColumnHeights(const std::vector<NamedPlace>& places, const Disk& disk,
                                  double lineHeight) {
  std::vector<double> heights;
  double next = disk.center.y() - disk.radius;
  for (const NamedPlace& place : places) {
    heights.push_back(std::max(next, place.at.y()));
    next = heights.back() + lineHeight;
  }
  double limit = disk.center.y() + disk.radius;
  for (std::size_t i = heights.size(); i-- > 0;) {
    heights[i] = std::min(heights[i], limit);
    limit = heights[i] - lineHeight;
  }
  return heights;
}

void PaintLeadLine(QPainter& painter, const QPointF& from, const QPointF& to) {
  painter.setPen(QPen(kLeadLineShadow, 2.2));
  painter.drawLine(from, to);
  painter.setPen(QPen(kNameColor, 0.9));
  painter.drawLine(from, to);
}

/// One column of names beside the disk; `side` is -1 for the left one and 1 for the right one.
void PaintColumn(QPainter& painter, const Disk& disk, std::vector<NamedPlace> places, double side,
                 LabelLayer& labels) {
  const LabelStyle style = NameStyle();
  const QFontMetricsF metrics(style.font);
  const double lineHeight = metrics.height() + 2.0;
  std::sort(places.begin(), places.end(),
            [](const NamedPlace& a, const NamedPlace& b) { return a.at.y() < b.at.y(); });
  const std::vector<double> heights = ColumnHeights(places, disk, lineHeight);
  const double x = disk.center.x() + side * (disk.radius + 26.0);
  for (std::size_t i = 0; i < places.size(); ++i) {
    PaintLeadLine(painter, places[i].at, {x, heights[i]});
    const double width = metrics.horizontalAdvance(places[i].name);
    const double left = side > 0.0 ? x + 3.0 : x - 3.0 - width;
    const QRectF area(left, heights[i] - lineHeight / 2.0, width, lineHeight);
    DrawText(painter, area, places[i].name, style);
    labels.Reserve(area);
  }
}

void PaintWithLeadLines(QPainter& painter, const Disk& disk, const std::vector<NamedPlace>& places,
                        LabelLayer& labels) {
  std::vector<NamedPlace> left;
  std::vector<NamedPlace> right;
  for (const NamedPlace& place : places) {
    (place.at.x() < disk.center.x() ? left : right).push_back(place);
  }
  PaintColumn(painter, disk, left, -1.0, labels);
  PaintColumn(painter, disk, right, 1.0, labels);
}

}  // namespace

void PaintPlaceNames(QPainter& painter, SkyBody body, const Disk& disk, const BodyDisplay& display,
                     LabelLayer& labels) {
  if (!display.placeNames) return;
  const std::vector<NamedPlace> places = VisiblePlaces(body, disk, display);
  if (display.leadLines) {
    PaintWithLeadLines(painter, disk, places, labels);
    return;
  }
  painter.setPen(Qt::NoPen);
  painter.setBrush(kNameColor);
  for (const NamedPlace& place : places) {
    painter.drawEllipse(place.at, 1.5, 1.5);
    labels.Add({place.at, 3.0, place.name, NameStyle(), LabelRank::Place});
  }
}

}  // namespace vyn
