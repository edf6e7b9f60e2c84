#include "host/small_body_style.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QStringList>

#include "engine/sky/sky_snapshot.h"
#include "host/point_batches.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr std::size_t kCrowd = 20000;
constexpr int kSymbolPixels = 2;

/// In a crowd only what binoculars show stands out.
int PointPixels(float magnitude, bool isCrowded) {
  if (magnitude <= 9.0F) return 3;
  return !isCrowded || magnitude <= 12.0F ? 2 : 1;
}

QRgb PointColor(float magnitude) {
  const double part = std::isnan(magnitude) ? 0.5 : std::clamp((24.0 - magnitude) / 14.0, 0.3, 1.0);
  const QColor color = MinorPlanetColor();
  return qPremultiply(
      qRgba(color.red(), color.green(), color.blue(), static_cast<int>(255 * part)));
}

}  // namespace

QColor DustTrailColor(const DisplayState& display) {
  return display.dustTrailColor.isValid() ? display.dustTrailColor : QColor(128, 128, 128);
}

QColor WithAlpha(QColor color, int alpha) {
  color.setAlpha(alpha);
  return color;
}

QString LabelText(const Frame& frame, const SceneSmallBody& body) {
  QStringList parts;
  if (!body.name.isEmpty()) parts << body.name;
  if (body.aids.date) parts << frame.dateText;
  if (body.aids.magnitude && !std::isnan(body.magnitude)) {
    parts << u"%1等"_s.arg(body.magnitude, 0, 'f', 1);
  }
  return parts.join(u' ');
}

void AddLabel(const Frame& frame, const SceneSmallBody& body, const SmallBodyDisplay& display,
              const QPointF& at, LabelLayer& labels) {
  const QString text = LabelText(frame, body);
  if (text.isEmpty()) return;
  labels.Add({at, 4.0, text, StyleOr(display.style, MinorPlanetColor()), LabelRank::Faint});
}

void PaintMinorPlanetPoints(QPainter& painter, const Frame& frame,
                            const std::function<std::optional<QPointF>(int object)>& toPicture) {
  const MinorPlanetPoints& points = frame.scene.minorPlanetPoints;
  if (points.shown.empty()) return;
  const bool isCrowded = points.shown.size() > kCrowd;
  PointCloud cloud(frame.size);
  for (std::size_t i = 0; i < points.shown.size(); ++i) {
    const int object = points.shown[i];
    const auto at = toPicture(object);
    if (!at) continue;
    const float magnitude = points.places->Magnitude(object);
    if (points.symbols.empty()) {
      cloud.Add(*at, PointColor(magnitude), PointPixels(magnitude, isCrowded));
    } else {
      cloud.Add(*at, points.symbols[i], kSymbolPixels);
    }
  }
  cloud.Paint(painter);
}

void PaintMeteorite(QPainter& painter, LabelLayer& labels, const SceneTrack& meteorite,
                    const LabelStyle& style, const QPointF& at) {
  constexpr double kHalf = 3.5;
  painter.setPen(QPen(style.color, 1.4));
  painter.drawLine(at - QPointF(kHalf, kHalf), at + QPointF(kHalf, kHalf));
  painter.drawLine(at - QPointF(kHalf, -kHalf), at + QPointF(kHalf, -kHalf));
  if (!meteorite.name.isEmpty()) labels.Add({at, 5.0, meteorite.name, style, LabelRank::Place});
}

}  // namespace vyn
