#include "engine/element_class.h"

#include "engine/element_table.h"
#include "engine/property_path.h"
#include "engine/value_text.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

QString AddressText(const void* address) {
  return "0x"_L1 + QString::number(reinterpret_cast<quintptr>(address), 16).toUpper();
}

struct ObjectText {
  QStringView feature;
  QString (*read)(const ElementTable&, int);
};

// clang-format off
constexpr std::array<ObjectText, 4> kObjectTexts{{
  {u"ID",                  [](const ElementTable& t, int i) { return t.Identifier(i); }},
  {u"JapaneseName",        [](const ElementTable& t, int i) { return t.JapaneseName(i); }},
  {u"EnglishName",         [](const ElementTable& t, int i) { return t.EnglishName(i); }},
  {u"DustTail.BetaMaxInelm", [](const ElementTable& t, int i) { return NumberText(t.Body(i).betaMax); }},
}};
// clang-format on

}  // namespace

ElementClass::ElementClass(QString classPath, ElementKind kind)
    : path_(std::move(classPath)),
      kind_(kind),
      table_(std::make_unique<ElementTable>()),
      types_(kind) {}

ElementClass::~ElementClass() = default;

bool ElementClass::IsLoaded() const { return !File().isEmpty(); }

QString ElementClass::File() const { return table_->FilePath(); }

int ElementClass::Count() const { return table_->Count(); }

bool ElementClass::Load(const QString& file) {
  if (!table_->Load(file)) return false;
  types_.ReadFrom(*table_, 0);
  TableChanged();
  FitSwitches();
  StartSwitches();
  return true;
}

bool ElementClass::AddObjects() {
  const int first = IsLoaded() ? table_->DataAdd() : -1;
  if (first < 0) return false;
  TableChanged();
  types_.ReadFrom(*table_, first);
  FitSwitches();
  return true;
}

bool ElementClass::UpdateObject(int object) {
  const int wholeReads = table_->WholeReads();
  if (!table_->DataUpdate(object)) return false;
  ReadTypes(
      wholeReads,
      [](SmallBodyTypes& types, const ElementTable& table, int changed) {
        types.ReadAgain(table, changed);
      },
      object);
  FitSwitches();
  return true;
}

bool ElementClass::RemoveObject(int object) {
  const int wholeReads = table_->WholeReads();
  if (!table_->DataRemove(object)) return false;
  ReadTypes(
      wholeReads,
      [](SmallBodyTypes& types, const ElementTable&, int removed) { types.Remove(removed); },
      object);
  for (SwitchColumn& column : switches_) column.Remove(object);
  FitSwitches();
  return true;
}

/// Where the table had to read its whole file, so has this.
void ElementClass::ReadTypes(int wholeReadsBefore,
                             void (*readChange)(SmallBodyTypes&, const ElementTable&, int),
                             int object) {
  TableChanged();
  if (table_->WholeReads() != wholeReadsBefore) return types_.ReadFrom(*table_, 0);
  readChange(types_, *table_, object);
}

/// New objects start where all start.
void ElementClass::FitSwitches() {
  const int before = static_cast<int>(switches_.front().Count());
  for (SwitchColumn& column : switches_) column.Resize(Count());
  for (int object = before; object < Count(); ++object) StartSwitch(kIndividualSwitch, object);
}

QStringView ElementClass::StartText(int number) const {
  return number == kIndividualSwitch && individualAtStart_ ? u"TRUE" : u"FALSE";
}

void ElementClass::StartSwitch(int number, int object) {
  switches_[number].Set(object, StartText(number));
}

void ElementClass::StartSwitches() {
  for (std::size_t i = 0; i < switches_.size(); ++i) {
    switches_[i].Reset(StartText(static_cast<int>(i)));
  }
}

bool ElementClass::IsWithinMagnitude(int object, const DisplayLimits& limits) const {
  return limits.faintest && magnitudes_.At(*table_, limits.moment)[object] <= *limits.faintest;
}

bool ElementClass::IsOfTickedOrbit(int object, const DisplayLimits& limits) const {
  return (limits.orbitalTypes >> types_.Orbital(object) & 1) != 0;
}

bool ElementClass::IsOfTickedSpectrum(int object, const DisplayLimits& limits) const {
  const char letter = types_.Spectral(object);
  return letter != 0 && (limits.spectralTypes >> (letter - 'A') & 1) != 0;
}

bool ElementClass::IsShown(int object, const DisplayLimits& limits) const {
  if (object < 0 || object >= Count()) return false;
  return switches_[kIndividualSwitch].IsOn(object) || IsOfTickedOrbit(object, limits) ||
         IsOfTickedSpectrum(object, limits) || IsWithinMagnitude(object, limits);
}

template <typename Action>
void ElementClass::ForEachShown(const DisplayLimits& limits, Action action) const {
  const float* magnitudes =
      limits.faintest ? magnitudes_.At(*table_, limits.moment).data() : nullptr;
  const double faintest = limits.faintest.value_or(0.0);
  const SwitchColumn& individual = switches_[kIndividualSwitch];
  for (int object = 0; object < Count(); ++object) {
    const bool isBright = magnitudes != nullptr && magnitudes[object] <= faintest;
    if (isBright || individual.IsOn(object) || IsOfTickedOrbit(object, limits) ||
        IsOfTickedSpectrum(object, limits)) {
      action(object);
    }
  }
}

int ElementClass::CountShown(const DisplayLimits& limits) const {
  if (!limits.AreInForce()) return static_cast<int>(switches_[kIndividualSwitch].OnCount());
  const SwitchColumn& individual = switches_[kIndividualSwitch];
  if (keptCount_.isUpToDate && keptCount_.limits == limits && keptCount_.individual == individual) {
    return keptCount_.count;
  }
  int count = 0;
  ForEachShown(limits, [&count](int) { ++count; });
  keptCount_ = {limits, individual, count, true};
  return count;
}

std::vector<int> ElementClass::Shown(const DisplayLimits& limits) const {
  std::vector<int> shown;
  ForEachShown(limits, [&shown](int object) { shown.push_back(object); });
  return shown;
}

void ElementClass::TableChanged() {
  magnitudes_.TableChanged();
  keptCount_.isUpToDate = false;
  kept_.isTableKnown = false;
  kept_.isUpToDate = false;
}

const SmallBodyPlaces& ElementClass::PlacesAt(double jdTt, const StateVector& observer) const {
  const bool isSame = kept_.isUpToDate && kept_.jdTt == jdTt &&
                      kept_.observer.position == observer.position &&
                      kept_.observer.velocity == observer.velocity;
  if (isSame) return kept_.places;
  if (!kept_.isTableKnown) kept_.places.SetTable(*table_);
  kept_.places.Update(jdTt, observer);
  kept_.jdTt = jdTt;
  kept_.observer = observer;
  kept_.isTableKnown = kept_.isUpToDate = true;
  return kept_.places;
}

QString ElementClass::DataPtr() const {
  if (Count() == 0) return {};
  return u"%1, %2, %3, %4"_s.arg(
      QString::number(table_->RecordCount()), AddressText(table_->RecordData()),
      QString::number(table_->Count()), AddressText(table_->FirstRecords().data()));
}

std::optional<QString> ElementClass::Text(int object, QStringView feature) const {
  for (const ObjectText& text : kObjectTexts) {
    if (text.feature == feature) return text.read(*table_, object);
  }
  return std::nullopt;
}

std::optional<QString> ElementClass::Answer(int object, QStringView feature) const {
  const int number = ObjectSwitchOf(feature);
  if (number >= 0) return switches_[number].Text(object);
  for (const ObjectText& text : kObjectTexts) {
    if (SameWord(text.feature, feature)) return text.read(*table_, object);
  }
  return std::nullopt;
}

}  // namespace vyn
