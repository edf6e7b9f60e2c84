#include "engine/sky/observer.h"

#include <cmath>
#include <numbers>

#include <erfa.h>
#include <erfam.h>

#include "engine/sky/bodies.h"
#include "engine/sky/time_scales.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

constexpr double kEarthTurnsPerDay = 1.00273781191135448;

Matrix3 FromErfa(const double matrix[3][3]) {
  Matrix3 result;
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) result.rows[i][j] = matrix[i][j];
  }
  return result;
}

Matrix3 ToTrueEquator(double jdTt) {
  double matrix[3][3];
  eraPnm00b(jdTt, 0.0, matrix);
  return FromErfa(matrix) * EquatorFromEcliptic();
}

double TrueObliquityDeg(double jdTt) {
  double longitudeNutation = 0.0;
  double obliquityNutation = 0.0;
  eraNut00b(jdTt, 0.0, &longitudeNutation, &obliquityNutation);
  return (eraObl80(jdTt, 0.0) + obliquityNutation) * kDegPerRad;
}

/// The site in the frame of the true equator whose x axis lies in the site's meridian, in au.
Vector3 SiteInMeridian(const Site& site) {
  double metres[3];
  eraGd2gc(ERFA_WGS84, 0.0, site.latitudeDeg * kRadPerDeg, site.heightM, metres);
  return Vector3{metres[0], metres[1], metres[2]} / (kKmPerAu * 1000.0);
}

/// From the equatorial frame with x in the meridian to north, east, up.
Matrix3 HorizonFromMeridian(double latitudeDeg) {
  const double s = std::sin(latitudeDeg * kRadPerDeg);
  const double c = std::cos(latitudeDeg * kRadPerDeg);
  return {{{{-s, 0.0, c}, {0.0, 1.0, 0.0}, {c, 0.0, s}}}};
}

}  // namespace

Observer::Observer(double jdUt, const Site& site)
    : jdUt_(jdUt), jdTt_(TtFromUt(jdUt)), site_(site), obliquityDeg_(TrueObliquityDeg(jdTt_)) {
  siderealTimeDeg_ = degmal(eraGst00b(jdUt, 0.0) * kDegPerRad + site.longitudeDeg);
  toEquator_ = ToTrueEquator(jdTt_);
  toEcliptic_ = FrameRotationX(obliquityDeg_) * toEquator_;
  const Matrix3 toMeridian = FrameRotationZ(siderealTimeDeg_) * toEquator_;
  toHorizon_ = HorizonFromMeridian(site.latitudeDeg) * toMeridian;
  const Vector3 place = SiteInMeridian(site);
  const double turn = 2.0 * std::numbers::pi * kEarthTurnsPerDay;
  sitePosition_ = Transposed(toMeridian) * place;
  siteVelocity_ = Transposed(toMeridian) * Vector3{0.0, turn * place.x, 0.0};
}

Vector3 Observer::CelestialPole() const { return Transposed(toEquator_) * Vector3{0.0, 0.0, 1.0}; }
Vector3 Observer::Zenith() const { return Transposed(toHorizon_) * Vector3{0.0, 0.0, 1.0}; }

Matrix3 ToEarthFixed(double jdUt) {
  return FrameRotationZ(eraGst00b(jdUt, 0.0) * kDegPerRad) * ToTrueEquator(TtFromUt(jdUt));
}

double RefractionDeg(double trueAltitudeDeg) {
  constexpr double kLowestDeg = -2.0;
  if (!(trueAltitudeDeg >= kLowestDeg)) return 0.0;
  const double argumentDeg = trueAltitudeDeg + 10.3 / (trueAltitudeDeg + 5.11);
  return std::max(0.0, 1.02 / 60.0 / std::tan(argumentDeg * kRadPerDeg));
}

double PositionAngleDeg(const Vector3& direction, const Vector3& target, const Vector3& north) {
  const Vector3 east = Cross(north, direction);
  const Vector3 up = Cross(direction, east);
  return degmal(std::atan2(Dot(target, east), Dot(target, up) / Length(direction)) * kDegPerRad);
}

}  // namespace vyn
