// The observer: a site on the Earth at a moment, and directions as they are seen from there.
#pragma once

#include "siblings/astro/direction_cosines.h"
#include "siblings/astro/vector3.h"

namespace vyn {

struct Site {
  double longitudeDeg = 0.0;  ///< east positive
  double latitudeDeg = 0.0;   ///< geodetic, north positive
  double heightM = 0.0;
};

/// The frames of a site at a moment. Making one takes some microseconds; using it is a matrix
/// product. Vectors go in as seen from the site or the Earth's centre, in the ecliptic of J2000, in
/// any unit.
/// Sources: precession and nutation IAU 2000B, sidereal time to match (ERFA's eraPnm00b,
/// eraGst00b); the Earth's rotation is taken as universal time.
class Observer {
 public:
  Observer(double jdUt, const Site& site);

  double JdUt() const { return jdUt_; }
  double JdTt() const { return jdTt_; }
  const Site& GetSite() const { return site_; }

  /// The rotations from the ecliptic of J2000 to the true equator and equinox of date (right
  /// ascension and declination), to the true ecliptic and equinox of date, and to the horizon: x
  /// north, y east, z up, so that DcToAd gives azimuth from north eastwards and altitude.
  const Matrix3& ToEquatorOfDate() const { return toEquator_; }
  const Matrix3& ToEclipticOfDate() const { return toEcliptic_; }
  const Matrix3& ToHorizon() const { return toHorizon_; }

  Spherical Equatorial(const Vector3& direction) const { return DcToAd(toEquator_ * direction); }
  Spherical Ecliptic(const Vector3& direction) const { return DcToAd(toEcliptic_ * direction); }
  Spherical Horizontal(const Vector3& direction) const { return DcToAd(toHorizon_ * direction); }

  /// The local apparent sidereal time in degrees, [0, 360).
  double SiderealTimeDeg() const { return siderealTimeDeg_; }
  /// The true obliquity of the ecliptic of date in degrees.
  double ObliquityDeg() const { return obliquityDeg_; }

  /// The site relative to the Earth's centre, in au, and its speed in au / day; ecliptic of J2000.
  const Vector3& SitePosition() const { return sitePosition_; }
  const Vector3& SiteVelocity() const { return siteVelocity_; }

  /// The celestial north pole of date and the zenith as directions in the ecliptic of J2000.
  Vector3 CelestialPole() const;
  Vector3 Zenith() const;

 private:
  double jdUt_;
  double jdTt_;
  Site site_;
  double siderealTimeDeg_ = 0.0;
  double obliquityDeg_ = 0.0;
  Matrix3 toEquator_;
  Matrix3 toEcliptic_;
  Matrix3 toHorizon_;
  Vector3 sitePosition_;
  Vector3 siteVelocity_;
};

/// The rotation from the ecliptic of J2000 to the frame that turns with the Earth: x towards
/// longitude and latitude 0, z towards the north pole.
Matrix3 ToEarthFixed(double jdUt);

/// By how much the air raises a body at this true altitude, in degrees, at 10 C and 1010 hPa;
/// 0 for what stands more than 2 degrees below the horizon.
/// Source: Saemundsson 1986, in Meeus, "Astronomical Algorithms" (2nd ed.), formula 16.4.
double RefractionDeg(double trueAltitudeDeg);

/// The angle at `direction` from the direction `north` eastwards to `target`, in [0, 360): the
/// position angle of a disk's axis, of its bright limb, of a tail. The three are in one frame.
double PositionAngleDeg(const Vector3& direction, const Vector3& target, const Vector3& north);

}  // namespace vyn
