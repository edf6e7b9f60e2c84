// Phobos and Deimos. Source: Sinclair 1989, A&A 220, 321.
#include <erfa.h>

#include "engine/sky/bodies.h"
#include "engine/sky/satellites_theory.h"

namespace vyn {
namespace {

/// Values at the epoch with their rates. The Laplace plane is told on the Earth's equator of
/// B1950; the longitudes count along that equator, the plane and the orbit, from node to node.
struct MartianElements {
  double semiMajorAxisKm;
  double eccentricity;
  double inclinationDeg;  ///< to the Laplace plane
  double longitudeDeg;
  double pericentreDeg;
  double nodeDeg;
  double motionDegPerDay;
  double pericentreDegPerDay;
  double nodeDegPerDay;
  double accelerationDegPerYear2;  ///< of the longitude: the tides draw Phobos inwards
  double nodeTermDeg;              ///< of the longitude, by the node's sine
  double planeNodeDeg;
  double planeInclinationDeg;
  double planeNodeDegPerYear;
  double planeInclinationDegPerYear;
};

constexpr double kEpochJd = 2441266.5;
constexpr double kNodeTermPhaseDeg = 43.83;

// clang-format off
constexpr MartianElements kMartians[] = {
  {9379.40,  0.014979, 1.1029, 232.412, 278.96, 327.90, 1128.8445566, 0.435258, -0.435330,
   0.0012370,  0.0,   47.386, 37.271, -0.00140, 0.00080},
  {23461.13, 0.000391, 1.7901,  28.963, 111.70, 240.38,  285.1618875, 0.017985, -0.018008,
   -0.0000028, -0.274, 46.367, 36.623, -0.00138, 0.00079},
};
// clang-format on

/// From the Earth's equator of B1950 to the ecliptic of J2000.
const Matrix3& EclipticFromEquatorB1950() {
  static const Matrix3 rotation = [] {
    double precession[3][3];
    eraLtp(kB1950Year, precession);
    Matrix3 toB1950;
    for (int i = 0; i < 3; ++i) {
      for (int j = 0; j < 3; ++j) toB1950.rows[i][j] = precession[i][j];
    }
    return Transposed(EquatorFromEcliptic()) * Transposed(toB1950);
  }();
  return rotation;
}

}  // namespace

OrbitInPlane MartianOrbitAt(int number, double jdTt) {
  const MartianElements& m = kMartians[number - 1];
  const double days = jdTt - kEpochJd;
  const double years = days / kDaysPerYear;
  const double node = m.nodeDeg + m.nodeDegPerDay * days;
  const double pericentre = m.pericentreDeg + m.pericentreDegPerDay * days;
  const double longitude = m.longitudeDeg + m.motionDegPerDay * days +
                           m.accelerationDegPerYear2 * years * years +
                           m.nodeTermDeg * SinDeg(node - kNodeTermPhaseDeg);
  const double planeNode = m.planeNodeDeg + m.planeNodeDegPerYear * years;
  const double planeInclination = m.planeInclinationDeg + m.planeInclinationDegPerYear * years;
  const EllipseAngles angles{m.eccentricity, m.inclinationDeg, node - planeNode, pericentre - node,
                             longitude - pericentre};
  return {EllipseAt(jdTt, m.semiMajorAxisKm, angles, m.motionDegPerDay),
          EclipticFromEquatorB1950() * FromPlane(planeNode, planeInclination)};
}

}  // namespace vyn
