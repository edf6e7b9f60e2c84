// The numbers of the image dialogs: one row each for its edit, its spin button, the value it shows,
// its step and its range.
#pragma once

#include <span>

#include <QString>

#include "image_data/data_set_record.h"

namespace vyn {

/// What a change of the number brings with it.
enum class FieldGroup {
  Date,
  Time,
  Site,
  Altitude,
  Offset,
  Radius,
  Roll,
  Brightness,
  Range,
  ViewAngle,
  Magnification,
  Spot,
};

struct NumberField {
  int edit;
  int spin;
  FieldGroup group;
  int DataSetRecord::*whole;    ///< the value; null when it is real
  double DataSetRecord::*real;  ///< the value; null when it is whole
  double step;
  double minimum;
  double maximum;
  int decimals;

  double Value(const DataSetRecord& record) const;
  void SetValue(DataSetRecord& record, double value) const;
  double Clamped(double value) const;

  /// The value as its edit shows it, and the value that a text means: its longest prefix that is a
  /// number, else 0.
  QString Text(const DataSetRecord& record) const;
  void SetText(DataSetRecord& record, const QString& text) const;

  /// Changes the value by one press of the spin button: -1 is up. It stays within its range; a roll
  /// goes on round the circle.
  void Step(DataSetRecord& record, int delta) const;
};

// The rows by what they belong to.
std::span<const NumberField> DateFields();       ///< year, month, day, hour, minute, second
std::span<const NumberField> WholeDateFields();  ///< the same with whole seconds
std::span<const NumberField> SiteFields();
std::span<const NumberField> PlacementFields();
std::span<const NumberField> CoronaFields();      ///< beside date, site and placement
std::span<const NumberField> TakenImageFields();  ///< beside date and placement
std::span<const NumberField> TextureFields();     ///< beside date and placement
std::span<const NumberField> SunspotFields();     ///< beside the date

/// Puts the numbers of one group into their ranges.
void ClampGroup(std::span<const NumberField> fields, FieldGroup group, DataSetRecord& record);

/// Puts the day into its month.
void FixDay(DataSetRecord& record);

}  // namespace vyn
