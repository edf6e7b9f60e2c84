#include "image_data/number_field.h"

#include <algorithm>
#include <array>

#include "core_link/reply.h"
#include "image_data/cor_vyn_transfer.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

using enum FieldGroup;
using R = DataSetRecord;

constexpr NumberField Whole(int edit, int spin, FieldGroup group, int R::*member, double minimum,
                            double maximum) {
  return {edit, spin, group, member, nullptr, 1.0, minimum, maximum, 0};
}

// clang-format off
// To add a number: a row of its edit, spin, group and member, its step and range, and the decimals
// that its step needs. Data exchange, typing, spinning and clamping follow from it.
constexpr std::array kDate{
  Whole(11121, 11122, Date, &R::year,   1, 99999),
  Whole(11123, 11124, Date, &R::month,  1, 12),
  Whole(11125, 11126, Date, &R::day,    1, 31),
  Whole(11127, 11128, Time, &R::hour,   0, 30),
  Whole(11129, 11130, Time, &R::minute, 0, 59),
  NumberField{11140, 11141, Time, nullptr, &R::second, 1.0, 0.0, 59.0, 1},
};

constexpr std::array kWholeDate{
  kDate[0], kDate[1], kDate[2], kDate[3], kDate[4],
  NumberField{11140, 11141, Time, nullptr, &R::second, 1.0, 0.0, 59.0, 0},
};

constexpr std::array kSite{
  Whole(11131, 11132, Site,     &R::longitudeDegrees, 0, 179),
  Whole(11133, 11134, Site,     &R::longitudeMinutes, 0, 59),
  Whole(11156, 11157, Site,     &R::longitudeSeconds, 0, 59),
  Whole(11137, 11138, Site,     &R::latitudeDegrees,  0, 89),
  Whole(11139, 11158, Site,     &R::latitudeMinutes,  0, 59),
  Whole(11159, 11183, Site,     &R::latitudeSeconds,  0, 59),
  Whole(11178, 11179, Altitude, &R::altitudeMeters,   0, 8900),
};

constexpr std::array kPlacement{
  NumberField{11145, 11146, Offset, nullptr, &R::offsetX, 0.001, -kMaxOffset, kMaxOffset, 3},
  NumberField{11148, 11149, Offset, nullptr, &R::offsetY, 0.001, -kMaxOffset, kMaxOffset, 3},
  NumberField{11151, 11152, Radius, nullptr, &R::radius,  0.001, kMinRadius,  kMaxRadius, 3},
  NumberField{11154, 11155, Roll,   nullptr, &R::rollDeg, 0.2,   0.0,         360.0,      1},
};

constexpr NumberField kLayerBrightness{11109, 11113, Brightness, nullptr, &R::layerBrightness, 0.1, 0.1, 1.0, 1};
constexpr NumberField kSetBrightness  {11105, 11106, Brightness, nullptr, &R::setBrightness,   0.1, 0.1, 1.0, 1};
constexpr NumberField kRange          {11157, 11158, Range,      nullptr, &R::range,           1.0, 0.0, 90.0, 1};
constexpr NumberField kMagnification = Whole(11162, 11163, Magnification, &R::diskMultiplier, 1, 20);

constexpr std::array kCorona{
  NumberField{12002, 12003, ViewAngle, nullptr, &R::viewAngleDeg, 0.1, 2.0, 10.0, 1},
  kLayerBrightness,
};

constexpr std::array kTakenImage{kSetBrightness, kLayerBrightness, kRange, kMagnification};
constexpr std::array kTexture{kSetBrightness, kRange, kMagnification};

// A step of 0.11 that is rounded to tenths is one of 0.1. The spin of the latitude goes on beyond
// the poles, where its edit does not.
constexpr std::array kSunspot{
  NumberField{11094, 11095, Spot, nullptr, &R::spotLongitudeDeg, 0.11, -180.0, 180.0, 1},
  NumberField{11097, 11098, Spot, nullptr, &R::spotLatitudeDeg,  0.11, -180.0, 180.0, 1},
  Whole(11091, 11092, Spot, &R::spotType, 1, 4),
  kMagnification,
};
// clang-format on

double RoundedToDecimals(double value, int decimals) {
  return QString::number(value, 'f', decimals).toDouble();
}

}  // namespace

double NumberField::Value(const DataSetRecord& record) const {
  return whole != nullptr ? record.*whole : record.*real;
}

void NumberField::SetValue(DataSetRecord& record, double value) const {
  if (whole != nullptr) {
    record.*whole = static_cast<int>(value);
  } else {
    record.*real = value;
  }
}

double NumberField::Clamped(double value) const {
  return group == Roll ? degmal(value) : std::clamp(value, minimum, maximum);
}

QString NumberField::Text(const DataSetRecord& record) const {
  if (whole != nullptr) return QString::number(record.*whole);
  // A roll just below a full turn is shown as none.
  const double rounded = RoundedToDecimals(record.*real, decimals);
  return QString::number(group == Roll ? degmal(rounded) : rounded, 'f', decimals);
}

void NumberField::SetText(DataSetRecord& record, const QString& text) const {
  if (whole != nullptr) {
    record.*whole = reply::ToInt(text);
  } else {
    record.*real = FiniteNumber(text);
  }
}

void NumberField::Step(DataSetRecord& record, int delta) const {
  const double stepped = Clamped(Value(record) - delta * step);
  SetValue(record, whole != nullptr ? stepped : RoundedToDecimals(stepped, decimals));
}

std::span<const NumberField> DateFields() { return kDate; }
std::span<const NumberField> WholeDateFields() { return kWholeDate; }
std::span<const NumberField> SiteFields() { return kSite; }
std::span<const NumberField> PlacementFields() { return kPlacement; }
std::span<const NumberField> CoronaFields() { return kCorona; }
std::span<const NumberField> TakenImageFields() { return kTakenImage; }
std::span<const NumberField> TextureFields() { return kTexture; }
std::span<const NumberField> SunspotFields() { return kSunspot; }

void ClampGroup(std::span<const NumberField> fields, FieldGroup group, DataSetRecord& record) {
  for (const NumberField& field : fields) {
    if (field.group == group) field.SetValue(record, field.Clamped(field.Value(record)));
  }
}

void FixDay(DataSetRecord& record) {
  record.day = FixDayLimit(record.year, record.month, record.day);
}

}  // namespace vyn
