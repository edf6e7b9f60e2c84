// The reference core engine: the command language on a property tree, with loaded element files,
// status snapshots, time, site and view. It draws nothing.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QStringList>

#include "core_link/cor_vyn.h"
#include "engine/object_switches.h"

namespace vyn {

class ElementTable;
class SmallBodyPlaces;
struct StateVector;
enum class ElementKind { Comet, MinorPlanet };

/// A core engine for tests, tools and the demo planetarium. It starts bare: no property has a
/// value, no element file is loaded, nothing is snapshotted.
class ReferenceEngine final : public CCorVyn {
 public:
  ReferenceEngine();
  ~ReferenceEngine() override;

  QString Doit(const QString& command) override;
  QString ObjNumToName(int bodyNumber) const override;
  int GetLocationObject() const override;
  int GetTimeSys() const override;

  /// Goes back to the bare state.
  void Reset();

  /// The state with which the demo planetarium starts; the same on every call. Values of
  /// SetProperty and loaded element files stay; the objects of the files are shown.
  void LoadStartingState();

  /// Keeps the data sets of the Sun and the planets in folders below this one from now on, and
  /// takes those that are there. Returns what could not be read.
  QStringList LoadDataSets(const QString& folder);

  /// Puts a value in place that answers queries of this path until something assigns to it, also
  /// where the engine would otherwise compute the answer.
  void SetProperty(const QString& path, const QString& text);

  /// What a query of this path replies now.
  QString Property(const QString& path);

  /// From now on this exact command text is answered with `text` and does nothing else.
  void SetReply(const QString& command, const QString& text);

  /// Loads an element file as the current one of its kind. Returns false, and keeps the file
  /// loaded before, when nothing can be read from it; Elements(kind).Problems() tells the rest.
  bool LoadElements(ElementKind kind, const QString& path);
  const ElementTable& Elements(ElementKind kind) const;

  /// The objects of the loaded file, numbered from 0, that are shown, ascending: those whose
  /// individual switch is on or that pass one of the limits in force.
  std::vector<int> ShownObjects(ElementKind kind) const;

  /// The places of all objects of the loaded file for that observer, whose place and velocity are
  /// told relative to the Sun. They are kept: asking again for the same costs nothing.
  const SmallBodyPlaces& PlacesAt(ElementKind kind, double jdTt, const StateVector& observer) const;

  /// The switches of all objects, and the number of the orbital type of one.
  const ObjectSwitches& Switches(ElementKind kind) const;
  int OrbitalTypeNumber(ElementKind kind, int object) const;

  /// Whether an object of the loaded file, numbered from 0, is shown; and one of its switches by
  /// the feature behind its path, such as "Orbit" or "ID.Visible". False for an unknown object.
  bool IsObjectShown(ElementKind kind, int object) const;
  bool IsObjectOn(ElementKind kind, int object, QStringView feature) const;

  void SetLocationObject(int bodyNumber);
  void SetTimeSys(int timeSystem);

  /// Called at every redraw statement.
  void SetRedrawHandler(std::function<void()> handler);

  /// Whether the property reads as true; its number; 0.0 when it has none. For whoever draws.
  bool IsOn(QStringView path) const;
  double Number(QStringView path, double fallback = 0.0) const;

  /// The moment shown, as a Julian date in universal time; that of the starting state while none is
  /// set.
  double JulianDate() const;

 private:
  class Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace vyn
