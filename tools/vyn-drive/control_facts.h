// What a person sees of a control, in the words of the driver's output.
#pragma once

#include <optional>
#include <utility>

#include <QString>
#include <QWidget>

namespace vyn::drive {

/// "control 1001: check "表示" 1 enabled".
QString DescribeControl(QWidget& control);

/// The least and the greatest value of a slider, progress bar or spin button; nothing for a control
/// without a range.
std::optional<std::pair<int, int>> RangeOf(const QWidget& control);

}  // namespace vyn::drive
