#include "engine/sky/time_scales.h"

#include <array>

#include <erfa.h>
#include <erfam.h>

#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

constexpr double kFirstLeapSecondYear = 1972.0;
constexpr double kLastYearOfLeapSeconds = 2030.0;
constexpr double kYearOfPolynomialsAgain = 2150.0;

/// A polynomial in (year - origin) / unit, used from one year on up to the next row's.
struct Polynomial {
  double fromYear;
  double origin;
  double unit;
  std::array<double, 8> coefficients;
};

// clang-format off
constexpr Polynomial kPolynomials[] = {
  {-1e9,   1820, 100, {-20, 0, 32}},
  {-500,      0, 100, {10583.6, -1014.41, 33.78311, -5.952053, -0.1798452, 0.022174192, 0.0090316521}},
  {500,    1000, 100, {1574.2, -556.01, 71.23472, 0.319781, -0.8503463, -0.005050998, 0.0083572073}},
  {1600,   1600,   1, {120, -0.9808, -0.01532, 1.0 / 7129}},
  {1700,   1700,   1, {8.83, 0.1603, -0.0059285, 0.00013336, -1.0 / 1174000}},
  {1800,   1800,   1, {13.72, -0.332447, 0.0068612, 0.0041116, -0.00037436, 0.0000121272, -0.0000001699, 0.000000000875}},
  {1860,   1860,   1, {7.62, 0.5737, -0.251754, 0.01680668, -0.0004473624, 1.0 / 233174}},
  {1900,   1900,   1, {-2.79, 1.494119, -0.0598939, 0.0061966, -0.000197}},
  {1920,   1920,   1, {21.20, 0.84493, -0.076100, 0.0020936}},
  {1941,   1950,   1, {29.07, 0.407, -1.0 / 233, 1.0 / 2547}},
  {1961,   1975,   1, {45.45, 1.067, -1.0 / 260, -1.0 / 718}},
  {2005,   2000,   1, {62.92, 0.32217, 0.005589}},
  {2050,   1820, 100, {-205.724, 56.28, 32}},
  {2150,   1820, 100, {-20, 0, 32}},
};
// clang-format on

double PolynomialSeconds(double year) {
  const Polynomial* row = kPolynomials;
  for (const Polynomial& candidate : kPolynomials) {
    if (year >= candidate.fromYear) row = &candidate;
  }
  const double t = (year - row->origin) / row->unit;
  double sum = 0.0;
  for (auto c = row->coefficients.rbegin(); c != row->coefficients.rend(); ++c) sum = sum * t + *c;
  return sum;
}

double LeapSecondsDeltaT(double jdUt) {
  const CalendarDate date = JdToDate2(jdUt);
  double atomicMinusUtc = 0.0;
  eraDat(date.year, date.month, date.day, 0.0, &atomicMinusUtc);
  return atomicMinusUtc + ERFA_TTMTAI;
}

}  // namespace

double DeltaTSeconds(double jdUt) {
  const double year = 2000.0 + (jdUt - 2451544.5) / 365.2425;
  if (year < kFirstLeapSecondYear) return PolynomialSeconds(year);
  if (year < kLastYearOfLeapSeconds) return LeapSecondsDeltaT(jdUt);
  if (year >= kYearOfPolynomialsAgain) return PolynomialSeconds(year);
  const double leap = LeapSecondsDeltaT(2451544.5 + (kLastYearOfLeapSeconds - 2000.0) * 365.2425);
  const double missed = PolynomialSeconds(kLastYearOfLeapSeconds) - leap;
  return PolynomialSeconds(year) - missed * (kYearOfPolynomialsAgain - year) /
                                       (kYearOfPolynomialsAgain - kLastYearOfLeapSeconds);
}

double TtFromUt(double jdUt) { return jdUt + DeltaTSeconds(jdUt) / 86400.0; }

double UtFromTt(double jdTt) {
  const double jdUt = jdTt - DeltaTSeconds(jdTt) / 86400.0;
  return jdTt - DeltaTSeconds(jdUt) / 86400.0;
}

}  // namespace vyn
