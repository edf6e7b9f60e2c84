#include "engine/time_properties.h"

#include <array>
#include <cmath>

#include "core_link/reply.h"
#include "engine/starting_state.h"
#include "engine/value_text.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr double kJstHours = 9.0;
constexpr double kMaxPart = 99999.0;
const QString kJd = u"Time.JD"_s;

struct DatePart {
  QStringView word;
  double (*get)(const CalendarDate&);
  void (*set)(CalendarDate&, double);
};

// clang-format off
constexpr std::array<DatePart, 6> kDateParts{{
  {u"Year",   [](const CalendarDate& d) { return double(d.year); },   [](CalendarDate& d, double v) { d.year = int(v); }},
  {u"Month",  [](const CalendarDate& d) { return double(d.month); },  [](CalendarDate& d, double v) { d.month = int(v); }},
  {u"Day",    [](const CalendarDate& d) { return double(d.day); },    [](CalendarDate& d, double v) { d.day = int(v); }},
  {u"Hour",   [](const CalendarDate& d) { return double(d.hour); },   [](CalendarDate& d, double v) { d.hour = int(v); }},
  {u"Minute", [](const CalendarDate& d) { return double(d.minute); }, [](CalendarDate& d, double v) { d.minute = int(v); }},
  {u"Second", [](const CalendarDate& d) { return d.second; },         [](CalendarDate& d, double v) { d.second = v; }},
}};
// clang-format on

const DatePart* PartOf(QStringView path) {
  if (!SameWord(ParentPath(path), u"Time")) return nullptr;
  for (const DatePart& part : kDateParts) {
    if (SameWord(LastWord(path), part.word)) return &part;
  }
  return nullptr;
}

const PropertyNode* Moment(const PropertyTree& tree) {
  const PropertyNode* node = tree.Find(kJd);
  return node != nullptr && node->hasValue ? node : nullptr;
}

double ZoneHours(const PropertyTree& tree) {
  const PropertyNode* node = tree.Find(u"Time.TimeZone");
  return node != nullptr && node->hasValue ? reply::ToDouble(node->value) : kJstHours;
}

CalendarDate DateOf(double jd, double zoneHours) {
  return ChangeTimezone(JdToDate2(jd), zoneHours);
}

QString JstText(const CalendarDate& date) {
  return u"jst(%1, %2, %3, %4, %5, %6)"_s.arg(date.year)
      .arg(date.month)
      .arg(date.day)
      .arg(date.hour)
      .arg(date.minute)
      .arg(date.second, 0, 'f', 6);
}

/// A new moment is a new year, month ... also where one of them was kept by itself.
void SetMoment(PropertyTree& tree, double jd) {
  for (const DatePart& part : kDateParts) {
    if (PropertyNode* node = tree.Find(QString(u"Time."_s + part.word))) tree.ClearValue(*node);
  }
  tree.SetValue(tree.Make(kJd), NumberText(jd));
}

void AssignPart(PropertyTree& tree, const DatePart& part, const QString& path,
                const QString& value) {
  if (Moment(tree) == nullptr) {
    tree.SetValue(tree.Make(path), value);
    return;
  }
  const auto number = ReadNumber(value);
  if (!number || std::abs(*number) > kMaxPart) return;
  CalendarDate date = DateOf(JulianDateOf(tree), ZoneHours(tree));
  part.set(date, *number);
  SetMoment(tree, GetJd(date));
}

}  // namespace

QString ReadTime(const PropertyTree& tree, QStringView path) {
  if (Moment(tree) == nullptr) return {};
  const double jd = JulianDateOf(tree);
  if (SameWord(path, u"Time")) return JstText(DateOf(jd, kJstHours));
  const DatePart* part = PartOf(path);
  return part != nullptr ? NumberText(part->get(DateOf(jd, ZoneHours(tree)))) : QString();
}

void AssignTime(PropertyTree& tree, const QString& path, const QString& value) {
  if (const DatePart* part = PartOf(path)) {
    AssignPart(tree, *part, path, value);
  } else if (SameWord(path, u"Time") || SameWord(path, kJd)) {
    if (const auto jd = ReadNumber(value)) SetMoment(tree, *jd);
  } else {
    tree.SetValue(tree.Make(path), value);
  }
}

double JulianDateOf(const PropertyTree& tree) {
  const PropertyNode* moment = Moment(tree);
  return moment != nullptr ? reply::ToDouble(moment->value) : kStartingJd;
}

}  // namespace vyn
