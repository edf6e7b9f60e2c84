#include "engine/world.h"

#include "core_link/reply.h"
#include "engine/data_sets.h"
#include "engine/sky/bodies.h"
#include "engine/sky/time_scales.h"
#include "engine/starting_state.h"
#include "engine/status_script.h"
#include "engine/sunspot_orientation.h"
#include "engine/time_properties.h"
#include "engine/value_text.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// A value that stands for itself as written, as nearly all do.
bool IsBare(QStringView written) {
  return !written.startsWith(u'"') && !written.contains(u'(') && !written.endsWith(u')');
}

/// The number of "Status.#5"; 0 for what is no slot.
int SlotNumber(QStringView path) {
  const QString canonical = CanonicalPath(path);
  if (!SameWord(ParentPath(canonical), u"Status")) return 0;
  const int number = reply::ToInt(LastWord(canonical).sliced(1));
  return number <= World::kMaxSlot ? number : 0;
}

/// Why an object is shown; empty for any reason.
struct ShowingReason {
  QStringView feature;
  bool (ElementClass::*shows)(int, const DisplayLimits&) const;
};

// clang-format off
constexpr ShowingReason kShowingReasons[]{
  {u"",             &ElementClass::IsShown},
  {u"Brighter",     &ElementClass::IsWithinMagnitude},
  {u"OrbitalType",  &ElementClass::IsOfTickedOrbit},
  {u"SpectralType", &ElementClass::IsOfTickedSpectrum},
};
// clang-format on

constexpr QStringView kMemberPrefix = u".No";

/// 0 for all but the digits of a number that has no leading zeros.
int PlainNumber(QStringView digits) {
  constexpr qsizetype kMostDigits = 9;
  if (digits.size() > kMostDigits || digits.startsWith(u'0')) return 0;
  int number = 0;
  for (const QChar c : digits) {
    if (c < u'0' || c > u'9') return 0;
    number = number * 10 + (c.unicode() - u'0');
  }
  return number;
}

QString TruthText(bool on) { return on ? u"TRUE"_s : u"FALSE"_s; }

}  // namespace

World::World()
    : elements_{ElementClass(u"Solar.Comet"_s, ElementKind::Comet),
                ElementClass(u"Solar.MinorPlanet"_s, ElementKind::MinorPlanet)},
      observerBody_(static_cast<int>(Body::Earth)) {}

QString World::Read(QStringView path) {
  if (auto text = ReadObjectText(path)) return *std::move(text);
  const PropertyNode* node = tree_.Find(path);
  if (node != nullptr && node->hasValue) return node->value;
  const QString canonical = node != nullptr ? node->path : tree_.Canonical(path);
  return canonical.isEmpty() ? QString() : Compute(canonical);
}

/// The texts of objects as the dialogs ask for them: a search does so a million times. Nothing for
/// any other spelling, and for an object that may answer otherwise than from its file.
std::optional<QString> World::ReadObjectText(QStringView path) const {
  for (const ElementClass& elements : elements_) {
    if (!path.startsWith(elements.Path())) continue;
    const qsizetype numberBegin = elements.Path().size() + kMemberPrefix.size();
    const qsizetype numberEnd = path.indexOf(u'.', numberBegin);
    if (numberEnd < 0 || path.sliced(elements.Path().size(), kMemberPrefix.size()) != kMemberPrefix)
      return std::nullopt;
    const int number = PlainNumber(path.sliced(numberBegin, numberEnd - numberBegin));
    if (number < 1 || number > elements.Count()) return std::nullopt;
    if (tree_.HasElementObjects() && tree_.HasValuesWithin(path.first(numberEnd)))
      return std::nullopt;
    return elements.Text(number - 1, path.sliced(numberEnd + 1));
  }
  return std::nullopt;
}

QString World::Compute(const QString& path) {
  switch (RoleOf(path)) {
    case PathRole::Time:
      return ReadTime(tree_, path);
    case PathRole::Status:
      return ReadStatus(path);
    case PathRole::ElementClass:
      return ReadElements(path);
    default:
      break;
  }
  const QString orientation = ReadSunspotOrientation(tree_, path);
  return orientation.isNull() ? Inherited(path) : orientation;
}

QString World::ReadStatus(const QString& path) {
  if (!IsWithin(path, u"Status")) return StatusScript(*this, ParentPath(path));
  if (SameWord(path, u"Status")) return StatusScript(*this, {});
  const auto slot = slots_.find(SlotNumber(ParentPath(path)));
  if (slot == slots_.end() || !SameWord(LastWord(path), u"Object")) return {};
  return RestoringScript(*this, slot->second);
}

ElementClass* World::ElementsOf(QStringView path) {
  for (ElementClass& elements : elements_) {
    if (IsWithin(path, elements.Path()) && elements.IsLoaded()) return &elements;
  }
  return nullptr;
}

World::Object World::ObjectOf(QStringView path) {
  ElementClass* elements = ElementsOf(path);
  const auto member = elements != nullptr ? AsMember(path) : std::nullopt;
  const int number = member ? ObjectNumber(member->member).value_or(0) : 0;
  if (number < 1 || number > elements->Count()) return {};
  return {elements, number - 1, member->feature.toString()};
}

/// The switch column that "Solar.Comet.Orbit.Members" speaks of.
SwitchColumn* World::ColumnOfMembers(QStringView path) {
  ElementClass* elements = ElementsOf(path);
  if (elements == nullptr || !SameWord(LastWord(path), u"Members")) return nullptr;
  const QStringView feature = ParentPath(path).sliced(elements->Path().size());
  const int number = feature.isEmpty() ? -1 : ObjectSwitchOf(feature.sliced(1));
  return number < 0 ? nullptr : &elements->Switches()[number];
}

QString World::ReadElements(const QString& path) {
  if (const Object object = ObjectOf(path); object.elements != nullptr) {
    const QString answer = ReadObject(object);
    return answer.isNull() ? Inherited(path) : answer;
  }
  if (const SwitchColumn* column = ColumnOfMembers(path)) return column->Members().join(QString());
  const ElementClass* elements = ElementsOf(path);
  if (elements == nullptr) return Inherited(path);
  const QStringView word = LastWord(path);
  const QStringView feature = QStringView(path).sliced(elements->Path().size() + 1);
  if (feature.contains(u'.')) return ReadTypes(*elements, feature);
  if (SameWord(word, u"Count")) return QString::number(elements->Count());
  if (SameWord(word, u"CountOfVisible"))
    return QString::number(elements->CountShown(LimitsOf(*elements)));
  if (SameWord(word, u"File")) return elements->File();
  return SameWord(word, u"DataPtr") ? elements->DataPtr() : QString();
}

/// How many objects of the loaded file are of a spectral type. Told once the starting state has
/// brought the types; the orbital types themselves are values of the tree.
QString World::ReadTypes(const ElementClass& elements, QStringView feature) const {
  const PropertyNode* types = tree_.Find(QString(elements.Path() + u".OrbitalType.Count"));
  const QStringView letter = LastWord(ParentPath(feature));
  const bool isLetter =
      letter.size() == 1 && letter[0].toUpper() >= u'A' && letter[0].toUpper() <= u'Z';
  const bool isTold = types != nullptr && types->hasValue && isLetter &&
                      IsWithin(feature, u"SpectralType") &&
                      elements.Kind() == ElementKind::MinorPlanet;
  if (!isTold) return {};
  return QString::number(elements.Types().SpectralCount(letter[0].toUpper().toLatin1()));
}

bool World::IsClassOn(const ElementClass& elements, QStringView feature) const {
  const PropertyNode* node = tree_.Find(QString(elements.Path() + u'.' + feature));
  return node != nullptr && node->hasValue && reply::ToBool(node->value);
}

DisplayLimits World::LimitsOf(const ElementClass& elements) const {
  DisplayLimits limits;
  limits.moment = {TtFromUt(JulianDateOf(tree_)), observerBody_};
  if (IsClassOn(elements, u"Brighter")) {
    const PropertyNode* magnitude = tree_.Find(QString(elements.Path() + u".Brighter.Magnitude"));
    limits.faintest = magnitude != nullptr ? reply::ToDouble(magnitude->value) : 0.0;
  }
  const auto types = OrbitalTypesOf(elements.Kind());
  for (std::size_t i = 0; i < types.size(); ++i) {
    if (IsClassOn(elements, QString(u"OrbitalType."_s + types[i].objectName)))
      limits.orbitalTypes |= 1U << i;
  }
  if (tree_.Find(QString(elements.Path() + u".SpectralType")) == nullptr) return limits;
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
    if (IsClassOn(elements, QString(u"SpectralType."_s + QChar(letter)))) {
      limits.spectralTypes |= 1U << (letter - u'A');
    }
  }
  return limits;
}

/// A null text when the object has no answer of its own.
QString World::ReadObject(const Object& object) {
  const ElementClass& elements = *object.elements;
  for (const ShowingReason& reason : kShowingReasons) {
    if (!SameWord(reason.feature, object.feature)) continue;
    return TruthText((elements.*reason.shows)(object.index, LimitsOf(elements)));
  }
  const auto answer = object.elements->Answer(object.index, object.feature);
  if (!answer) return {};
  return answer->isNull() ? u""_s : *answer;
}

/// A member without a value of its own has that of its class, which stands below "*".
QString World::Inherited(const QString& path) {
  const auto member = AsMember(path);
  if (!member || member->member == u'*') return {};
  const QString feature = member->feature.isEmpty() ? QString() : u'.' + member->feature;
  const PropertyNode* shared = tree_.Find(QString(member->classPath + u".*"_s + feature));
  if (shared == nullptr || !shared->hasValue || !MemberExists(*member, path)) return {};
  return shared->value;
}

/// Numbered members exist as far as their class's count goes, and where one of their properties has
/// a value.
bool World::MemberExists(const MemberPath& member, const QString& path) {
  if (HasFixedMembers(member.classPath)) return true;
  const QString memberPath = path.first(path.size() - member.feature.size());
  const PropertyNode* node =
      tree_.Find(memberPath.endsWith(u'.') ? memberPath.chopped(1) : memberPath);
  if (node != nullptr && node->valuesWithin > 0) return true;
  const int number = ObjectNumber(member.member).value_or(0);
  return number <= reply::ToInt(Read(QString(member.classPath + u".Count"_s)));
}

void World::Assign(QStringView path, QStringView written) {
  PropertyNode* node = tree_.Find(path);
  if (node != nullptr && node->role == PathRole::Plain && IsBare(written)) {
    tree_.SetValue(*node, written);
    return;
  }
  const QString canonical = node != nullptr ? node->path : tree_.Canonical(path);
  if (canonical.isEmpty()) return;
  if (IsConstructor(written, u"jst")) {
    if (const auto jd = ReadJst(written)) Store(canonical, NumberText(*jd));
  } else if (IsConstructor(written, u"location")) {
    const auto place = ReadLocation(written);
    if (!place) return;
    Store(canonical + u".Longitude"_s, place->longitudeDeg.toString());
    Store(canonical + u".Latitude"_s, place->latitudeDeg.toString());
    Store(canonical + u".Altitude"_s, place->altitudeMeters.toString());
  } else {
    Store(canonical, ReadValue(written));
  }
}

void World::Store(const QString& path, const QString& value) {
  switch (RoleOf(path)) {
    case PathRole::Time:
      return AssignTime(tree_, path, value);
    case PathRole::Status:
      return EndPut(path);
    case PathRole::ElementClass:
      return AssignElements(path, value);
    case PathRole::ClassFeature:
      return StoreForClass(path, value);
    case PathRole::Plain:
      return tree_.SetValue(tree_.Make(path), value);
  }
}

/// What the engine answers by itself cannot be assigned; it only answers by itself again.
void World::EndPut(const QString& path) {
  if (PropertyNode* node = tree_.Find(path)) tree_.ClearValue(*node);
}

void World::StoreForClass(const QString& path, const QString& value) {
  tree_.SetValue(tree_.Make(path), value);
  // A path may be both: the satellites of Mars are a class, and a feature of a planet.
  if (const auto feature = AsClassFeature(path)) StoreForMembers(*feature, value);
}

void World::StoreForMembers(const ClassFeature& feature, const QString& value) {
  const QString behind = feature.feature.isEmpty() ? QString() : u'.' + feature.feature;
  tree_.SetValue(tree_.Make(feature.classPath + u".*"_s + behind), value);
  const int number = ObjectSwitchOf(feature.feature);
  ElementClass* elements = ElementsOf(feature.classPath);
  if (elements != nullptr && number >= 0) elements->Switches()[number].Fill(value);
  const PropertyNode* classNode = tree_.Find(feature.classPath);
  if (classNode == nullptr) return;
  for (std::size_t i = 0; i < classNode->children.size(); ++i) {
    const PropertyNode& child = *classNode->children[i];
    const auto member = AsMember(child.path);
    if (member && member->feature.isEmpty()) StoreForMember(child, feature.feature, value);
  }
}

/// Members that have a value of their own get the new one; the others have that of their class.
void World::StoreForMember(const PropertyNode& member, QStringView feature, const QString& value) {
  const QString path = feature.isEmpty() ? member.path : member.path + u'.' + feature;
  if (AsClassFeature(path)) return StoreForClass(path, value);
  PropertyNode* node = tree_.Find(path);
  if (node == nullptr || !node->hasValue) return;
  const Object object = ObjectOf(path);
  const bool bySwitch = object.elements != nullptr && ObjectSwitchOf(object.feature) >= 0;
  return bySwitch ? tree_.ClearValue(*node) : tree_.SetValue(*node, value);
}

void World::Put(QStringView path, const QString& text) {
  const QString canonical = tree_.Canonical(path);
  if (canonical.isEmpty()) return;
  const Object object = ObjectOf(canonical);
  const int number = object.elements != nullptr ? ObjectSwitchOf(object.feature) : -1;
  if (number >= 0) object.elements->Switches()[number].Set(object.index, text);
  PropertyNode& node = tree_.Make(canonical);
  tree_.SetValue(node, text);
  node.isPut = true;
}

void World::Set(QStringView path, QStringView written) {
  const QString canonical = tree_.Canonical(path);
  if (canonical.isEmpty() || RoleOf(canonical) == PathRole::Status) return;
  tree_.SetValue(tree_.Make(canonical), ReadValue(written));
}

void World::Forget(QStringView path, QStringView) {
  if (PropertyNode* node = tree_.Find(path)) tree_.ClearValue(*node);
}

void World::Init(QStringView path, QStringView) {
  const QString canonical = tree_.Canonical(path);
  if (canonical.isEmpty()) return;
  InitElements(canonical);
  PropertyNode* root = tree_.Find(canonical);
  if (root == nullptr) return;
  tree_.ForEachNode(*root, [this](PropertyNode& node) {
    if (node.isPut) return;
    if (node.hasStartingValue) return tree_.SetValue(node, node.startingValue);
    tree_.ClearValue(node);
  });
}

void World::AddMember(QStringView path, QStringView arguments) {
  const QString canonical = tree_.Canonical(path);
  if (!canonical.isEmpty()) AddDataSet(tree_, canonical, arguments);
}

void World::DeleteMember(QStringView path, QStringView argument) {
  const QString canonical = tree_.Canonical(path);
  if (!canonical.isEmpty()) DeleteDataSet(tree_, canonical, argument);
}

void World::SaveMembers(QStringView path, QStringView) {
  const QString canonical = tree_.Canonical(path);
  if (!canonical.isEmpty()) SetProblem(canonical, dataSetFiles_.Save(tree_, canonical));
}

void World::LoadMembers(QStringView path, QStringView) {
  const QString canonical = tree_.Canonical(path);
  if (!canonical.isEmpty()) SetProblem(canonical, dataSetFiles_.Load(tree_, canonical));
}

void World::SetProblem(const QString& basePath, const QString& problem) {
  PropertyNode& node = tree_.Make(basePath + u".Problem"_s);
  problem.isEmpty() ? tree_.ClearValue(node) : tree_.SetValue(node, problem);
}

void World::ClearSlot(QStringView slotPath) { slots_.erase(SlotNumber(slotPath)); }

void World::FillSlot(QStringView slotPath) {
  if (const int number = SlotNumber(slotPath)) slots_[number] = TakeSnapshot(*this);
}

/// Values put in place stay, and so do the loaded files.
void World::LoadStartingState() {
  slots_.clear();
  tree_.ForEachNode(tree_.Root(), [this](PropertyNode& node) {
    node.hasStartingValue = false;
    if (!node.isPut) tree_.ClearValue(node);
  });
  ForEachStartingValue([this](const QString& path, QStringView value) {
    PropertyNode& node = tree_.Make(CanonicalPath(path));
    node.hasStartingValue = true;
    node.startingValue = value.toString();
    if (!node.isPut) tree_.SetValue(node, value);
  });
  for (ElementClass& elements : elements_) elements.SetIndividualAtStart(true);
  for (ElementClass& elements : elements_) elements.StartSwitches();
}

}  // namespace vyn
