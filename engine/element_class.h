// A class of objects that come from an element file: the file, and the objects' switches.
#pragma once

#include <memory>
#include <optional>

#include <QString>
#include <QStringView>

#include "engine/object_switches.h"
#include "engine/reference_engine.h"

namespace vyn {

/// Objects are numbered from 0 here and from 1 in paths.
class ElementClass {
 public:
  explicit ElementClass(QString classPath);
  ~ElementClass();

  const QString& Path() const { return path_; }
  const ElementTable& Table() const { return *table_; }
  bool IsLoaded() const;
  QString File() const;  ///< as it was given; empty before the first load
  int Count() const;

  /// Loads another file; its objects' switches are as they start. False leaves all as it was.
  bool Load(const QString& file);

  /// The file was changed on disk. The objects that stay keep their switches. False leaves all as
  /// it was.
  bool AddObjects();
  bool UpdateObject(int object);
  bool RemoveObject(int object);

  /// "total records, address, objects, address" of the record data and the first-record table;
  /// empty without a file.
  QString DataPtr() const;

  /// The object's own text with this feature ("ID", "EnglishName" ...) or its switch; nothing when
  /// the feature is neither.
  std::optional<QString> Answer(int object, QStringView feature) const;

  /// An object is shown while its individual switch is on.
  bool IsShown(int object) const { return switches_[kIndividualSwitch].IsOn(object); }
  qsizetype CountShown() const { return switches_[kIndividualSwitch].OnCount(); }

  ObjectSwitches& Switches() { return switches_; }
  const ObjectSwitches& Switches() const { return switches_; }

  /// How every object's individual switch starts.
  void SetIndividualAtStart(bool on) { individualAtStart_ = on; }

  /// Puts one switch (an index of kObjectSwitches) of one or all objects to where it starts.
  void StartSwitch(int number, int object);
  void StartSwitches();

 private:
  void FitSwitches();
  QStringView StartText(int number) const;

  QString path_;
  std::unique_ptr<ElementTable> table_;
  ObjectSwitches switches_;
  bool individualAtStart_ = false;
};

}  // namespace vyn
