// A class of objects that come from an element file: the file, and the objects' switches.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QString>
#include <QStringView>

#include "engine/display_limits.h"
#include "engine/object_switches.h"
#include "engine/reference_engine.h"
#include "engine/sky/sky_snapshot.h"
#include "engine/small_body_types.h"

namespace vyn {

/// Objects are numbered from 0 here and from 1 in paths.
class ElementClass {
 public:
  ElementClass(QString classPath, ElementKind kind);
  ~ElementClass();

  ElementKind Kind() const { return kind_; }
  const QString& Path() const { return path_; }
  const ElementTable& Table() const { return *table_; }
  bool IsLoaded() const;  ///< also when its file has lost its last object
  QString File() const;   ///< as it was given; empty before the first load
  int Count() const;

  /// Loads another file; its objects' switches are as they start. False leaves all as it was.
  bool Load(const QString& file);

  /// The file was changed on disk. The objects that stay keep their switches. False leaves all as
  /// it was.
  bool AddObjects();
  bool UpdateObject(int object);
  bool RemoveObject(int object);

  /// "total records, address, objects, address" of the record data and the first-record table;
  /// empty without an object.
  QString DataPtr() const;

  /// The object's text with this feature, spelled as in "EnglishName"; nothing for another feature.
  std::optional<QString> Text(int object, QStringView feature) const;

  /// The object's own text with this feature ("ID", "EnglishName" ...) or its switch; nothing when
  /// the feature is neither.
  std::optional<QString> Answer(int object, QStringView feature) const;

  /// Whether the limit in force shows the object.
  bool IsWithinMagnitude(int object, const DisplayLimits& limits) const;
  bool IsOfTickedOrbit(int object, const DisplayLimits& limits) const;
  bool IsOfTickedSpectrum(int object, const DisplayLimits& limits) const;

  /// An object is shown while its individual switch is on or one of the limits in force shows it.
  bool IsShown(int object, const DisplayLimits& limits) const;
  int CountShown(const DisplayLimits& limits) const;
  std::vector<int> Shown(const DisplayLimits& limits) const;

  const SmallBodyTypes& Types() const { return types_; }

  /// The places of all objects at that moment and for that observer, kept until either or the
  /// table changes.
  const SmallBodyPlaces& PlacesAt(double jdTt, const StateVector& observer) const;

  ObjectSwitches& Switches() { return switches_; }
  const ObjectSwitches& Switches() const { return switches_; }

  /// How every object's individual switch starts.
  void SetIndividualAtStart(bool on) { individualAtStart_ = on; }

  /// Puts one switch (an index of kObjectSwitches) of one or all objects to where it starts.
  void StartSwitch(int number, int object);
  void StartSwitches();

 private:
  template <typename Action>
  void ForEachShown(const DisplayLimits& limits, Action action) const;
  void TableChanged();
  void FitSwitches();
  void ReadTypes(int wholeReadsBefore,
                 void (*readChange)(SmallBodyTypes&, const ElementTable&, int), int object);
  QStringView StartText(int number) const;

  QString path_;
  ElementKind kind_;
  std::unique_ptr<ElementTable> table_;
  ObjectSwitches switches_;
  SmallBodyTypes types_;
  mutable LimitMagnitudes magnitudes_;
  struct KeptCount {
    DisplayLimits limits;
    SwitchColumn individual;
    int count = 0;
    bool isUpToDate = false;
  };
  mutable KeptCount keptCount_;
  struct KeptPlaces {
    SmallBodyPlaces places;
    double jdTt = 0.0;
    StateVector observer;
    bool isTableKnown = false;
    bool isUpToDate = false;
  };
  mutable KeptPlaces kept_;
  bool individualAtStart_ = false;
};

}  // namespace vyn
