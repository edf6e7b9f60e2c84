// Meteorites whose fall was recorded well enough to tell on which orbit they came.
#pragma once

#include <span>

#include <QStringView>

#include "engine/sky/kepler.h"

namespace vyn {

struct Meteorite {
  QStringView japaneseName;
  QStringView englishName;
  /// When it fell, universal time.
  int year, month, day, hour, minute;
  double second;
  /// Before it met the Earth; J2000.
  double semiMajorAxisAu;
  double eccentricity;
  double inclinationDeg;
  double argumentOfPerihelionDeg;
  double ascendingNodeDeg;

  double FallJdUt() const;

  /// The orbit, with the perihelion passage that is not published: it follows from where on the
  /// orbit the body was at the fall, in the node in which the Earth stood.
  OrbitElements Orbit() const;
};

/// By the time of fall.
std::span<const Meteorite> RecordedMeteorites();

}  // namespace vyn
