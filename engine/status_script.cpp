#include "engine/status_script.h"

#include <unordered_map>

#include "engine/value_text.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// What a file or a status says is not part of a state.
bool IsRestorable(const PropertyNode& node) {
  if (node.role == PathRole::Status) return false;
  return node.role != PathRole::ElementClass || AsMember(node.path).has_value();
}

/// A plain assignment to a class would reach its members, to a date part move the moment ...: where
/// an assignment does more than store, the value alone is set.
void AppendStatement(const PropertyNode& node, const QString& value, QString* script) {
  const bool plain = node.role == PathRole::Plain;
  script->append(node.path).append(plain ? " = "_L1 : ".Set("_L1).append(WriteValue(value));
  script->append(plain ? ";"_L1 : ");"_L1);
}

void AppendSwitch(const ElementClass& elements, std::size_t number, const SwitchColumn& column,
                  QString* script) {
  for (const QString& members : column.Members()) {
    script->append(elements.Path()).append(u'.').append(kObjectSwitches[number]);
    script->append(".Members = "_L1).append(WriteValue(members)).append(u';');
  }
}

/// The switches that a path governs: all of its class for the class, one for "CLASS.FEATURE".
bool Governs(QStringView path, const ElementClass& elements, std::size_t number) {
  if (path.isEmpty() || IsWithin(elements.Path(), path)) return true;
  return IsWithin(QString(elements.Path() + u'.' + kObjectSwitches[number]), path);
}

void AppendSwitches(World& world, QStringView path, QString* script) {
  for (const ElementClass& elements : world.AllElements()) {
    if (!elements.IsLoaded()) continue;
    for (std::size_t i = 0; i < kObjectSwitches.size(); ++i) {
      if (Governs(path, elements, i)) AppendSwitch(elements, i, elements.Switches()[i], script);
    }
  }
}

/// A loaded object's own switches.
void AppendObject(World& world, QStringView path, QString* script) {
  const auto member = AsMember(path);
  if (!member) return;
  for (const ElementClass& elements : world.AllElements()) {
    const int number = ObjectNumber(member->member).value_or(0);
    if (!SameWord(member->classPath, elements.Path()) || number > elements.Count()) continue;
    const QString objectPath = elements.Path() + u'.' + member->member;
    for (std::size_t i = 0; i < kObjectSwitches.size(); ++i) {
      const QString switchPath = objectPath + u'.' + kObjectSwitches[i];
      if (!IsWithin(switchPath, path)) continue;
      *script += switchPath + " = "_L1 + elements.Switches()[i].Text(number - 1) + u';';
    }
  }
}

using Values = std::unordered_map<const PropertyNode*, const QString*>;

Values Indexed(const Snapshot& snapshot) {
  Values values;
  values.reserve(snapshot.values.size());
  for (const auto& [node, value] : snapshot.values) values.emplace(node, &value);
  return values;
}

/// Before anything is put back: a moment that has come since would take parts of a date for a move.
void AppendForgotten(World& world, const Snapshot& snapshot, QString* script) {
  const Values before = Indexed(snapshot);
  world.Tree().ForEachValue(world.Tree().Root(), [&](const PropertyNode& node) {
    if (!before.contains(&node) && IsRestorable(node)) *script += node.path + ".Forget();"_L1;
  });
}

void AppendChangedSwitches(World& world, const Snapshot& snapshot, QString* script) {
  for (std::size_t kind = 0; kind < snapshot.switches.size(); ++kind) {
    const ElementClass& elements = world.AllElements()[kind];
    if (!elements.IsLoaded()) continue;
    for (std::size_t i = 0; i < kObjectSwitches.size(); ++i) {
      const SwitchColumn& before = snapshot.switches[kind][i];
      if (!(before == elements.Switches()[i])) AppendSwitch(elements, i, before, script);
    }
  }
}

}  // namespace

Snapshot TakeSnapshot(World& world) {
  Snapshot snapshot;
  world.Tree().ForEachValue(world.Tree().Root(), [&](PropertyNode& node) {
    if (IsRestorable(node)) snapshot.values.emplace_back(&node, node.value);
  });
  for (std::size_t kind = 0; kind < snapshot.switches.size(); ++kind) {
    snapshot.switches[kind] = world.AllElements()[kind].Switches();
  }
  return snapshot;
}

/// The bits come first: an object's own text, where it has one, is to be what answers.
QString StatusScript(World& world, QStringView path) {
  QString script;
  AppendSwitches(world, path, &script);
  AppendObject(world, path, &script);
  PropertyNode* root = path.isEmpty() ? &world.Tree().Root() : world.Tree().Find(path);
  if (root == nullptr) return script;
  world.Tree().ForEachValue(*root, [&](const PropertyNode& node) {
    if (IsRestorable(node)) AppendStatement(node, node.value, &script);
  });
  return script;
}

QString RestoringScript(World& world, const Snapshot& snapshot) {
  QString script;
  AppendForgotten(world, snapshot, &script);
  AppendChangedSwitches(world, snapshot, &script);
  for (const auto& [node, value] : snapshot.values) {
    if (!node->hasValue || node->value != value) AppendStatement(*node, value, &script);
  }
  return script;
}

}  // namespace vyn
