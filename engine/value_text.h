// Values as the command language writes them: quoted texts, numbers, and the constructors of times
// and places.
#pragma once

#include <optional>

#include <QString>
#include <QStringView>

namespace vyn {

/// A place on a body as "location(longitude, latitude, height)" writes it. The numbers stay the
/// texts they were written as.
struct LocationText {
  QStringView longitudeDeg;  ///< east positive
  QStringView latitudeDeg;   ///< north positive
  QStringView altitudeMeters;
};

/// The text that a written value stands for: without the quotes around it, with doubled quotes
/// inside them made single; an unquoted number without a stray closing parenthesis behind it;
/// anything else as it stands.
QString ReadValue(QStringView written);

/// How a text is written as a value, so that ReadValue gives it back: as it stands where it can be,
/// else in quotes, with its quotes doubled.
QString WriteValue(QStringView text);

/// The shortest text that reads back as the same number.
QString NumberText(double number);

/// The Julian date in universal time of "jst(year, month, day, hour, minute, second)", with hours
/// of 24 and more running into the next day; nothing when the text is no such constructor. Its
/// closing parenthesis may be missing.
std::optional<double> ReadJst(QStringView written);

/// Whether the value is written with that constructor, readable or not.
bool IsConstructor(QStringView written, QStringView name);

std::optional<LocationText> ReadLocation(QStringView written);

/// The whole text as a number; nothing when it is not one.
std::optional<double> ReadNumber(QStringView text);

}  // namespace vyn
