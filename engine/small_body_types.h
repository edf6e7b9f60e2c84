// The classes by which comets and minor planets are told apart: by their orbits and, where it is
// known, by their spectra.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include <QString>
#include <QStringView>

#include "engine/sky/kepler.h"

namespace vyn {

class ElementTable;
enum class ElementKind;

struct OrbitalType {
  QStringView objectName;  ///< its word in paths
  QStringView localName;
};

/// The orbital types of a kind, in the order of their numbers. There are at most 32.
std::span<const OrbitalType> OrbitalTypesOf(ElementKind kind);

/// The number, from 0, of the orbit's type.
///
/// Comets: eccentricity above 1 hyperbolic, 1 parabolic; a period of 200 years and more long; of
/// shorter ones, by the Tisserand parameter T of Jupiter, Encke type with T > 3 inside Jupiter's
/// orbit and Chiron type outside of it, Jupiter's family with 2 < T <= 3, and Halley type. Source:
/// Levison 1996 (ASP Conf. 107, 173), with 200 years as the usual bound of short periods.
///
/// Minor planets: limits of semi-major axis, perihelion and aphelion as in the Jet Propulsion
/// Laboratory's Small-Body Database (orbit classes, in au): Atira Q < 0.983; Aten a < 1; Apollo
/// q < 1.017; Amor q < 1.3; Mars crosser q < 1.666 and a < 3.2; inner belt a < 2.0, main belt to
/// 3.2, outer belt to 4.6; Jupiter Trojan 4.6 to 5.5 with e < 0.3; Centaur to 30.1;
/// trans-Neptunian beyond; others, also with an orbit that is not known.
int OrbitalTypeOf(ElementKind kind, const OrbitElements& orbit);

/// The letter of the taxonomic class of a numbered minor planet, 0 where the table has none. Of a
/// class of several letters the first. Source: Tholen 1989 ("Asteroids II", 1139); of numbers above
/// 3000, Binzel et al. 2004 (Icarus 170, 259) and the results of the spacecraft that went there.
char SpectralTypeOf(int number);

/// Types of all objects of a table, kept beside it.
class SmallBodyTypes {
 public:
  explicit SmallBodyTypes(ElementKind kind) : kind_(kind) {}

  /// All objects from `first` on were read; one object was changed or taken out.
  void ReadFrom(const ElementTable& table, int first);
  void ReadAgain(const ElementTable& table, int object);
  void Remove(int object);

  int Orbital(int object) const { return orbital_[object]; }
  char Spectral(int object) const { return static_cast<char>(spectral_[object]); }

  /// How many objects are of that spectral type, a letter from A to Z.
  int SpectralCount(char letter) const { return spectralCounts_[letter - 'A']; }

 private:
  void Read(const ElementTable& table, int object);
  void CountSpectral(int object, int change);

  ElementKind kind_;
  std::vector<std::uint8_t> orbital_;
  std::vector<std::uint8_t> spectral_;
  std::array<int, 26> spectralCounts_{};
};

}  // namespace vyn
