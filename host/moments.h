// Moments as the demo planetarium steps through them and as the core engine is told them.
#pragma once

#include <optional>

#include <QString>

namespace vyn {

enum class TimeUnit { Minute, Hour, Day, Month, Year };

/// The moment `count` units later (earlier when negative), both Julian dates in universal time.
/// A month or year keeps day and time of Japan's calendar, or takes the last day of a shorter
/// month.
double Stepped(double jdUt, TimeUnit unit, int count);

/// The statement "time = jst(...);" of a moment, to the nearest millisecond.
QString TimeStatement(double jdUt);

/// The moment, Japan standard time, of a text such as "2026-01-01T21:00:00"; nothing for any other
/// text and for a date that does not exist.
std::optional<double> ReadMoment(const QString& text);

/// The computer's clock.
double CurrentMoment();

}  // namespace vyn
