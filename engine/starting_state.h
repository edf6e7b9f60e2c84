// The state with which the demo planetarium starts: the sky of Tokyo on the evening of 2026-01-01.
#pragma once

#include <functional>

#include <QString>
#include <QStringView>

namespace vyn {

/// 2026-01-01 21:00:00 JST.
inline constexpr double kStartingJd = 2461042.0;

/// The body's path by its number: 0 the Sun, 1 the Moon, 2 to 9 the planets from Mercury on; empty
/// for other numbers.
QString BodyPath(int bodyNumber);

/// Calls `take` with every property of the starting state and its value.
void ForEachStartingValue(const std::function<void(const QString& path, QStringView value)>& take);

}  // namespace vyn
