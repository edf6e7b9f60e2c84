// How labels look.
#pragma once

#include <QColor>
#include <QFont>

namespace vyn {

/// Colour and font of a kind of label. A label without a colour of its own takes that of what it
/// labels.
struct LabelStyle {
  QColor color;
  QFont font;
};

}  // namespace vyn
