#include "engine/sky/small_body_block.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <numbers>

#include "engine/sky/bodies.h"
#include "engine/sky/magnitudes.h"

// The loops exist once for each width of vectors; the processor's own is chosen at start.
// Sanitizers cannot watch that choice.
#if defined(__x86_64__) && defined(__linux__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__)
#define VYN_FOR_EACH_VECTOR_WIDTH __attribute__((target_clones("avx512f", "avx2", "default")))
#else
#define VYN_FOR_EACH_VECTOR_WIDTH
#endif

namespace vyn {
namespace {

using Numbers = SmallBodyBlock::Numbers;
using Floats = std::array<float, SmallBodyBlock::kSize>;
constexpr int kSize = SmallBodyBlock::kSize;
constexpr double kTurn = 2.0 * std::numbers::pi;

/// What counts for a record that leaves the coefficient blank.
constexpr float kUsualCometCoefficient = 4.0F;
constexpr float kUsualSlope = 0.15F;

/// One block's elements; what lies behind its last object is harmless.
struct Elements {
  Numbers perihelionJd{};
  Numbers perihelionDistance{};
  Numbers eccentricity{};
  Numbers argumentDeg{};
  Numbers nodeDeg{};
  Numbers inclinationDeg{};
  Floats absoluteMagnitude{};
  Floats coefficient{};
};

/// The place in the plane of the orbit, x towards perihelion, and the velocity.
struct Planar {
  Numbers x;
  Numbers y;
  Numbers xVelocity;
  Numbers yVelocity;
  Numbers remainder;  ///< of Kepler's equation, radians; not within 1e-13 where it was not solved
};

Elements ElementsOf(const ElementColumns& columns, int first, int count) {
  Elements elements;
  const auto copy = [first, count](const auto& column, auto& numbers) {
    std::copy_n(column.begin() + first, count, numbers.begin());
  };
  copy(columns.perihelionJd, elements.perihelionJd);
  copy(columns.perihelionDistanceAu, elements.perihelionDistance);
  copy(columns.eccentricity, elements.eccentricity);
  copy(columns.argumentOfPerihelionDeg, elements.argumentDeg);
  copy(columns.ascendingNodeDeg, elements.nodeDeg);
  copy(columns.inclinationDeg, elements.inclinationDeg);
  copy(columns.absoluteMagnitude, elements.absoluteMagnitude);
  copy(columns.magnitudeCoefficient, elements.coefficient);
  return elements;
}

/// The nearest whole number, without a call: adding this pushes the decimals out of a double.
inline double Nearest(double x) {
  constexpr double kPush = 6755399441055744.0;
  return (x + kPush) - kPush;
}

struct SineCosine {
  double sine;
  double cosine;
};

/// Of an angle from -pi to pi: the power series of a quarter of it, and the angle doubled twice.
inline SineCosine SineCosineOf(double angle) {
  const double q = angle * 0.25;
  const double x = q * q;
  double sine = -1.0 / 1307674368000.0;
  for (const double factorial : {6227020800.0, -39916800.0, 362880.0, -5040.0, 120.0, -6.0}) {
    sine = sine * x + 1.0 / factorial;
  }
  sine = q + q * x * sine;
  double cosine = 1.0 / 20922789888000.0;
  for (const double factorial : {-87178291200.0, 479001600.0, -3628800.0, 40320.0, -720.0, 24.0}) {
    cosine = cosine * x + 1.0 / factorial;
  }
  cosine = 1.0 + x * (x * cosine - 0.5);
  for (int doubled = 0; doubled < 2; ++doubled) {
    const double twice = 2.0 * sine * cosine;
    cosine = 1.0 - 2.0 * sine * sine;
    sine = twice;
  }
  return {sine, cosine};
}

inline SineCosine SineCosineOfDegrees(double degrees) {
  const double turns = degrees / 360.0;
  return SineCosineOf((turns - Nearest(turns)) * kTurn);
}

/// Eccentric anomalies may come to lie a little beyond half a turn.
inline SineCosine SineCosineOfAnomaly(double anomaly) {
  return SineCosineOf(anomaly - Nearest(anomaly / kTurn) * kTurn);
}

VYN_FOR_EACH_VECTOR_WIDTH
void SolveEllipses(const Elements& elements, double jdTt, Planar* planar) {
  constexpr int kSteps = 3;
  for (int i = 0; i < kSize; ++i) {
    const double e = elements.eccentricity[i];
    const double axis = elements.perihelionDistance[i] / (1.0 - e);
    const double motion = std::sqrt(kSunGravity / axis) / axis;
    const double turns = (jdTt - elements.perihelionJd[i]) * motion / kTurn;
    const double mean = (turns - Nearest(turns)) * kTurn;
    SineCosine at = SineCosineOf(mean);
    double anomaly = mean + e * at.sine * (1.0 + e * at.cosine);
    for (int step = 0; step < kSteps; ++step) {
      at = SineCosineOfAnomaly(anomaly);
      const double excess = anomaly - e * at.sine - mean;
      const double slope = 1.0 - e * at.cosine;
      anomaly -= 2.0 * excess * slope / (2.0 * slope * slope - excess * e * at.sine);
    }
    at = SineCosineOfAnomaly(anomaly);
    const double minorToMajor = std::sqrt((1.0 - e) * (1.0 + e));
    const double speed = axis * motion / (1.0 - e * at.cosine);
    planar->remainder[i] = anomaly - e * at.sine - mean;
    planar->x[i] = axis * (at.cosine - e);
    planar->y[i] = axis * minorToMajor * at.sine;
    planar->xVelocity[i] = -speed * at.sine;
    planar->yVelocity[i] = speed * minorToMajor * at.cosine;
  }
}

/// As PlaneOf turns an orbit, and ApparentPlace sees a body.
VYN_FOR_EACH_VECTOR_WIDTH
void PutInSpace(const Elements& elements, const Planar& planar, const StateVector& observer,
                SmallBodyBlock* block) {
  const auto [site, siteVelocity] = observer;
  for (int i = 0; i < kSize; ++i) {
    const SineCosine w = SineCosineOfDegrees(elements.argumentDeg[i]);
    const SineCosine node = SineCosineOfDegrees(elements.nodeDeg[i]);
    const SineCosine tilt = SineCosineOfDegrees(elements.inclinationDeg[i]);
    // Towards the node and ahead of it, in the plane of the orbit.
    const double along = planar.x[i] * w.cosine - planar.y[i] * w.sine;
    const double ahead = planar.x[i] * w.sine + planar.y[i] * w.cosine;
    const double alongSpeed = planar.xVelocity[i] * w.cosine - planar.yVelocity[i] * w.sine;
    const double aheadSpeed = planar.xVelocity[i] * w.sine + planar.yVelocity[i] * w.cosine;
    const double flat = ahead * tilt.cosine;
    const double flatSpeed = aheadSpeed * tilt.cosine;
    block->x[i] = along * node.cosine - flat * node.sine;
    block->y[i] = along * node.sine + flat * node.cosine;
    block->z[i] = ahead * tilt.sine;
    const double dx = block->x[i] - site.x;
    const double dy = block->y[i] - site.y;
    const double dz = block->z[i] - site.z;
    const double lightDays = std::sqrt(dx * dx + dy * dy + dz * dz) / kLightAuPerDay;
    block->seenX[i] =
        dx - (alongSpeed * node.cosine - flatSpeed * node.sine - siteVelocity.x) * lightDays;
    block->seenY[i] =
        dy - (alongSpeed * node.sine + flatSpeed * node.cosine - siteVelocity.y) * lightDays;
    block->seenZ[i] = dz - (aheadSpeed * tilt.sine - siteVelocity.z) * lightDays;
  }
}

// Logarithm and power of two in single precision, within 1e-6, for numbers in the usual range.

inline float Log2(float x) {
  // Unsigned, since what is no magnitude may wrap round.
  constexpr std::uint32_t kRootOfHalf = 0x3F3504F3;
  const auto bits = std::bit_cast<std::uint32_t>(x);
  const std::int32_t exponent = static_cast<std::int32_t>(bits - kRootOfHalf) >> 23;
  const auto mantissa = std::bit_cast<float>(bits - (static_cast<std::uint32_t>(exponent) << 23));
  const float t = (mantissa - 1.0F) / (mantissa + 1.0F);
  const float t2 = t * t;
  constexpr float kScale = 2.88539008F;  // 2 / ln 2
  return static_cast<float>(exponent) +
         kScale * t * (1.0F + t2 * (1.0F / 3 + t2 * (1.0F / 5 + t2 * (1.0F / 7))));
}

inline float Exp2(float x) {
  constexpr float kPush = 12582912.0F;
  const float clamped = x > -120.0F ? x : -120.0F;
  const float whole = (clamped + kPush) - kPush;
  const float y = (clamped - whole) * 0.693147181F;
  const float part =
      1 + y * (1 + y * (0.5F + y * (1.0F / 6 + y * (1.0F / 24 + y * (1.0F / 120 + y / 720)))));
  return part * std::bit_cast<float>((static_cast<std::int32_t>(whole) + 127) * (1 << 23));
}

/// MinorPlanetMagnitude in single precision; the phase angle by the square of half its tangent.
VYN_FOR_EACH_VECTOR_WIDTH
void ReckonMagnitudes(const Elements& elements, SmallBodyBlock* block) {
  constexpr float kLog10Of2 = 0.301029996F;
  constexpr float kLog2OfE = 1.44269504F;
  for (int i = 0; i < kSize; ++i) {
    const double x = block->x[i], y = block->y[i], z = block->z[i];
    const double u = block->seenX[i], v = block->seenY[i], w = block->seenZ[i];
    const double distances = std::sqrt((x * x + y * y + z * z) * (u * u + v * v + w * w));
    const double product = x * u + y * v + z * w;
    const double square = (distances - product) / (distances + product);
    const float tangent2 = static_cast<float>(square < 1e16 ? square + 1e-16 : 1e16);
    const float halfLog = 0.5F * Log2(tangent2);
    const float steep = Exp2(-3.33F * kLog2OfE * Exp2(0.63F * halfLog));
    const float shallow = Exp2(-1.87F * kLog2OfE * Exp2(1.22F * halfLog));
    const float given = elements.coefficient[i];
    const float slope = given == given ? given : kUsualSlope;
    const float lit = (1.0F - slope) * steep + slope * shallow;
    // NaN for a place that is not known, which the logarithms would make a number of.
    const float known = static_cast<float>(distances - distances);
    block->magnitude[i] =
        elements.absoluteMagnitude[i] + known +
        kLog10Of2 * (5.0F * Log2(static_cast<float>(distances)) - 2.5F * Log2(lit));
  }
}

Vector3 PlaceIn(const SmallBodyBlock& block, int i) { return {block.x[i], block.y[i], block.z[i]}; }
Vector3 SeenIn(const SmallBodyBlock& block, int i) {
  return {block.seenX[i], block.seenY[i], block.seenZ[i]};
}

/// One orbit of any shape, reckoned alone.
void ReckonAlone(const OrbitElements& orbit, double jdTt, const StateVector& observer, int i,
                 SmallBodyBlock* block) {
  const auto [position, velocity] = StateAt(orbit, jdTt);
  const Vector3 seen = ApparentPlace(position - observer.position, velocity - observer.velocity);
  block->x[i] = position.x;
  block->y[i] = position.y;
  block->z[i] = position.z;
  block->seenX[i] = seen.x;
  block->seenY[i] = seen.y;
  block->seenZ[i] = seen.z;
}

OrbitElements OrbitIn(const Elements& elements, int i) {
  return {.perihelionJd = elements.perihelionJd[i],
          .perihelionDistanceAu = elements.perihelionDistance[i],
          .eccentricity = elements.eccentricity[i],
          .argumentOfPerihelionDeg = elements.argumentDeg[i],
          .ascendingNodeDeg = elements.nodeDeg[i],
          .inclinationDeg = elements.inclinationDeg[i]};
}

/// Nor are long orbits trusted to the difference of 1 and the eccentricity.
bool IsSolved(const Elements& elements, const Planar& planar, int i) {
  constexpr double kMostEccentricity = 0.9;
  return std::abs(planar.remainder[i]) <= 1e-13 && elements.eccentricity[i] <= kMostEccentricity;
}

void SetBody(Elements& elements, int i, const SmallBody& body) {
  elements.perihelionJd[i] = body.orbit.perihelionJd;
  elements.perihelionDistance[i] = body.orbit.perihelionDistanceAu;
  elements.eccentricity[i] = body.orbit.eccentricity;
  elements.argumentDeg[i] = body.orbit.argumentOfPerihelionDeg;
  elements.nodeDeg[i] = body.orbit.ascendingNodeDeg;
  elements.inclinationDeg[i] = body.orbit.inclinationDeg;
  elements.absoluteMagnitude[i] = static_cast<float>(body.absoluteMagnitude);
  elements.coefficient[i] = static_cast<float>(body.magnitudeCoefficient);
}

void TakePagesOf(const ElementTable& table, int first, int count, double jdTt, Elements& elements) {
  const std::vector<std::uint32_t>& withPages = table.ObjectsWithPages();
  auto object = std::lower_bound(withPages.begin(), withPages.end(), std::uint32_t(first));
  for (; object != withPages.end() && int(*object) < first + count; ++object) {
    SetBody(elements, int(*object) - first, table.BodyAt(int(*object), jdTt));
  }
}

float CometMagnitudeIn(const SmallBodyBlock& block, const Elements& elements, int i) {
  const float given = elements.coefficient[i];
  return static_cast<float>(CometMagnitude(elements.absoluteMagnitude[i],
                                           std::isnan(given) ? kUsualCometCoefficient : given,
                                           IlluminationOf(PlaceIn(block, i), SeenIn(block, i))));
}

}  // namespace

void ReckonBlock(const ElementTable& table, int first, double jdTt, const StateVector& observer,
                 SmallBodyBlock* block) {
  const int count = std::min(kSize, table.Count() - first);
  Elements elements = ElementsOf(table.Columns(), first, count);
  TakePagesOf(table, first, count, jdTt, elements);
  Planar planar;
  SolveEllipses(elements, jdTt, &planar);
  PutInSpace(elements, planar, observer, block);
  for (int i = 0; i < count; ++i) {
    if (!IsSolved(elements, planar, i)) {
      ReckonAlone(OrbitIn(elements, i), jdTt, observer, i, block);
    }
  }
  ReckonMagnitudes(elements, block);
  for (int i = 0; i < count; ++i) {
    if (table.Columns().isComet[first + i] != 0) {
      block->magnitude[i] = CometMagnitudeIn(*block, elements, i);
    }
  }
}

}  // namespace vyn
