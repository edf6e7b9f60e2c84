// Universal and terrestrial time.
#pragma once

namespace vyn {

/// Terrestrial time minus universal time in seconds.
/// From 1972 to 2030 it follows the leap seconds (ERFA's eraDat), whose universal time is within
/// 0.9 s of the Earth's rotation. Other years: the polynomials of Espenak and Meeus, "Five
/// Millennium Canon of Solar Eclipses" (NASA TP-2006-214141); what they miss in 2030 fades out up
/// to 2150.
double DeltaTSeconds(double jdUt);

/// The same moment in the other time scale; both are Julian dates.
double TtFromUt(double jdUt);
double UtFromTt(double jdTt);

}  // namespace vyn
