// Reads the core engine's replies. Each rule of reading stands here once.
#pragma once

#include <QStringView>

namespace vyn::reply {

/// True when the whole reply is "TRUE" in any casing; anything else, also " TRUE" and "1", is
/// false.
bool ToBool(QStringView reply);

/// The number at the beginning of the reply, as the C conversion of a number's longest prefix
/// reads it whatever the locale: leading white space, sign, digits, fraction, exponent. 0.0 when
/// there is none, also for the words "inf" and "nan" and beyond the range of double.
double ToDouble(QStringView reply);

/// The decimal integer at the beginning of the reply, 0 when there is none. A number beyond the
/// range of int becomes the nearest bound.
int ToInt(QStringView reply);

/// Whether a reply to "? View.Projection" means the solar system seen from outside: its first
/// eleven characters are "SolarSystem" in any casing.
bool IsSolarSystem(QStringView projectionReply);

}  // namespace vyn::reply
