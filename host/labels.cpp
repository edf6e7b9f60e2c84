#include "host/labels.h"

#include <algorithm>
#include <array>

#include <QFontMetricsF>
#include <QPainter>

namespace vyn {
namespace {

/// Where the text goes around its anchor, best place first: in half widths and half heights.
constexpr std::array<QPointF, 4> kPlaces{{{1.0, 0.0}, {-1.0, 0.0}, {0.0, 1.0}, {0.0, -1.0}}};

QRectF AreaAt(const Label& label, const QSizeF& size, const QPointF& side) {
  const double dx = side.x() * (label.gapPixels + size.width() / 2.0);
  const double dy = side.y() * (label.gapPixels + size.height() / 2.0);
  QRectF area(QPointF(), size);
  area.moveCenter(label.anchor + QPointF(dx, dy));
  return area;
}

}  // namespace

void LabelLayer::Add(Label label) {
  if (!label.text.isEmpty() && picture_.contains(label.anchor)) {
    labels_.push_back(std::move(label));
  }
}

bool LabelLayer::IsFree(const QRectF& area, LabelRank rank) const {
  const auto covers = [&area](const QRectF& other) { return other.intersects(area); };
  return picture_.contains(area) && std::none_of(taken_.begin(), taken_.end(), covers) &&
         (rank != LabelRank::Faint || std::none_of(busy_.begin(), busy_.end(), covers));
}

void LabelLayer::Place(QPainter& painter, const Label& label) {
  const QFontMetricsF metrics(label.style.font);
  const QSizeF size(metrics.horizontalAdvance(label.text) + 2.0, metrics.height());
  QRectF area = AreaAt(label, size, label.isCentered ? QPointF() : kPlaces.front());
  if (!IsFree(area, label.rank) && !label.isCentered) {
    const auto free = std::find_if(kPlaces.begin(), kPlaces.end(), [&](const QPointF& side) {
      return IsFree(AreaAt(label, size, side), label.rank);
    });
    if (free != kPlaces.end()) area = AreaAt(label, size, *free);
  }
  if (label.rank != LabelRank::Always && !IsFree(area, label.rank)) return;
  taken_.push_back(area);
  DrawText(painter, area, label.text, label.style);
}

void LabelLayer::Paint(QPainter& painter) {
  std::stable_sort(labels_.begin(), labels_.end(),
                   [](const Label& a, const Label& b) { return a.rank < b.rank; });
  for (const Label& label : labels_) Place(painter, label);
  labels_.clear();
}

QFont LabelFont(int points) { return QFont(QStringLiteral("IPAGothic"), points); }

LabelStyle StyleOr(const LabelStyle& style, const QColor& color) {
  return {style.color.isValid() ? style.color : color, style.font};
}

void DrawText(QPainter& painter, const QRectF& area, const QString& text, const LabelStyle& style) {
  painter.setFont(style.font);
  painter.setPen(QColor(0, 0, 0, 190));
  painter.drawText(area.translated(1.0, 1.0), Qt::AlignCenter | Qt::TextDontClip, text);
  painter.setPen(style.color);
  painter.drawText(area, Qt::AlignCenter | Qt::TextDontClip, text);
}

}  // namespace vyn
