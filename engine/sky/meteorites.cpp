#include "engine/sky/meteorites.h"

#include <cmath>
#include <numbers>

#include "engine/sky/bodies.h"
#include "engine/sky/time_scales.h"
#include "siblings/astro/angles.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

// clang-format off
constexpr Meteorite kMeteorites[]{
  // Ceplecha 1961, BAC 12, 21; Spurny et al. 2003, Nature 423, 151
  {u"プリブラム",           u"Pribram",          1959,  4,  7, 19, 30, 20.0, 2.401,  0.6711,  10.482,  241.750,   17.79147},
  // McCrosky et al. 1971, JGR 76, 4090
  {u"ロスト・シティ",       u"Lost City",        1970,  1,  4,  2, 14,  0.0, 1.66,   0.417,   12.0,    161.0,    283.0},
  // Halliday et al. 1978, JRASC 72, 15
  {u"イニスフリー",         u"Innisfree",        1977,  2,  6,  2, 17, 38.0, 1.872,  0.4732,  12.27,   177.97,   317.52},
  // Brown et al. 1994, Nature 367, 624
  {u"ピークスキル",         u"Peekskill",        1992, 10,  9, 23, 48,  0.0, 1.49,   0.41,     4.9,    308.0,     17.030},
  // Brown et al. 2000, Science 290, 320
  {u"タギッシュ・レイク",   u"Tagish Lake",      2000,  1, 18, 16, 43, 43.0, 2.1,    0.57,     1.4,    222.0,    297.900},
  // Borovicka et al. 2003, M&PS 38, 975
  {u"モラーフカ",           u"Moravka",          2000,  5,  6, 11, 51, 52.0, 1.85,   0.47,    32.2,    203.5,     46.2580},
  // Spurny et al. 2003, Nature 423, 151
  {u"ノイシュヴァンシュタイン", u"Neuschwanstein", 2002,  4,  6, 20, 20, 17.7, 2.40,   0.670,   11.41,   241.2,     16.82664},
  // Brown et al. 2004, M&PS 39, 1781
  {u"パーク・フォレスト",   u"Park Forest",      2003,  3, 27,  5, 50, 26.0, 2.53,   0.680,    3.2,    237.5,      6.1156},
  // Trigo-Rodriguez et al. 2006, M&PS 41, 505
  {u"ビリャルベト・デ・ラ・ペーニャ", u"Villalbeto de la Pena", 2004, 1, 4, 16, 46, 45.0, 2.3, 0.63, 0.0,    132.3,    283.6712},
  // Bland et al. 2009, Science 325, 1525
  {u"バンバラ・ロックホール", u"Bunburra Rockhole", 2007, 7, 20, 19, 13, 53.0, 0.851,  0.245,    9.07,   209.9,    297.59528},
  // Jenniskens et al. 2009, Nature 458, 485
  {u"アルマハータ・シッタ", u"Almahata Sitta",   2008, 10,  7,  2, 45, 45.0, 1.3082, 0.31206,  2.5422, 234.4490, 194.101138},
  // Spurny et al. 2010, M&PS 45, 1392
  {u"イェセニツェ",         u"Jesenice",         2009,  4,  9,  0, 59, 46.0, 1.75,   0.431,    9.6,    190.5,     19.196},
  // Brown et al. 2011, M&PS 46, 339
  {u"グリムズビー",         u"Grimsby",          2009,  9, 26,  1,  2, 58.0, 2.04,   0.518,   28.07,   159.865,  182.9561},
  // Borovicka et al. 2013, M&PS 48, 1757
  {u"コシツェ",             u"Kosice",           2010,  2, 28, 22, 24, 47.0, 2.71,   0.647,    2.0,    204.2,    340.072},
  // Jenniskens et al. 2012, Science 338, 1583
  {u"サッターズ・ミル",     u"Sutter's Mill",    2012,  4, 22, 14, 51, 12.0, 2.59,   0.824,    2.38,    77.8,     32.774},
  // Borovicka et al. 2013, Nature 503, 235
  {u"チェリャビンスク",     u"Chelyabinsk",      2013,  2, 15,  3, 20, 21.0, 1.72,   0.571,    4.98,   107.67,   326.459},
};
// clang-format on

/// From perihelion to the place with this true anomaly on an ellipse.
double DaysFromPerihelion(const OrbitElements& orbit, double anomaly) {
  const double e = orbit.eccentricity;
  const double eccentric =
      std::atan2(std::sqrt(1.0 - e * e) * std::sin(anomaly), e + std::cos(anomaly));
  return (eccentric - e * std::sin(eccentric)) / (2.0 * std::numbers::pi) * PeriodDays(orbit);
}

}  // namespace

double Meteorite::FallJdUt() const { return GetJd(year, month, day, hour, minute, second, 0.0); }

OrbitElements Meteorite::Orbit() const {
  OrbitElements orbit{.perihelionDistanceAu = semiMajorAxisAu * (1.0 - eccentricity),
                      .eccentricity = eccentricity,
                      .argumentOfPerihelionDeg = argumentOfPerihelionDeg,
                      .ascendingNodeDeg = ascendingNodeDeg,
                      .inclinationDeg = inclinationDeg};
  const double fallJdTt = TtFromUt(FallJdUt());
  const Vector3 earth = HeliocentricState(Body::Earth, fallJdTt).position;
  const double node = ascendingNodeDeg * kRadPerDeg;
  const bool isAscending = earth.x * std::cos(node) + earth.y * std::sin(node) > 0.0;
  const double anomaly =
      (isAscending ? 0.0 : std::numbers::pi) - argumentOfPerihelionDeg * kRadPerDeg;
  orbit.perihelionJd = fallJdTt - DaysFromPerihelion(orbit, anomaly);
  return orbit;
}

std::span<const Meteorite> RecordedMeteorites() { return kMeteorites; }

}  // namespace vyn
