#include "engine/sky/meteorites.h"

#include <cmath>
#include <numbers>

#include "engine/sky/bodies.h"
#include "engine/sky/time_scales.h"
#include "siblings/astro/angles.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

// Orbits: Borovicka, Spurny and Brown 2015, "Small Near-Earth Asteroids as a Source of Meteorites"
// (Asteroids IV), table 1, angles of J2000. Falls: Meteoritical Bulletin Database; the Earth was in
// the node of each orbit then.
// clang-format off
constexpr Meteorite kMeteorites[]{
  {u"プリブラム", u"Pribram", 1959,  4,  7, 19, 30, 20.0,  2.401,  0.6711, 10.482, 241.750,  17.7915},
  {u"ロスト・シティ", u"Lost City", 1970,  1,  4,  2, 14,  0.0,   1.66,   0.417,   12.0,   161.0,    283.8},
  {u"イニスフリー", u"Innisfree", 1977,  2,  6,  2, 17, 38.0,  1.872,  0.4732,  12.27,  177.97,   317.52},
  {u"ベネショフ", u"Benesov", 1991,  5,  7, 23,  3, 46.0,  2.483,  0.6274, 23.981, 218.370,   47.001},
  {u"ピークスキル", u"Peekskill", 1992, 10,  9, 23, 48,  0.0,   1.49,    0.41,    4.9,   308.0,   17.030},
  {u"タギッシュ・レイク", u"Tagish Lake", 2000,  1, 18, 16, 43, 43.0,   1.98,    0.55,    2.0,   224.4,  297.901},
  {u"モラーフカ", u"Moravka", 2000,  5,  6, 11, 51, 52.0,   1.85,    0.47,   32.2,   203.5,   46.258},
  {u"ノイシュヴァンシュタイン", u"Neuschwanstein", 2002,  4,  6, 20, 20, 17.7,   2.40,   0.670,  11.41,  241.20,   16.827},
  {u"パーク・フォレスト", u"Park Forest", 2003,  3, 27,  5, 50, 26.0,   2.53,   0.680,    3.2,   237.5,   6.1156},
  {u"ビリャルベト・デ・ラ・ペーニャ", u"Villalbeto de la Pena", 2004,  1,  4, 16, 46, 45.0,    2.3,    0.63,    0.0,   132.3,  283.671},
  {u"バンバラ・ロックホール", u"Bunburra Rockhole", 2007,  7, 20, 19, 13, 53.0, 0.8529,  0.2427,   8.95,  210.04,  297.595},
  {u"アルマハータ・シッタ", u"Almahata Sitta", 2008, 10,  7,  2, 45, 45.0, 1.3082, 0.31206,  2.542, 234.449,  194.101},
  {u"バザード・クーリー", u"Buzzard Coulee", 2008, 11, 21,  0, 26, 40.0,   1.25,   0.228,   25.0,   211.3,  238.937},
  {u"マリボ", u"Maribo", 2009,  1, 17, 19,  8, 28.0,   2.48,   0.807,   0.11,   279.2,  297.122},
  {u"イェセニツェ", u"Jesenice", 2009,  4,  9,  0, 59, 46.0,   1.75,   0.431,    9.6,   190.5,   19.196},
  {u"グリムズビー", u"Grimsby", 2009,  9, 26,  1,  2, 58.0,   2.04,   0.518,   28.1,   159.9,  182.956},
  {u"コシツェ", u"Kosice", 2010,  2, 28, 22, 24, 47.0,   2.71,   0.647,    2.0,   204.2,  340.072},
  {u"メイソン・ガリー", u"Mason Gully", 2010,  4, 13, 10, 36, 10.0,  2.556,  0.6158,  0.895,   19.00,  203.214},
  {u"クリジェヴツィ", u"Krizevci", 2011,  2,  4, 23, 20, 40.0,  1.544,   0.521,  0.640,   254.4,   315.55},
  {u"サッターズ・ミル", u"Sutter's Mill", 2012,  4, 22, 14, 51, 12.0,   2.59,   0.824,    2.4,    77.8,    32.77},
  {u"ノバト", u"Novato", 2012, 10, 18,  2, 44, 30.0,   2.09,   0.526,    5.5,  347.37,  24.9414},
  {u"チェリャビンスク", u"Chelyabinsk", 2013,  2, 15,  3, 20, 21.0,   1.72,   0.571,   4.98,  107.67,  326.459},
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
