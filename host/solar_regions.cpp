#include "host/solar_regions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

#include "host/line_builder.h"
#include "host/solar_canvas.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// A region filled with points that stand for its bodies. The points are no real bodies: they show
/// where the region is and how thick.
struct Belt {
  bool DisplayState::*isOn;
  QStringView name;
  double innerAu;
  double outerAu;
  double thicknessDeg;  ///< most points are within this latitude
  QRgb color;
  int count;
};

// clang-format off
/// Extent: main belt between the 4:1 and 2:1 resonances with Jupiter; Kuiper belt between the 2:3
/// and 1:2 resonances with Neptune.
constexpr std::array<Belt, 2> kBelts{{
  {&DisplayState::mainBelt,   u"小惑星メインベルト",         2.06,  3.28,  8.0, 0xFFB89868, 2200},
  {&DisplayState::kuiperBelt, u"エッジワース・カイパーベルト", 39.4, 47.8, 10.0, 0xFF7C9CD8, 2200},
}};
// clang-format on

/// Kopparapu et al. 2013, ApJ 765, 131: from runaway to maximum greenhouse.
constexpr double kHabitableInnerAu = 0.99;
constexpr double kHabitableOuterAu = 1.70;
const QColor kHabitableColor(90, 220, 130);

constexpr double kOortInnerAu = 2000.0;
constexpr double kOortOuterAu = 100000.0;
const QColor kOortColor(160, 180, 230);

/// Numbers in [0, 1), the same in every run and on every platform.
class Chance {
 public:
  explicit Chance(unsigned seed) : engine_(seed) {}
  double Next() { return engine_() / 4294967296.0; }

 private:
  std::mt19937 engine_;
};

std::vector<Vector3> BeltPoints(const Belt& belt) {
  Chance chance(20260101);
  std::vector<Vector3> points;
  points.reserve(belt.count);
  for (int i = 0; i < belt.count; ++i) {
    const double radius = belt.innerAu + (belt.outerAu - belt.innerAu) * chance.Next();
    const double longitude = 360.0 * chance.Next();
    const double latitude = belt.thicknessDeg * (chance.Next() + chance.Next() - 1.0);
    points.push_back(radius * AdToDc(longitude, latitude));
  }
  return points;
}

/// Even in direction; the number at a distance falls so that each decade holds about as many.
std::vector<Vector3> OortPoints() {
  constexpr int kCount = 4000;
  Chance chance(20260102);
  std::vector<Vector3> points;
  points.reserve(kCount);
  for (int i = 0; i < kCount; ++i) {
    const double radius = kOortInnerAu * std::pow(kOortOuterAu / kOortInnerAu, chance.Next());
    const double latitude = std::asin(2.0 * chance.Next() - 1.0) * kDegPerRad;
    points.push_back(radius * AdToDc(360.0 * chance.Next(), latitude));
  }
  return points;
}

/// Small squares: round points would cost more than all the rest of the picture.
void PaintPoints(SolarCanvas& canvas, const std::vector<Vector3>& places, const QColor& color) {
  constexpr double kSize = 1.6;
  QList<QRectF> squares;
  squares.reserve(static_cast<qsizetype>(places.size()));
  for (const Vector3& place : places) {
    const auto at = canvas.camera.ToPicture(place);
    if (at && canvas.IsInPicture(*at, 2.0)) squares.emplace_back(at->x(), at->y(), kSize, kSize);
  }
  canvas.painter.save();
  canvas.painter.setRenderHint(QPainter::Antialiasing, false);
  canvas.painter.setPen(Qt::NoPen);
  canvas.painter.setBrush(color);
  canvas.painter.drawRects(squares);
  canvas.painter.restore();
}

std::vector<Vector3> RingEdge(double radiusAu) {
  return CirclePoints({}, {radiusAu, 0.0, 0.0}, {0.0, radiusAu, 0.0}, 144);
}

/// The name stands at the ring's nearest point, below the middle of the picture.
void AddRingLabel(SolarCanvas& canvas, const QString& name, double radiusAu, const QColor& color) {
  // A ring that is but a spot has no room for its name.
  if (canvas.PixelsAtTarget(radiusAu) < 25.0) return;
  const Vector3 direction = AdToDc(canvas.frame.view.outside.longitudeDeg - 60.0, 0.0);
  const LabelStyle style{color, canvas.frame.display.regionStyle.font};
  if (const auto at = canvas.camera.ToPicture(radiusAu * direction)) {
    canvas.labels.Add({*at, 2.0, name, style, LabelRank::Place});
  }
}

/// A ring in the plane of the ecliptic, piece by piece, so that a piece behind the camera is left
/// out.
void FillRing(SolarCanvas& canvas, double innerAu, double outerAu, const QColor& color) {
  const std::vector<Vector3> inner = RingEdge(innerAu);
  const std::vector<Vector3> outer = RingEdge(outerAu);
  canvas.painter.save();
  canvas.painter.setRenderHint(QPainter::Antialiasing, false);
  canvas.painter.setPen(Qt::NoPen);
  canvas.painter.setBrush(color);
  for (std::size_t i = 1; i < inner.size(); ++i) {
    QPolygonF piece;
    for (const Vector3& corner : {inner[i - 1], outer[i - 1], outer[i], inner[i]}) {
      if (const auto at = canvas.camera.ToPicture(corner)) piece << *at;
    }
    if (piece.size() == 4) canvas.painter.drawPolygon(piece);
  }
  canvas.painter.restore();
}

void PaintBelt(SolarCanvas& canvas, const Belt& belt, std::size_t index) {
  static const std::array<std::vector<Vector3>, kBelts.size()> points{BeltPoints(kBelts[0]),
                                                                      BeltPoints(kBelts[1])};
  QColor color = index == 0 ? canvas.frame.display.regionStyle.color : QColor();
  if (!color.isValid()) color = QColor::fromRgb(belt.color);
  QColor faint = color;
  faint.setAlpha(26);
  FillRing(canvas, belt.innerAu, belt.outerAu, faint);
  PaintPoints(canvas, points[index], color);
  AddRingLabel(canvas, belt.name.toString(), belt.outerAu, color.lighter(140));
}

void PaintHabitableZone(SolarCanvas& canvas) {
  QColor fill = kHabitableColor;
  fill.setAlpha(56);
  FillRing(canvas, kHabitableInnerAu, kHabitableOuterAu, fill);
  for (const double radius : {kHabitableInnerAu, kHabitableOuterAu}) {
    canvas.Stroke(SpaceLine(canvas.camera, RingEdge(radius)), QPen(kHabitableColor, 1.0));
  }
  AddRingLabel(canvas, u"ハビタブルゾーン"_s, kHabitableOuterAu, kHabitableColor);
}

void PaintOortCloud(SolarCanvas& canvas) {
  static const std::vector<Vector3> points = OortPoints();
  const double opacity =
      canvas.frame.display.oortCloudFades ? OortCloudOpacity(canvas.camera.DistanceAu()) : 1.0;
  if (opacity <= 0.0) return;
  QColor color = kOortColor;
  color.setAlphaF(static_cast<float>(0.75 * opacity));
  PaintPoints(canvas, points, color);
  AddRingLabel(canvas, u"オールトの雲"_s, kOortOuterAu / 2.0, color);
}

/// A distance to which the cosmic scale draws a circle.
struct ScaleRow {
  QStringView name;
  double radiusAu;
};

// clang-format off
constexpr std::array<ScaleRow, 13> kScale{{
  {u"1光秒（30万km）",        0.00200399},
  {u"10光秒",                 0.0200399},
  {u"1光分",                  0.120239},
  {u"1 au（1億5000万km）",    1.0},
  {u"1光時（7.2 au）",        7.21436},
  {u"30 au",                  30.0},
  {u"100 au",                 100.0},
  {u"1光日（173 au）",        173.145},
  {u"1000 au",                1000.0},
  {u"1光月（5270 au）",       5270.09},
  {u"1万 au",                 10000.0},
  {u"1光年（6万3241 au）",    63241.1},
  {u"10光年",                 632411.0},
}};
// clang-format on

}  // namespace

void PaintSolarRegions(SolarCanvas& canvas) {
  const DisplayState& display = canvas.frame.display;
  if (display.oortCloud) PaintOortCloud(canvas);
  for (std::size_t i = 0; i < kBelts.size(); ++i) {
    if (display.*kBelts[i].isOn) PaintBelt(canvas, kBelts[i], i);
  }
  if (display.habitableZone) PaintHabitableZone(canvas);
}

void PaintCosmicScale(SolarCanvas& canvas) {
  if (!canvas.frame.display.cosmicScale) return;
  const QColor color(230, 170, 255);
  const LabelStyle style{color, LabelFont(9)};
  const double farthest = std::hypot(canvas.frame.size.width(), canvas.frame.size.height()) / 2.0;
  const QPointF middle(canvas.frame.size.width() / 2.0, canvas.frame.size.height() / 2.0);
  canvas.painter.setBrush(Qt::NoBrush);
  for (const ScaleRow& row : kScale) {
    const double radius = canvas.PixelsAtTarget(row.radiusAu);
    if (radius < 24.0 || radius > farthest) continue;
    canvas.painter.setPen(QPen(QColor(230, 170, 255, 150), 1.0, Qt::DashLine));
    canvas.painter.drawEllipse(middle, radius, radius);
    const QPointF at = middle + radius * QPointF(std::cos(0.9), -std::sin(0.9));
    canvas.labels.Add({at, 3.0, row.name.toString(), style, LabelRank::Place});
  }
}

double OortCloudOpacity(double cameraDistanceAu) {
  constexpr double kStartAu = 1000.0;
  constexpr double kFullAu = 100000.0;
  const double part = std::log(cameraDistanceAu / kStartAu) / std::log(kFullAu / kStartAu);
  const double clamped = std::clamp(part, 0.0, 1.0);
  return clamped * clamped * (3.0 - 2.0 * clamped);
}

}  // namespace vyn
