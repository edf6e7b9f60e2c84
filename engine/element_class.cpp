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

ElementClass::ElementClass(QString classPath)
    : path_(std::move(classPath)), table_(std::make_unique<ElementTable>()) {}

ElementClass::~ElementClass() = default;

bool ElementClass::IsLoaded() const { return table_->Count() > 0; }

QString ElementClass::File() const { return table_->FilePath(); }

int ElementClass::Count() const { return table_->Count(); }

bool ElementClass::Load(const QString& file) {
  if (!table_->Load(file)) return false;
  FitSwitches();
  StartSwitches();
  return true;
}

bool ElementClass::AddObjects() {
  if (!IsLoaded() || !table_->DataAdd()) return false;
  FitSwitches();
  return true;
}

bool ElementClass::UpdateObject(int object) {
  if (!table_->DataUpdate(object)) return false;
  FitSwitches();
  return true;
}

bool ElementClass::RemoveObject(int object) {
  if (!table_->DataRemove(object)) return false;
  for (SwitchColumn& column : switches_) column.Remove(object);
  FitSwitches();
  return true;
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

QString ElementClass::DataPtr() const {
  if (!IsLoaded()) return {};
  return u"%1, %2, %3, %4"_s.arg(
      QString::number(table_->RecordCount()), AddressText(table_->RecordData()),
      QString::number(table_->Count()), AddressText(table_->FirstRecords().data()));
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
