#include "resources/pictures.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>

#include <QPainter>
#include <QPainterPath>

namespace vyn {
namespace {

// Every picture is drawn in a square from -1 to 1.

constexpr QRgb kOff = 0xFFB8B8B8;

QPen Line(QRgb color, double width) {
  return {QColor(color), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// A star: bright enough to be shown, or not.
void DrawStar(QPainter& painter, bool on) {
  constexpr int kPoints = 5;
  QPainterPath star;
  for (int i = 0; i < 2 * kPoints; ++i) {
    const double angle = std::numbers::pi * i / kPoints;
    const double radius = i % 2 == 0 ? 0.9 : 0.38;
    const QPointF point(radius * std::sin(angle), -radius * std::cos(angle));
    i == 0 ? star.moveTo(point) : star.lineTo(point);
  }
  star.closeSubpath();
  painter.setPen(Line(on ? 0xFFB07800 : kOff, 0.12));
  painter.setBrush(on ? QColor(0xFFF0B000) : QColor(Qt::transparent));
  painter.drawPath(star);
}

/// A body on its orbit.
void DrawOrbit(QPainter& painter, bool on) {
  painter.setPen(Line(on ? 0xFF2060C0 : kOff, 0.14));
  painter.setBrush(Qt::NoBrush);
  painter.rotate(-25);
  painter.drawEllipse(QPointF(0, 0), 0.9, 0.5);
  painter.setBrush(on ? QColor(0xFF2060C0) : QColor(Qt::white));
  painter.drawEllipse(QPointF(0.62, -0.36), 0.2, 0.2);
}

/// A spectrum with its lines.
void DrawSpectrum(QPainter& painter, bool on) {
  constexpr QRgb kColors[] = {0xFF7030C0, 0xFF2070E0, 0xFF20A040, 0xFFE0B000, 0xFFD03020};
  constexpr double kWidth = 1.7 / std::size(kColors);
  painter.setPen(Qt::NoPen);
  for (std::size_t i = 0; i < std::size(kColors); ++i) {
    painter.setBrush(QColor(on ? kColors[i] : kOff));
    painter.drawRect(QRectF(-0.85 + kWidth * static_cast<double>(i), -0.6, kWidth * 0.8, 1.2));
  }
}

/// An arrow that points to where the search goes in the list.
void DrawSearch(QPainter& painter, QRgb color, bool upwards) {
  painter.setPen(Line(color, 0.2));
  painter.setBrush(Qt::NoBrush);
  if (!upwards) painter.scale(1, -1);
  painter.drawPolyline(QPolygonF({{-0.62, 0.0}, {0.0, -0.66}, {0.62, 0.0}}));
  painter.drawLine(QPointF(0.0, -0.6), QPointF(0.0, 0.85));
}

constexpr QRgb kDarkGlyph = 0xFF303030, kLightGlyph = 0xFFE8E8E8;

struct Picture {
  int number;
  int imageCount;
  void (*draw)(QPainter& painter, int image);
};

// clang-format off
constexpr Picture kPictures[] = {
  // The search buttons, for light windows and for dark ones.
  {13100, 1, [](QPainter& painter, int) { DrawSearch(painter, kDarkGlyph, true); }},
  {13101, 1, [](QPainter& painter, int) { DrawSearch(painter, kLightGlyph, true); }},
  {13102, 1, [](QPainter& painter, int) { DrawSearch(painter, kDarkGlyph, false); }},
  {13103, 1, [](QPainter& painter, int) { DrawSearch(painter, kLightGlyph, false); }},
  // The indicators of the object lists, off and on.
  {13200, 2, [](QPainter& painter, int image) { DrawStar(painter, image != 0); }},
  {13201, 2, [](QPainter& painter, int image) { DrawOrbit(painter, image != 0); }},
  {13202, 2, [](QPainter& painter, int image) { DrawSpectrum(painter, image != 0); }},
};
// clang-format on

const Picture* Find(int number) {
  const auto* found = std::ranges::find(kPictures, number, &Picture::number);
  return found != std::end(kPictures) ? found : nullptr;
}

}  // namespace

int ImageCountOf(int number) {
  const Picture* picture = Find(number);
  return picture != nullptr ? picture->imageCount : 0;
}

void DrawPicture(QPainter& painter, int number, int image, const QRectF& area) {
  const Picture* picture = Find(number);
  if (picture == nullptr || image < 0 || image >= picture->imageCount) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(area.center());
  const double half = std::min(area.width(), area.height()) / 2.0;
  painter.scale(half, half);
  picture->draw(painter, image);
  painter.restore();
}

QPixmap LoadPicture(int number, const QSize& size, double devicePixelRatio) {
  QPixmap pixmap((QSizeF(size) * devicePixelRatio).toSize());
  pixmap.setDevicePixelRatio(devicePixelRatio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  DrawPicture(painter, number, 0, QRectF(QPointF(), QSizeF(size)));
  return pixmap;
}

}  // namespace vyn
