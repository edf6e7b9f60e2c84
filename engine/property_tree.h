// The engine's property tree: every property that has or had a value, found by its path.
#pragma once

#include <deque>
#include <functional>
#include <unordered_map>
#include <vector>

#include <QString>
#include <QStringView>

#include "engine/property_path.h"

namespace vyn {

struct PropertyNode {
  QString path;  ///< canonical, in the casing in which it was first written
  PropertyNode* parent = nullptr;
  std::vector<PropertyNode*> children;
  QString value;
  QString startingValue;
  PathRole role = PathRole::Plain;
  bool hasValue = false;
  bool hasStartingValue = false;
  /// The value was put in place from outside and stays until something is assigned.
  bool isPut = false;
  int valuesWithin = 0;  ///< nodes with a value, this one and those below it

  QStringView Word() const { return LastWord(path); }
};

/// Nodes stay where they are until Clear; a node without a value is no property.
class PropertyTree {
 public:
  PropertyTree();

  /// The node of a path in any of its spellings; null when there is none.
  PropertyNode* Find(QStringView path) const;

  /// Whether a value is kept at or below a path, which is to be spelled canonically.
  bool HasValuesWithin(QStringView canonicalPath) const;

  /// Whether an object of an element class, or what is below it, ever had a value.
  bool HasElementObjects() const { return hasElementObjects_; }

  /// The canonical path, with members called by their label ("#A07") called by their number; empty
  /// for what is no path.
  QString Canonical(QStringView path) const;

  /// The node of a canonical path, made where there is none.
  PropertyNode& Make(const QString& canonicalPath);

  void SetValue(PropertyNode& node, QStringView value);
  void ClearValue(PropertyNode& node);

  /// Takes the values at and below a path away.
  void ClearWithin(const QString& path);

  /// Removes the member "#n" or "Non" of a path, the prefix being "#" or "No": its values go, and
  /// those of the members behind it move up by one number.
  void RemoveMember(const QString& path, QStringView prefix, int number);

  /// Calls `visit` for every node with a value at or below `root`, parents first, siblings in the
  /// order in which they came.
  void ForEachValue(PropertyNode& root, const std::function<void(PropertyNode&)>& visit);

  /// The same for every node, with a value or without.
  void ForEachNode(PropertyNode& root, const std::function<void(PropertyNode&)>& visit);

  /// The node above all.
  PropertyNode& Root() { return root_; }

  void Clear();

 private:
  PropertyNode* FindIn(QStringView path) const;
  void MoveValues(const QString& from, const QString& to);
  QString NumberOfLabel(QStringView parentPath, QStringView label) const;
  PropertyNode& Insert(const QString& path, PropertyNode& parent);

  using Index = std::unordered_map<QString, PropertyNode*, PathHash, PathEqual>;

  PropertyNode root_;
  std::deque<PropertyNode> nodes_;
  Index index_;
  bool hasElementObjects_ = false;
  /// Further spellings by which nodes were asked for.
  mutable Index aliases_;
};

}  // namespace vyn
