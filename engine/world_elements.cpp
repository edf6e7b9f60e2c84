// Assignments to element classes: their files, their data commands and their objects.
#include "core_link/reply.h"
#include "engine/world.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

bool IsDataCommand(QStringView feature) {
  return SameWord(feature, u"DataUpdate") || SameWord(feature, u"DataRemove");
}

/// What the engine tells of an object and nobody sets.
bool IsShowingReason(QStringView feature) {
  return SameWord(feature, u"Brighter") || SameWord(feature, u"OrbitalType") ||
         SameWord(feature, u"SpectralType");
}

}  // namespace

void World::AssignElements(const QString& path, const QString& value) {
  const auto member = AsMember(path);
  if (const Object object = ObjectOf(path); object.elements != nullptr) {
    return AssignObject(object, path, value);
  }
  if (member) {
    if (!IsDataCommand(member->feature)) tree_.SetValue(tree_.Make(path), value);
    return;
  }
  AssignElementFact(path, value);
}

void World::AssignElementFact(const QString& path, const QString& value) {
  const QStringView word = LastWord(path);
  ElementClass* elements = ElementsOf(path);
  if (SameWord(word, u"File")) return AssignFile(path, value);
  if (SameWord(word, u"DataAdd")) {
    if (elements != nullptr && reply::ToBool(value)) AddObjects(*elements);
    return;
  }
  if (SwitchColumn* column = ColumnOfMembers(path)) return column->SetMembers(value);
  if (elements != nullptr) return EndPut(path);
  tree_.SetValue(tree_.Make(path), value);
}

/// A file that cannot be read leaves the old one, and what answers for it.
void World::AssignFile(const QString& path, const QString& value) {
  for (const ElementKind kind : {ElementKind::Comet, ElementKind::MinorPlanet}) {
    if (!SameWord(ParentPath(path), Elements(kind).Path())) continue;
    if (LoadElements(kind, value)) EndPut(path);
  }
}

bool World::LoadElements(ElementKind kind, const QString& file) {
  if (!Elements(kind).Load(file)) return false;
  ForgetObjects(Elements(kind), 0);
  return true;
}

/// A state brought back after an object was removed speaks of one more than there are: what it says
/// of that number is not for the next object that gets it.
void World::AddObjects(ElementClass& elements) {
  ForgetObjects(elements, elements.Count());
  elements.AddObjects();
}

/// The values of single objects behind the first `kept` were those of other objects.
void World::ForgetObjects(const ElementClass& elements, int kept) {
  PropertyNode* classNode = tree_.Find(elements.Path());
  if (classNode == nullptr) return;
  for (PropertyNode* child : classNode->children) {
    if (ObjectNumber(child->Word()).value_or(0) <= kept) continue;
    tree_.ForEachNode(*child, [this](PropertyNode& node) {
      if (!node.isPut) tree_.ClearValue(node);
    });
  }
}

void World::AssignObject(const Object& object, const QString& path, const QString& value) {
  if (IsDataCommand(object.feature)) return CarryOut(object, value);
  if (IsShowingReason(object.feature)) return EndPut(path);
  const int number = object.feature.isEmpty() ? kIndividualSwitch : ObjectSwitchOf(object.feature);
  if (number < 0) return tree_.SetValue(tree_.Make(path), value);
  const bool answers = object.elements->Switches()[number].Set(object.index, value);
  if (object.feature.isEmpty()) return EndPut(path);
  // A text that the switch does not answer with is kept beside it.
  if (answers) return EndPut(path);
  tree_.SetValue(tree_.Make(path), value);
}

void World::CarryOut(const Object& object, const QString& value) {
  if (!reply::ToBool(value)) return;
  if (SameWord(object.feature, u"DataUpdate")) {
    object.elements->UpdateObject(object.index);
  } else if (object.elements->RemoveObject(object.index)) {
    tree_.RemoveMember(object.elements->Path(), u"No", object.index + 1);
  }
}

void World::InitElements(QStringView path) {
  if (const Object object = ObjectOf(path); object.elements != nullptr) {
    for (std::size_t i = 0; i < kObjectSwitches.size(); ++i) {
      if (object.feature.isEmpty() || IsWithin(kObjectSwitches[i], object.feature)) {
        object.elements->StartSwitch(static_cast<int>(i), object.index);
      }
    }
    return;
  }
  for (ElementClass& elements : elements_) {
    if (IsWithin(elements.Path(), path)) elements.StartSwitches();
  }
}

}  // namespace vyn
