// Mimas to Iapetus. Source: Dourneau's theory of 1987 as given by Meeus, "Astronomical Algorithms"
// (2nd ed.), chapter 46. Letters are those of the chapter, angles in degrees.
#include <array>
#include <cmath>

#include <erfa.h>

#include "engine/sky/bodies.h"
#include "engine/sky/satellites_theory.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

/// Saturn's equator on the ecliptic of B1950, to which the four inner ones are referred.
constexpr double kEquatorNodeDeg = 168.8112;
constexpr double kEquatorInclinationDeg = 28.0817;

/// The theory's unit of length, such that Titan's semi-major axis is 1,221,865 km.
constexpr double kUnitKm = 1221865.0 / 20.216193;

/// Shape and angles as the theory gives them: longitudes count from the equinox to the node and
/// along the orbit.
struct Orbit {
  double semiMajorAxis;
  double eccentricity;
  double inclinationDeg;
  double nodeDeg;
  double pericentreDeg;
  double longitudeDeg;
};

/// The times and angles that the satellites have in common.
struct Common {
  explicit Common(double jd)
      : t1(jd - 2411093.0),
        t2(t1 / kDaysPerYear),
        t4(jd - 2411368.0),
        t6(jd - 2415020.0),
        t7(t6 / 36525.0),
        t8(t6 / kDaysPerYear),
        t9((jd - 2442000.5) / kDaysPerYear),
        t10(jd - 2409786.0),
        t11(t10 / 36525.0),
        w0(5.095 * ((jd - 2433282.423) / kDaysPerYear + 1950.0 - 1866.39)),
        w1(74.4 + 32.39 * t2),
        w2(134.3 + 92.62 * t2),
        w3(42.0 - 0.5118 * t4 / kDaysPerYear),
        w4(276.59 + 0.5118 * t4 / kDaysPerYear),
        w5(267.2635 + 1222.1136 * t7),
        w6(175.4762 + 1221.5515 * t7),
        w7(2.4891 + 0.002435 * t7),
        w8(113.35 - 0.2597 * t7),
        saturnEccentricity(0.05589 - 0.000346 * t7) {}

  double t1, t2, t4, t6, t7, t8, t9, t10, t11;
  double w0, w1, w2, w3, w4, w5, w6, w7, w8;
  double saturnEccentricity;
};

Orbit Mimas(const Common& c) {
  const double longitude = 127.64 + 381.994497 * c.t1 - 43.57 * SinDeg(c.w0) -
                           0.720 * SinDeg(3.0 * c.w0) - 0.02144 * SinDeg(5.0 * c.w0);
  return {3.06879 / (1.0 - 0.01905 * 0.01905),
          0.01905,
          1.563,
          54.5 - 365.072 * c.t2,
          106.1 + 365.549 * c.t2,
          longitude};
}

Orbit Enceladus(const Common& c) {
  const double longitude =
      200.317 + 262.7319002 * c.t1 + 0.25667 * SinDeg(c.w1) + 0.20883 * SinDeg(c.w2);
  return {3.94118, 0.00485, 0.0262, 348.0 - 151.95 * c.t2, 309.107 + 123.44121 * c.t2, longitude};
}

Orbit Tethys(const Common& c) {
  const double longitude = 285.306 + 190.69791226 * c.t1 + 2.063 * SinDeg(c.w0) +
                           0.03409 * SinDeg(3.0 * c.w0) + 0.001015 * SinDeg(5.0 * c.w0);
  return {4.880998, 0.0, 1.0976, 111.33 - 72.2441 * c.t2, 0.0, longitude};
}

Orbit Dione(const Common& c) {
  const double longitude =
      254.712 + 131.53493193 * c.t1 - 0.0215 * SinDeg(c.w1) - 0.01733 * SinDeg(c.w2);
  return {6.24871, 0.002157, 0.0139, 232.0 - 30.27 * c.t2, 174.8 + 30.82 * c.t2, longitude};
}

Orbit Rhea(const Common& c) {
  const double p = 342.7 + 10.057 * c.t2;
  const double a1 = 0.000265 * SinDeg(p) + 0.001 * SinDeg(c.w4);
  const double a2 = 0.000265 * CosDeg(p) + 0.001 * CosDeg(c.w4);
  const double n = 345.0 - 10.057 * c.t2;
  return {8.725924,
          std::hypot(a1, a2),
          28.0362 + 0.346898 * CosDeg(n) + 0.0193 * CosDeg(c.w3),
          168.8034 + 0.736936 * SinDeg(n) + 0.041 * SinDeg(c.w3),
          std::atan2(a1, a2) * kDegPerRad,
          359.244 + 79.6900472 * c.t1 + 0.086754 * SinDeg(n)};
}

double TitanMeanLongitude(const Common& c) { return 261.1582 + 22.57697855 * c.t4; }

Orbit Titan(const Common& c) {
  const double i = 27.45141 + 0.295999 * CosDeg(c.w3);
  const double node = 168.66925 + 0.628808 * SinDeg(c.w3);
  const double a1 = SinDeg(c.w7) * SinDeg(node - c.w8);
  const double a2 = CosDeg(c.w7) * SinDeg(i) - SinDeg(c.w7) * CosDeg(i) * CosDeg(node - c.w8);
  const double psi = std::atan2(a1, a2) * kDegPerRad;
  const double s = std::hypot(a1, a2);
  constexpr double kG0 = 102.8623;
  double g = c.w4 - node - psi;
  double pericentre = c.w4;
  for (int step = 0; step < 3; ++step) {
    pericentre = c.w4 + 0.37515 * (SinDeg(2.0 * g) - SinDeg(2.0 * kG0));
    g = pericentre - node - psi;
  }
  const double e = 0.029092 + 0.00019048 * (CosDeg(2.0 * g) - CosDeg(2.0 * kG0));
  const double q = 2.0 * (c.w5 - pericentre);
  const double b1 = SinDeg(i) * SinDeg(node - c.w8);
  const double b2 = CosDeg(c.w7) * SinDeg(i) * CosDeg(node - c.w8) - SinDeg(c.w7) * CosDeg(i);
  const double theta = std::atan2(b1, b2) * kDegPerRad + c.w8;
  const double u = 2.0 * c.w5 - 2.0 * theta + psi;
  const double h = 0.9375 * e * e * SinDeg(q) + 0.1875 * s * s * SinDeg(2.0 * (c.w5 - theta));
  const double e1 = c.saturnEccentricity;
  const double longitude = TitanMeanLongitude(c) + 0.074025 * SinDeg(c.w3) -
                           0.254744 * (e1 * SinDeg(c.w6) + 0.75 * e1 * e1 * SinDeg(2.0 * c.w6) + h);
  return {20.216193,
          e + 0.002778797 * e * CosDeg(q),
          i + 0.031843 * s * CosDeg(u),
          node + 0.031843 * s * SinDeg(u) / SinDeg(i),
          pericentre + 0.159215 * SinDeg(q),
          longitude};
}

Orbit Hyperion(const Common& c) {
  const double eta = 92.39 + 0.5621071 * c.t6;
  const double zeta = 148.19 - 19.18 * c.t8;
  const double theta = 184.8 - 35.41 * c.t9;
  const double as = 176.0 + 12.22 * c.t8;
  const double bs = 8.0 + 24.44 * c.t8;
  const double cs = bs + 5.0;
  const double mean = 69.898 - 18.67088 * c.t8;
  const double phi = 2.0 * (mean - c.w5);
  const double chi = 94.9 - 2.292 * c.t8;
  const double sum = zeta + eta;
  const double difference = zeta - eta;
  return {24.50601 - 0.08686 * CosDeg(eta) - 0.00166 * CosDeg(sum) + 0.00175 * CosDeg(difference),
          0.103458 - 0.004099 * CosDeg(eta) - 0.000167 * CosDeg(sum) +
              0.000235 * CosDeg(difference) + 0.02303 * CosDeg(zeta) -
              0.00212 * CosDeg(2.0 * zeta) + 0.000151 * CosDeg(3.0 * zeta) + 0.00013 * CosDeg(phi),
          27.3347 + 0.643486 * CosDeg(chi) + 0.315 * CosDeg(c.w3) + 0.018 * CosDeg(theta) -
              0.018 * CosDeg(cs),
          168.6812 + 1.40136 * CosDeg(chi) + 0.68599 * SinDeg(c.w3) - 0.0392 * SinDeg(cs) +
              0.0366 * SinDeg(theta - 7.5),
          mean + 0.15648 * SinDeg(chi) - 0.4457 * SinDeg(eta) - 0.2657 * SinDeg(sum) -
              0.3573 * SinDeg(difference) - 12.872 * SinDeg(zeta) + 1.668 * SinDeg(2.0 * zeta) -
              0.2419 * SinDeg(3.0 * zeta) - 0.07 * SinDeg(phi),
          177.047 + 16.91993829 * c.t6 + 0.15648 * SinDeg(chi) + 9.142 * SinDeg(eta) +
              0.007 * SinDeg(2.0 * eta) - 0.014 * SinDeg(3.0 * eta) + 0.2275 * SinDeg(sum) +
              0.2112 * SinDeg(difference) - 0.26 * SinDeg(zeta) - 0.0098 * SinDeg(2.0 * zeta) -
              0.013 * SinDeg(as) + 0.017 * SinDeg(bs) - 0.0303 * SinDeg(phi)};
}

Orbit Iapetus(const Common& c) {
  const double saturnPericentre = 91.796 + 0.562 * c.t7;
  const double psi = 4.367 - 0.195 * c.t7;
  const double theta = 146.819 - 3.198 * c.t7;
  const double phi = 60.470 + 1.521 * c.t7;
  const double titanNode = 205.055 - 2.091 * c.t7;
  const double e = 0.028298 + 0.001156 * c.t11;
  const double pericentre = 352.91 + 11.71 * c.t11;
  const double mu = 76.3852 + 4.53795125 * c.t10;
  const double i = 18.4602 + c.t11 * (-0.9518 + c.t11 * (-0.072 + c.t11 * 0.0054));
  const double node = 143.198 + c.t11 * (-3.919 + c.t11 * (0.116 + c.t11 * 0.008));
  const double l = mu - pericentre;
  const double g = pericentre - node - psi;
  const double g1 = pericentre - node - phi;
  const double ls = c.w5 - saturnPericentre;
  const double gs = saturnPericentre - theta;
  const double lt = TitanMeanLongitude(c) - c.w4;
  const double gt = c.w4 - titanNode;
  const double u1 = 2.0 * (l + g - ls - gs);
  const double u2 = l + g1 - lt - gt;
  const double u3 = l + 2.0 * (g - ls - gs);
  const double u4 = lt + gt - g1;
  const double u5 = 2.0 * (ls + gs);
  const double u6 = l + g1 + lt + gt + phi;
  const double w = 0.08077 * SinDeg(g1 - gt) + 0.02139 * SinDeg(u5 - 2.0 * g) -
                   0.00676 * SinDeg(u3) + 0.01380 * SinDeg(l) + 0.01632 * SinDeg(l + u2) +
                   0.03547 * SinDeg(u4);
  const double nodeTerms =
      0.04204 * SinDeg(u5 + psi) + 0.00235 * SinDeg(u6) + 0.00358 * SinDeg(u2 + phi);
  return {58.935028 + 0.004638 * CosDeg(u1) + 0.058222 * CosDeg(u2),
          e - 0.0014097 * CosDeg(g1 - gt) + 0.0003733 * CosDeg(u5 - 2.0 * g) +
              0.0001180 * CosDeg(u3) + 0.0002408 * CosDeg(l) + 0.0002849 * CosDeg(l + u2) +
              0.0006190 * CosDeg(u4),
          i + 0.04204 * CosDeg(u5 + psi) + 0.00235 * CosDeg(u6) + 0.00360 * CosDeg(u2 + phi),
          node + nodeTerms / SinDeg(i),
          pericentre + w / e,
          mu - 0.04299 * SinDeg(u2) - 0.00789 * SinDeg(u1) - 0.06312 * SinDeg(ls) -
              0.00295 * SinDeg(2.0 * ls) - 0.02231 * SinDeg(u5) + 0.00650 * SinDeg(u5 + psi)};
}

struct Saturnian {
  Orbit (*orbit)(const Common&);
  double motionDegPerDay;
  bool onEquator;  ///< else on the ecliptic
};

// clang-format off
constexpr std::array<Saturnian, 8> kSaturnians{{
  {Mimas,    381.994497,   true},  {Enceladus, 262.7319002,  true},
  {Tethys,   190.69791226, true},  {Dione,     131.53493193, true},
  {Rhea,      79.6900472,  false}, {Titan,      22.57697855, false},
  {Hyperion,  16.91993829, false}, {Iapetus,     4.53795125, false},
}};
// clang-format on

Matrix3 EclipticOfYear(double year) {
  double matrix[3][3];
  eraLtecm(year, matrix);
  Matrix3 result;
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) result.rows[i][j] = matrix[i][j];
  }
  return result;
}

const Matrix3& EclipticFromB1950() {
  static const Matrix3 rotation = EclipticOfYear(2000.0) * Transposed(EclipticOfYear(kB1950Year));
  return rotation;
}

const Matrix3& EclipticFromEquatorB1950() {
  static const Matrix3 rotation =
      EclipticFromB1950() * FromPlane(kEquatorNodeDeg, kEquatorInclinationDeg);
  return rotation;
}

}  // namespace

OrbitInPlane SaturnianOrbitAt(int number, double jdTt) {
  const auto& [orbitOf, motionDegPerDay, onEquator] = kSaturnians[number - 1];
  const Orbit orbit = orbitOf(Common(jdTt));
  const EllipseAngles angles{
      orbit.eccentricity, orbit.inclinationDeg, orbit.nodeDeg - (onEquator ? kEquatorNodeDeg : 0.0),
      orbit.pericentreDeg - orbit.nodeDeg, orbit.longitudeDeg - orbit.pericentreDeg};
  return {EllipseAt(jdTt, orbit.semiMajorAxis * kUnitKm, angles, motionDegPerDay),
          onEquator ? EclipticFromEquatorB1950() : EclipticFromB1950()};
}

}  // namespace vyn
