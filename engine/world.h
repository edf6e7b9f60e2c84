// All that the engine keeps, and what the command language's statements mean for it: properties,
// element files and status slots.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include <QString>
#include <QStringView>

#include "engine/data_set_files.h"
#include "engine/element_class.h"
#include "engine/property_tree.h"

namespace vyn {

/// The state at one moment.
struct Snapshot {
  std::vector<std::pair<PropertyNode*, QString>> values;
  std::array<ObjectSwitches, 2> switches;
};

class World {
 public:
  /// Status slots are numbered from 1 to this.
  static constexpr int kMaxSlot = 100;

  World();

  /// What a query of the path replies.
  QString Read(QStringView path);

  /// Carries out the assignment of a value as it is written in a statement.
  void Assign(QStringView path, QStringView written);

  /// Puts a value in place until something is assigned.
  void Put(QStringView path, const QString& text);

  /// Stores a value for this path alone; ".Set(value)".
  void Set(QStringView path, QStringView written);

  /// Takes this path's value away; ".Forget()".
  void Forget(QStringView path, QStringView = {});

  /// Puts the path and all below it to the starting state; ".Init()". Values put in place stay.
  void Init(QStringView path, QStringView = {});

  void AddMember(QStringView path, QStringView arguments);
  void DeleteMember(QStringView path, QStringView argument);

  /// The members' text files. What went wrong stands in "Problem" below the path after that.
  void SaveMembers(QStringView path, QStringView = {});
  void LoadMembers(QStringView path, QStringView = {});

  /// The slots are called by their path, "Status.#5".
  void ClearSlot(QStringView slotPath);
  void FillSlot(QStringView slotPath);

  void LoadStartingState();

  /// Makes a file the element file of its kind. False leaves the old one.
  bool LoadElements(ElementKind kind, const QString& file);

  PropertyTree& Tree() { return tree_; }
  /// The body on whose centre magnitudes are reckoned for the limits, numbered as in Body.
  void SetObserverBody(int body) { observerBody_ = body; }

  /// What of the objects' limits is in force.
  DisplayLimits LimitsOf(const ElementClass& elements) const;

  ElementClass& Elements(ElementKind kind) { return elements_[static_cast<std::size_t>(kind)]; }
  const ElementClass& Elements(ElementKind kind) const {
    return elements_[static_cast<std::size_t>(kind)];
  }
  std::array<ElementClass, 2>& AllElements() { return elements_; }

 private:
  /// An object of a loaded element file.
  struct Object {
    ElementClass* elements = nullptr;
    int index = 0;
    QString feature;
  };

  QString Compute(const QString& path);
  std::optional<QString> ReadObjectText(QStringView path) const;
  QString ReadStatus(const QString& path);
  QString ReadElements(const QString& path);
  QString ReadObject(const Object& object);
  QString ReadTypes(const ElementClass& elements, QStringView feature) const;
  bool IsClassOn(const ElementClass& elements, QStringView feature) const;
  QString Inherited(const QString& path);
  bool MemberExists(const MemberPath& member, const QString& path);

  void Store(const QString& path, const QString& value);
  void StoreForClass(const QString& path, const QString& value);
  void StoreForMembers(const ClassFeature& feature, const QString& value);
  void StoreForMember(const PropertyNode& member, QStringView feature, const QString& value);
  void AssignElements(const QString& path, const QString& value);
  void AssignObject(const Object& object, const QString& path, const QString& value);
  void AssignElementFact(const QString& path, const QString& value);
  void AssignFile(const QString& path, const QString& value);
  void CarryOut(const Object& object, const QString& value);
  void AddObjects(ElementClass& elements);
  void ForgetObjects(const ElementClass& elements, int kept);
  void InitElements(QStringView path);
  void EndPut(const QString& path);

  ElementClass* ElementsOf(QStringView path);
  Object ObjectOf(QStringView path);
  SwitchColumn* ColumnOfMembers(QStringView path);

  void SetProblem(const QString& basePath, const QString& problem);

  PropertyTree tree_;
  DataSetFiles dataSetFiles_;
  std::array<ElementClass, 2> elements_;
  std::map<int, Snapshot> slots_;
  int observerBody_;
};

}  // namespace vyn
