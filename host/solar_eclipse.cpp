#include "host/solar_eclipse.h"

#include <cmath>
#include <limits>

#include "engine/sky/eclipses.h"
#include "host/disk_painter.h"
#include "host/line_builder.h"
#include "host/solar_canvas.h"

namespace vyn {
namespace {

constexpr double kSmallestGlobePixels = 20.0;
constexpr int kOutlinePoints = 180;
constexpr double kBandStepMinutes = 3.0;
/// A mean new moon and the mean time from one to the next.
constexpr double kNewMoonJd = 2451550.1;
constexpr double kLunationDays = 29.530589;

/// A line along places on the globe; it is interrupted where there is none and on the far side.
class GlobeLine {
 public:
  GlobeLine(const Disk& globe, const QSizeF& picture) : globe_(globe), line_(picture) {}

  void To(const std::optional<Spherical>& place) {
    line_.To(place ? globe_.AtPlace(place->longitudeDeg, place->latitudeDeg) : std::nullopt);
  }
  const QPainterPath& Path() const { return line_.Path(); }

 private:
  const Disk& globe_;
  LineBuilder line_;
};

void PaintShadow(SolarCanvas& canvas, const Disk& globe, ShadowCone cone, const QColor& color) {
  const auto outline = ShadowOutline(canvas.frame.scene.jdUt, cone, kOutlinePoints);
  if (outline.empty()) return;
  GlobeLine line(globe, canvas.frame.size);
  for (const auto& place : outline) line.To(place);
  line.To(outline.front());
  canvas.Stroke(line.Path(), QPen(color, 1.5));
}

/// The band of the new moon nearest to the date, kept until another new moon is nearer.
const std::vector<CentralPathPoint>& BandNear(double jdUt) {
  static double kept = std::numeric_limits<double>::quiet_NaN();
  static std::vector<CentralPathPoint> band;
  const double lunation = std::round((jdUt - kNewMoonJd) / kLunationDays);
  if (lunation != kept) band = CentralPathNear(jdUt, kBandStepMinutes);
  kept = lunation;
  return band;
}

void PaintBand(SolarCanvas& canvas, const Disk& globe) {
  GlobeLine left(globe, canvas.frame.size);
  GlobeLine center(globe, canvas.frame.size);
  GlobeLine right(globe, canvas.frame.size);
  for (const CentralPathPoint& point : BandNear(canvas.frame.scene.jdUt)) {
    left.To(point.left);
    center.To(point.centre);
    right.To(point.right);
  }
  canvas.Stroke(left.Path(), QPen(QColor(255, 206, 110), 1.1));
  canvas.Stroke(right.Path(), QPen(QColor(255, 206, 110), 1.1));
  canvas.Stroke(center.Path(), QPen(QColor(255, 110, 80), 1.4));
}

}  // namespace

void PaintSolarEclipse(SolarCanvas& canvas, const Disk& earth) {
  if (earth.radius < kSmallestGlobePixels) return;
  const DisplayState& display = canvas.frame.display;
  if (display.solarEclipsePath) PaintBand(canvas, earth);
  if (display.solarEclipsePenumbra) {
    PaintShadow(canvas, earth, ShadowCone::Penumbra, QColor(240, 220, 170));
  }
  if (display.solarEclipseUmbra) {
    PaintShadow(canvas, earth, ShadowCone::Umbra, QColor(255, 90, 90));
  }
}

}  // namespace vyn
