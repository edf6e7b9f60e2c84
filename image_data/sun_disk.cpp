#include "image_data/sun_disk.h"

#include <algorithm>
#include <cmath>

#include "siblings/astro/disk_frame.h"

namespace vyn {
namespace {

/// The disk's radius in the smaller side of its preview: room is left for the limb.
constexpr double kRadiusInSide = 0.45;

}  // namespace

SunDisk::SunDisk(QSize preview, double centralLongitudeDeg, double centralLatitudeDeg)
    : centre_(preview.width() / 2, preview.height() / 2),
      radius_(std::max(
          1, static_cast<int>(kRadiusInSide * std::min(preview.width(), preview.height())))),
      sunFromDisk_(BodyFromDisk(centralLongitudeDeg, centralLatitudeDeg)) {}

std::optional<Spherical> SunDisk::GetSunLocation(QPoint point) const {
  const double x = static_cast<double>(point.x() - centre_.x()) / radius_;
  const double y = static_cast<double>(centre_.y() - point.y()) / radius_;
  const double squared = x * x + y * y;
  if (squared > 1.0) return std::nullopt;
  Spherical place = DcToAd(RotateDc(sunFromDisk_, {x, y, std::sqrt(1.0 - squared)}));
  // The edits of a spot's longitude go from -180 to 180.
  if (place.longitudeDeg > 180.0) place.longitudeDeg -= 360.0;
  return place;
}

std::optional<QPointF> SunDisk::Project(double longitudeDeg, double latitudeDeg) const {
  const Vector3 seen = RotateDc(Transposed(sunFromDisk_), AdToDc(longitudeDeg, latitudeDeg));
  if (seen.z < 0.0) return std::nullopt;
  return QPointF(centre_) + QPointF(seen.x, -seen.y) * radius_;
}

std::optional<QPoint> SunDisk::GetSunPoint(double longitudeDeg, double latitudeDeg) const {
  const auto point = Project(longitudeDeg, latitudeDeg);
  if (!point) return std::nullopt;
  return QPoint(static_cast<int>(std::lround(point->x())),
                static_cast<int>(std::lround(point->y())));
}

}  // namespace vyn
