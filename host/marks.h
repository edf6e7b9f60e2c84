// Marks that are the same in both views: Lagrangian points and the heads of arrows.
#pragma once

#include <optional>

#include <QPainterPath>

#include "host/labels.h"

namespace vyn {

/// Marks the five points of one body, L1 first.
class LagrangianMarks {
 public:
  LagrangianMarks(QPainter& painter, LabelLayer& labels) : painter_(painter), labels_(labels) {}

  /// The next point's place in the picture; nothing when it is not in sight.
  void Next(const std::optional<QPointF>& at);

 private:
  QPainter& painter_;
  LabelLayer& labels_;
  int number_ = 0;
};

/// Ends a line, in the picture, with the head of an arrow; a line that is hardly longer than the
/// head gets none.
QPainterPath WithArrowHead(QPainterPath line);

}  // namespace vyn
