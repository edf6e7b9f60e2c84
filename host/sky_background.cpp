#include "host/sky_background.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "host/line_builder.h"
#include "host/sky_canvas.h"
#include "host/vector_registers.h"
#include "host/zodiacal_glow.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

const QColor kGridColor(96, 124, 168, 90);
const QColor kEclipticColor(226, 190, 96, 130);
const QColor kHorizonColor(120, 168, 120, 210);

/// The colour of the sky for the Sun's altitude, between whose rows it is mixed.
struct SkyColor {
  double sunAltitudeDeg;
  QRgb zenith;
  QRgb horizon;
};

constexpr std::array<SkyColor, 5> kSkyColors{{
    {-18.0, 0xFF050814, 0xFF0C1226},
    {-10.0, 0xFF081024, 0xFF182444},
    {-4.0, 0xFF101C40, 0xFF4A4460},
    {0.0, 0xFF203866, 0xFF8A6C62},
    {10.0, 0xFF2C5488, 0xFF6C90B4},
}};

QColor Mixed(QRgb a, QRgb b, double part) {
  const auto mix = [part](int from, int to) { return static_cast<int>(from + (to - from) * part); };
  return {mix(qRed(a), qRed(b)), mix(qGreen(a), qGreen(b)), mix(qBlue(a), qBlue(b))};
}

struct SkyColors {
  QColor zenith;
  QColor horizon;
};

SkyColors ColorsFor(double sunAltitudeDeg) {
  const double altitude = std::clamp(sunAltitudeDeg, kSkyColors.front().sunAltitudeDeg,
                                     kSkyColors.back().sunAltitudeDeg);
  const auto above =
      std::find_if(kSkyColors.begin() + 1, kSkyColors.end() - 1,
                   [altitude](const SkyColor& row) { return row.sunAltitudeDeg >= altitude; });
  const SkyColor& from = *(above - 1);
  const double part =
      (altitude - from.sunAltitudeDeg) / (above->sunAltitudeDeg - from.sunAltitudeDeg);
  return {Mixed(from.zenith, above->zenith, part), Mixed(from.horizon, above->horizon, part)};
}

/// Only the Earth's air scatters light.
SkyColors ColorsOf(const Frame& frame) {
  const Viewpoint& viewpoint = frame.scene.viewpoint;
  if (frame.view.kind != ViewKind::Horizon || viewpoint.body != SkyBody::Earth)
    return ColorsFor(-90.0);
  return ColorsFor(DcToAd(viewpoint.toHorizon * frame.scene.Of(SkyBody::Sun).seen).latitudeDeg);
}

void PaintDustLight(SkyCanvas& canvas) {
  const DisplayState& display = canvas.frame.display;
  if (!display.zodiacalLight && !display.counterGlow) return;
  const Viewpoint& viewpoint = canvas.frame.scene.viewpoint;
  const Spherical sun = DcToAd(viewpoint.toEcliptic * canvas.frame.scene.Of(SkyBody::Sun).seen);
  const QImage glow =
      DustLightImage(canvas.projection, viewpoint.toEcliptic * Transposed(viewpoint.toView),
                     sun.longitudeDeg, display.zodiacalLight, display.counterGlow);
  canvas.painter.setRenderHint(QPainter::SmoothPixmapTransform);
  canvas.painter.drawImage(QRectF(QPointF(), canvas.frame.size), glow);
}

/// About six lines across the picture.
double GridStepDeg(double angleDeg) {
  constexpr std::array<double, 9> kSteps{0.05, 0.1, 0.25, 0.5, 1.0, 2.0, 5.0, 10.0, 30.0};
  const auto fitting = std::find_if(kSteps.begin(), kSteps.end(),
                                    [angleDeg](double step) { return angleDeg / step <= 7.0; });
  return fitting != kSteps.end() ? *fitting : kSteps.back();
}

/// A parallel or an arc of a meridian as directions. It is fine enough to look round.
std::vector<Vector3> Arc(const Spherical& from, const Spherical& to) {
  constexpr int kPoints = 90;
  std::vector<Vector3> arc;
  arc.reserve(kPoints + 1);
  for (int i = 0; i <= kPoints; ++i) {
    const double part = static_cast<double>(i) / kPoints;
    arc.push_back(AdToDc(from.longitudeDeg + (to.longitudeDeg - from.longitudeDeg) * part,
                         from.latitudeDeg + (to.latitudeDeg - from.latitudeDeg) * part));
  }
  return arc;
}

QString DegreesText(double degrees) { return u"%1°"_s.arg(degrees, 0, 'g', 6); }

/// What part of the sky's longitudes and latitudes the picture shows, about.
struct GridRange {
  Spherical middle;
  double reachDeg;
  double latitudeStepDeg;
  double longitudeStepDeg;

  double Longitude(int line) const {
    return (std::round(middle.longitudeDeg / longitudeStepDeg) + line) * longitudeStepDeg;
  }
  double Latitude(int line) const {
    return (std::round(middle.latitudeDeg / latitudeStepDeg) + line) * latitudeStepDeg;
  }
  int Parallels() const { return static_cast<int>(std::ceil(reachDeg / latitudeStepDeg)) + 1; }
  double LowestDeg() const { return std::max(-90.0, middle.latitudeDeg - reachDeg); }
  double HighestDeg() const { return std::min(90.0, middle.latitudeDeg + reachDeg); }
  /// Meridians crowd towards the poles.
  int Meridians() const {
    const double farthest = std::max(std::abs(LowestDeg()), std::abs(HighestDeg()));
    const double narrow = std::cos(std::min(farthest, 89.9) * kRadPerDeg);
    const double reach = std::min(180.0, reachDeg / narrow + longitudeStepDeg);
    return static_cast<int>(std::ceil(reach / longitudeStepDeg));
  }
};

GridRange RangeOf(const SkyCanvas& canvas) {
  const QSizeF& size = canvas.frame.size;
  const Vector3 middle = canvas.projection.ToDirection({size.width() / 2.0, size.height() / 2.0});
  const Spherical place = DcToAd(middle);
  const double angleDeg = canvas.frame.view.angleDeg;
  const double narrow = std::cos(std::min(std::abs(place.latitudeDeg), 85.0) * kRadPerDeg);
  return {place, std::min(170.0, canvas.projection.FarthestRad() * kDegPerRad),
          GridStepDeg(angleDeg), GridStepDeg(angleDeg / narrow)};
}

void AddGridLabel(SkyCanvas& canvas, const std::optional<QPointF>& at, const QPointF& shift,
                  const QString& text, const LabelStyle& style) {
  if (at) canvas.labels.Add({*at + shift, 1.0, text, style, LabelRank::Faint});
}

void PaintParallels(SkyCanvas& canvas, const GridRange& range, const LabelStyle& style) {
  const double reach = std::min(180.0, range.Meridians() * range.longitudeStepDeg);
  for (int line = -range.Parallels(); line <= range.Parallels(); ++line) {
    const double latitude = range.Latitude(line);
    if (std::abs(latitude) >= 90.0) continue;
    const double middle = range.middle.longitudeDeg;
    canvas.Stroke(
        SkyLine(canvas.projection, Arc({middle - reach, latitude}, {middle + reach, latitude})),
        QPen(kGridColor, 1.0));
    const auto at = canvas.projection.ToPicture(AdToDc(range.Longitude(0), latitude));
    AddGridLabel(canvas, at, {3.0, -7.0}, DegreesText(latitude), style);
  }
}

/// Longitudes are told as the user knows them: azimuths in horizontal coordinates.
void PaintMeridians(SkyCanvas& canvas, const GridRange& range, const LabelStyle& style) {
  const bool isHorizon = canvas.frame.view.kind == ViewKind::Horizon;
  const int count = range.Meridians();
  for (int line = 1 - count; line <= count; ++line) {
    const double longitude = range.Longitude(line);
    canvas.Stroke(SkyLine(canvas.projection,
                          Arc({longitude, range.LowestDeg()}, {longitude, range.HighestDeg()})),
                  QPen(kGridColor, 1.0));
    const auto at = canvas.projection.ToPicture(AdToDc(longitude, range.Latitude(0)));
    const double told = degmal(isHorizon ? -longitude : longitude);
    AddGridLabel(canvas, at, {3.0, 8.0}, DegreesText(told), style);
  }
}

void PaintEcliptic(SkyCanvas& canvas, const LabelStyle& style) {
  const Viewpoint& viewpoint = canvas.frame.scene.viewpoint;
  const Matrix3 fromEcliptic = viewpoint.toView * Transposed(viewpoint.toEcliptic);
  const std::vector<Vector3> circle = CirclePoints({}, fromEcliptic * Vector3{1.0, 0.0, 0.0},
                                                   fromEcliptic * Vector3{0.0, 1.0, 0.0}, 180);
  canvas.Stroke(SkyLine(canvas.projection, circle), QPen(kEclipticColor, 1.2));
  for (const double longitude : {45.0, 135.0, 225.0, 315.0}) {
    const auto at = canvas.projection.ToPicture(fromEcliptic * AdToDc(longitude, 0.0));
    if (at) canvas.labels.Add({*at, 4.0, u"黄道"_s, style, LabelRank::Faint});
  }
}

/// The horizon across the picture, from right to left; not the part far behind.
std::vector<Vector3> Horizon(const SkyCanvas& canvas) {
  const double middle = RangeOf(canvas).middle.longitudeDeg;
  return Arc({middle - 150.0, 0.0}, {middle + 150.0, 0.0});
}

/// The ground's edge is a circle in the picture. Where that circle is all in reach the ground is
/// its outside (looking up) or inside (looking down), else what lies below a line.
QPainterPath GroundArea(const SkyCanvas& canvas) {
  constexpr double kSteepDeg = 25.0;
  const double altitude = RangeOf(canvas).middle.latitudeDeg;
  const QSizeF& size = canvas.frame.size;
  QPainterPath area;
  if (std::abs(altitude) < kSteepDeg) {
    QPolygonF polygon;
    for (const Vector3& direction : Horizon(canvas)) {
      if (const auto at = canvas.projection.ToPicture(direction)) polygon << *at;
    }
    if (polygon.isEmpty()) return area;
    const double bottom = std::max(polygon.boundingRect().bottom(), size.height()) + 100.0;
    polygon << QPointF(std::min(polygon.last().x(), 0.0) - 100.0, bottom)
            << QPointF(std::max(polygon.first().x(), size.width()) + 100.0, bottom);
    area.addPolygon(polygon);
    return area;
  }
  const double scale = 2.0 * canvas.projection.PixelsPerRadian(canvas.projection.ToDirection(
                                 {size.width() / 2.0, size.height() / 2.0}));
  const double radius = scale / std::abs(std::sin(altitude * kRadPerDeg));
  const QPointF center(size.width() / 2.0,
                       size.height() / 2.0 - scale / std::tan(altitude * kRadPerDeg));
  if (altitude > 0.0) area.addRect(QRectF(QPointF(), size).adjusted(-1.0, -1.0, 1.0, 1.0));
  area.addEllipse(center, radius, radius);
  return area;
}

void AddCardinalPoints(SkyCanvas& canvas) {
  static constexpr std::array<QStringView, 8> kNames{u"北", u"北東", u"東", u"南東",
                                                     u"南", u"南西", u"西", u"北西"};
  for (int i = 0; i < 8; ++i) {
    const bool isMain = i % 2 == 0;
    const LabelStyle style{QColor(isMain ? 0xFFF0C890 : 0xFFB09878), LabelFont(isMain ? 14 : 10)};
    const auto at = canvas.projection.ToPicture(AdToDc(-45.0 * i, 0.0));
    if (at)
      canvas.labels.Add(
          {*at + QPointF(0.0, 14.0), 0.0, kNames[i].toString(), style, LabelRank::Always, true});
  }
}

}  // namespace

void PaintSkyBackground(SkyCanvas& canvas) {
  const SkyColors colors = ColorsOf(canvas.frame);
  QLinearGradient gradient(0.0, 0.0, 0.0, canvas.frame.size.height());
  gradient.setColorAt(0.0, colors.zenith);
  gradient.setColorAt(1.0, colors.horizon);
  canvas.painter.fillRect(QRectF(QPointF(), canvas.frame.size), gradient);
  ClearVectorRegisters();
  PaintDustLight(canvas);
}

void PaintSkyGrid(SkyCanvas& canvas) {
  const QFont font = LabelFont(8);
  const LabelStyle style{QColor(132, 152, 190, 200), font};
  const GridRange range = RangeOf(canvas);
  PaintParallels(canvas, range, style);
  PaintMeridians(canvas, range, style);
  PaintEcliptic(canvas, {QColor(216, 184, 104), font});
}

void PaintGround(SkyCanvas& canvas) {
  if (canvas.frame.view.kind != ViewKind::Horizon) return;
  canvas.painter.setPen(Qt::NoPen);
  canvas.painter.setBrush(QColor(14, 20, 16, 170));
  canvas.painter.drawPath(GroundArea(canvas));
  canvas.Stroke(SkyLine(canvas.projection, Horizon(canvas)), QPen(kHorizonColor, 1.4));
  AddCardinalPoints(canvas);
}

}  // namespace vyn
