// The fields of the element editor: their edits, and the messages that refuse a value.
#pragma once

#include <array>

#include <QString>

#include "elements/element_record.h"

namespace vyn {

/// One field of the record as the editor shows it. Place, kind and range stand in kRecordFields.
struct EditorField {
  ElementField field;
  int control;      ///< the number of its edit
  int nameMessage;  ///< the text "name|lower bound|upper bound" of its range message; 0 for a text
};

inline constexpr int kCoefficientControl = 1643;

// clang-format off
/// In the order in which a page is checked and stored.
inline constexpr std::array kEditorFields = std::to_array<EditorField>({
  {ElementField::ProvisionalDesignation, 1603,                0},
  {ElementField::PermanentDesignation,   1605,                0},
  {ElementField::EnglishName,            1609,                0},
  {ElementField::JapaneseName,           1607,                0},
  {ElementField::PerihelionYear,         1614,                13300},
  {ElementField::PerihelionMonth,        1615,                13301},
  {ElementField::PerihelionDay,          1616,                13302},
  {ElementField::Eccentricity,           1633,                13303},
  {ElementField::PerihelionDistance,     1627,                13304},
  {ElementField::ArgumentOfPerihelion,   1635,                13305},
  {ElementField::AscendingNode,          1637,                13306},
  {ElementField::Inclination,            1639,                13307},
  {ElementField::Equinox,                1645,                13308},
  {ElementField::AbsoluteMagnitude,      1641,                13309},
  {ElementField::MagnitudeCoefficient,   kCoefficientControl, 13310},
  {ElementField::DustTail,               1661,                13312},
  {ElementField::IonTail,                1658,                13313},
  {ElementField::BetaMax,                1664,                13314},
  {ElementField::Memo,                   1655,                0},
  {ElementField::Identifier,             1601,                0},
  {ElementField::EpochYear,              1618,                13315},
  {ElementField::EpochMonth,             1619,                13316},
  {ElementField::EpochDay,               1620,                13317},
  {ElementField::ValidFromYear,          1647,                13318},
  {ElementField::ValidFromMonth,         1648,                13319},
  {ElementField::ValidFromDay,           1649,                13320},
  {ElementField::ValidToYear,            1651,                13321},
  {ElementField::ValidToMonth,           1652,                13322},
  {ElementField::ValidToDay,             1653,                13323},
});
// clang-format on

namespace record_check {

constexpr bool EditorShowsEveryEditableField() {
  for (std::size_t i = 0; i < kEditableFields.size(); ++i) {
    if (kEditorFields[i].field != kEditableFields[i]) return false;
    if ((kEditorFields[i].nameMessage != 0) != FieldOf(kEditableFields[i]).IsNumber()) return false;
  }
  return kEditorFields.size() == kEditableFields.size();
}

static_assert(EditorShowsEveryEditableField());

}  // namespace record_check

/// The number of a field's edit; the field must be one that the editor shows.
int ControlOf(ElementField field);

/// The text "name|lower bound|upper bound" of a number field. The magnitude coefficient of a comet
/// has another name than that of a minor planet.
int NameMessageOf(ElementField field, bool isComet);

/// The message that refuses a real number out of the field's range; empty when it is in range.
QString fCheckRange(const RecordField& field, int nameMessage, double value);
/// The same for a field of whole numbers.
QString nCheckRange(const RecordField& field, int nameMessage, int value);

}  // namespace vyn
