#include "small_bodies/meteorite_dialog.h"

#include <iterator>

#include "core_link/reply.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

using enum ObjectColumnKind;
using enum ColumnUse;

constexpr int kFallColumn = 1;

// clang-format off
constexpr ObjectColumn kColumns[] = {
  {.title = u"名称",   .path = u".JapaneseName", .stretches = true, .isIdentifier = true},
  {.title = u"落下日", .path = u".TimeOfFall", .sample = u"AD 2888/88/88 88:88:88"},
  {.title = u"表示", .kind = Check, .key = 'V', .path = u""},
  {.title = u"名称", .kind = Check, .key = 'N', .path = u".JapaneseName.Visible", .use = WhenShown},
  {.title = u"軌道", .kind = Check, .key = 'X', .path = u".Orbit", .use = WhenShownInSolarMode},
};
// clang-format on

constexpr QStringView kRestoredPaths[] = {u"", u".JapaneseName", u".Orbit"};

/// By the number of the time system.
constexpr QStringView kTimeSystems[] = {u"JST", u"LST", u"UT", u"LMT"};
enum TimeSystem { kJst, kLst, kUt, kLmt };

constexpr double kJstHours = 9.0;
constexpr double kMissingZone = -100.0;
constexpr double kDegreesAnHour = 15.0;

}  // namespace

CDlgMeteorite::CDlgMeteorite(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CDlgListedObjects(commandHandle, secondHandle,
                        {.base = {.templateNumber = 13017,
                                  .registryKey = 13481,
                                  .classPath = QStringLiteral("Solar.Meteorite"),
                                  .listControl = 11186,
                                  .columns = kColumns},
                         .colorButton = 11187,
                         .colorPath = u".Name.Color",
                         .restoredPaths = kRestoredPaths,
                         .sendsEmptyScript = false},
                        parent) {}

CDlgMeteorite::CDlgMeteorite(QWidget* parent) : CDlgMeteorite(nullptr, nullptr, parent) {}

QString CDlgMeteorite::ColumnTitle(int column) const {
  const QString title = CDlgListedObjects::ColumnTitle(column);
  if (column != kFallColumn) return title;
  const int system = HasCorVyn() ? CommandHandle()->GetTimeSys() : -1;
  const bool isKnown = system >= 0 && system < static_cast<int>(std::size(kTimeSystems));
  return title + u'(' + (isKnown ? kTimeSystems[system] : QStringView()) + u')';
}

QString CDlgMeteorite::CellText(int column, const QString& objectPath) {
  if (column != kFallColumn) return CDlgListedObjects::CellText(column, objectPath);
  return GetDateTimeString(GetDouble(objectPath + kColumns[column].path), ZoneInUse());
}

/// Local standard time has the zone of the site, local mean time the site's longitude.
double CDlgMeteorite::ZoneInUse() {
  const auto ask = [this](const QString& path, double unit) {
    const QString reply = GetString(path);
    return reply.isEmpty() ? kMissingZone : reply::ToDouble(reply) / unit;
  };
  switch (CommandHandle()->GetTimeSys()) {
    case kJst:
      return kJstHours;
    case kLst:
      return ask(QStringLiteral("Time.TimeZone"), 1.0);
    case kUt:
      return 0.0;
    case kLmt:
      return ask(QStringLiteral("Location.Longitude"), kDegreesAnHour);
    default:
      return kMissingZone;
  }
}

QString CDlgMeteorite::GetDateTimeString(double jd, double zoneHours) const {
  const double zone = zoneHours < -99.0 ? 0.0 : zoneHours;
  const CalendarDate date = JdToDate2(jd + zone / 24.0, 1.0);
  const bool isBeforeChrist = date.year <= 0;
  return QString::asprintf("%-2.2s%5d/%02d/%02d %2d:%02d:%02d", isBeforeChrist ? "BC" : "AD",
                           isBeforeChrist ? 1 - date.year : date.year, date.month, date.day,
                           date.hour, date.minute, static_cast<int>(date.second));
}

bool CDlgMeteorite::IsLessThanJD(double jd) {
  return !HasCorVyn() || jd - GetDouble(QStringLiteral("Time.JD")) >= 0.0;
}

}  // namespace vyn
