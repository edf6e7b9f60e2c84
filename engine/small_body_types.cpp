#include "engine/small_body_types.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>

#include "elements/element_record.h"
#include "engine/element_table.h"
#include "engine/reference_engine.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

constexpr double kJupiterAxisAu = 5.2044;
constexpr double kShortPeriodYears = 200.0;

enum CometType {
  JupiterFamily,
  HalleyType,
  EnckeType,
  ChironType,
  LongPeriod,
  Parabolic,
  Hyperbolic
};

enum MinorPlanetType {
  Atira,
  Aten,
  Apollo,
  Amor,
  MarsCrosser,
  InnerBelt,
  MainBelt,
  OuterBelt,
  JupiterTrojan,
  Centaur,
  TransNeptunian,
  Other
};

// clang-format off
constexpr OrbitalType kCometTypes[]{
  {u"JupiterFamily",  u"木星族"},
  {u"HalleyType",     u"ハレー型"},
  {u"EnckeType",      u"エンケ型"},
  {u"ChironType",     u"キロン型"},
  {u"LongPeriod",     u"長周期"},
  {u"Parabolic",      u"放物線"},
  {u"Hyperbolic",     u"双曲線"},
};

constexpr OrbitalType kMinorPlanetTypes[]{
  {u"Atira",          u"アティラ群"},
  {u"Aten",           u"アテン群"},
  {u"Apollo",         u"アポロ群"},
  {u"Amor",           u"アモール群"},
  {u"MarsCrosser",    u"火星横断小惑星"},
  {u"InnerBelt",      u"小惑星帯内側"},
  {u"MainBelt",       u"小惑星帯"},
  {u"OuterBelt",      u"小惑星帯外側"},
  {u"JupiterTrojan",  u"木星トロヤ群"},
  {u"Centaur",        u"ケンタウルス族"},
  {u"TransNeptunian", u"太陽系外縁天体"},
  {u"Other",          u"その他"},
};

struct TaxonomicClass {
  char letter;
  std::initializer_list<int> numbers;
};

/// The numbers of each class in ascending order.
const TaxonomicClass kTaxonomy[]{
  {'A', {246, 289, 446, 863}},
  {'B', {2, 62, 2060, 101955}},
  {'C', {10, 24, 31, 34, 35, 36, 38, 41, 47, 48, 49, 51, 52, 54, 58, 59, 66, 70, 74, 78, 81, 86, 88,
         90, 93, 94, 95, 98, 99, 120, 121, 128, 145, 253, 324, 451, 511, 2100, 162173}},
  {'D', {279, 588, 624, 773, 911, 944, 1172}},
  {'E', {44, 64, 434, 2867, 3103}},
  {'F', {45, 85, 419, 704, 3200}},
  {'G', {1, 13, 19, 84, 106, 130}},
  {'M', {16, 21, 22, 55, 69, 75, 77, 97, 110, 129, 132, 135, 201, 216}},
  {'P', {46, 56, 65, 76, 87, 153, 190, 617}},
  {'Q', {1862}},
  {'R', {349}},
  {'S', {3, 5, 6, 7, 8, 9, 11, 12, 14, 15, 17, 18, 20, 23, 25, 26, 27, 28, 29, 30, 32, 33, 37, 39,
         40, 42, 43, 57, 60, 61, 63, 67, 68, 71, 79, 80, 82, 89, 100, 192, 221, 230, 243, 354, 433,
         532, 951, 1036, 1685, 4179, 25143}},
  {'T', {96, 233, 308}},
  {'V', {4}},
  {'X', {50, 53, 83, 92}},
};
// clang-format on

/// T = aJ/a + 2 cos i sqrt(a/aJ (1 - e^2)), with q (1 + e) for a (1 - e^2).
double TisserandParameter(const OrbitElements& orbit, double axisAu) {
  const double parameter = orbit.perihelionDistanceAu * (1.0 + orbit.eccentricity);
  return kJupiterAxisAu / axisAu +
         2.0 * std::cos(orbit.inclinationDeg * kRadPerDeg) * std::sqrt(parameter / kJupiterAxisAu);
}

double AxisAu(const OrbitElements& orbit) {
  return orbit.perihelionDistanceAu / (1.0 - orbit.eccentricity);
}

int CometTypeOf(const OrbitElements& orbit) {
  if (orbit.eccentricity > 1.0) return Hyperbolic;
  if (orbit.eccentricity == 1.0) return Parabolic;
  const double axis = AxisAu(orbit);
  if (std::pow(axis, 1.5) >= kShortPeriodYears) return LongPeriod;
  const double tisserand = TisserandParameter(orbit, axis);
  if (tisserand > 3.0) return axis < kJupiterAxisAu ? EnckeType : ChironType;
  return tisserand > 2.0 ? JupiterFamily : HalleyType;
}

int NearEarthTypeOf(double axis, double q, double aphelion) {
  if (aphelion < 0.983) return Atira;
  if (axis < 1.0) return Aten;
  return q < 1.017 ? Apollo : Amor;
}

int MinorPlanetTypeOf(const OrbitElements& orbit) {
  if (std::isnan(orbit.perihelionJd) || orbit.eccentricity >= 1.0) return Other;
  const double axis = AxisAu(orbit);
  const double q = orbit.perihelionDistanceAu;
  if (q < 1.3) return NearEarthTypeOf(axis, q, axis * (1.0 + orbit.eccentricity));
  if (q < 1.666 && axis < 3.2) return MarsCrosser;
  if (axis < 2.0) return InnerBelt;
  if (axis < 3.2) return MainBelt;
  if (axis < 4.6) return OuterBelt;
  if (axis < 5.5) return orbit.eccentricity < 0.3 ? JupiterTrojan : Other;
  return axis < 30.1 ? Centaur : TransNeptunian;
}

/// "1", "00001" or "(1)"; 0 for an object without number.
int NumberOf(std::string_view designation) {
  const std::size_t first = designation.find_first_not_of(" (");
  const std::size_t last = designation.find_last_not_of(" )");
  if (first == std::string_view::npos || last < first) return 0;
  int number = 0;
  const char* end = designation.data() + last + 1;
  const auto [stop, error] = std::from_chars(designation.data() + first, end, number);
  return error == std::errc() && stop == end ? number : 0;
}

OrbitElements OrbitInColumns(const ElementColumns& columns, int object) {
  return {.perihelionJd = columns.perihelionJd[object],
          .perihelionDistanceAu = columns.perihelionDistanceAu[object],
          .eccentricity = columns.eccentricity[object],
          .inclinationDeg = columns.inclinationDeg[object]};
}

}  // namespace

std::span<const OrbitalType> OrbitalTypesOf(ElementKind kind) {
  if (kind == ElementKind::Comet) return kCometTypes;
  return kMinorPlanetTypes;
}

int OrbitalTypeOf(ElementKind kind, const OrbitElements& orbit) {
  return kind == ElementKind::Comet ? CometTypeOf(orbit) : MinorPlanetTypeOf(orbit);
}

char SpectralTypeOf(int number) {
  for (const TaxonomicClass& taxonomic : kTaxonomy) {
    if (std::binary_search(taxonomic.numbers.begin(), taxonomic.numbers.end(), number)) {
      return taxonomic.letter;
    }
  }
  return 0;
}

void SmallBodyTypes::ReadFrom(const ElementTable& table, int first) {
  const int known = static_cast<int>(orbital_.size());
  for (int object = first; object < known; ++object) CountSpectral(object, -1);
  orbital_.resize(table.Count());
  spectral_.resize(table.Count());
  for (int object = first; object < table.Count(); ++object) Read(table, object);
}

void SmallBodyTypes::ReadAgain(const ElementTable& table, int object) {
  CountSpectral(object, -1);
  Read(table, object);
}

void SmallBodyTypes::Remove(int object) {
  CountSpectral(object, -1);
  orbital_.erase(orbital_.begin() + object);
  spectral_.erase(spectral_.begin() + object);
}

void SmallBodyTypes::Read(const ElementTable& table, int object) {
  orbital_[object] =
      static_cast<std::uint8_t>(OrbitalTypeOf(kind_, OrbitInColumns(table.Columns(), object)));
  spectral_[object] = 0;
  if (kind_ == ElementKind::Comet) return;
  const std::string_view record = table.Record(static_cast<int>(table.FirstRecords()[object]));
  spectral_[object] = static_cast<std::uint8_t>(
      SpectralTypeOf(NumberOf(FieldBytes(record, ElementField::PermanentDesignation))));
  CountSpectral(object, 1);
}

void SmallBodyTypes::CountSpectral(int object, int change) {
  if (spectral_[object] != 0) spectralCounts_[spectral_[object] - 'A'] += change;
}

}  // namespace vyn
