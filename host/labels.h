// Labels beside what they name, placed so that they do not cover one another.
#pragma once

#include <vector>

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

#include "host/display_state.h"

class QPainter;

namespace vyn {

/// The more important labels are placed first; of the others those are left out that find no room.
enum class LabelRank { Always, Body, Place, Faint };

struct Label {
  QPointF anchor;          ///< the middle of what is named
  double gapPixels = 5.0;  ///< from there to the text
  QString text;
  LabelStyle style;
  LabelRank rank = LabelRank::Body;
  bool isCentered = false;  ///< the text stands on the anchor, not beside it
};

class LabelLayer {
 public:
  explicit LabelLayer(const QSizeF& pictureSize) : picture_(QPointF(), pictureSize) {}

  void Add(Label label);

  /// Keeps labels away from an area that is drawn already.
  void Reserve(const QRectF& area) { taken_.push_back(area); }
  /// Keeps only the faint ones away.
  void ReserveFromFaint(const QRectF& area) { busy_.push_back(area); }

  /// Places and draws all labels, the important ones first.
  void Paint(QPainter& painter);

 private:
  bool IsFree(const QRectF& area, LabelRank rank) const;
  void Place(QPainter& painter, const Label& label);

  QRectF picture_;
  std::vector<Label> labels_;
  std::vector<QRectF> taken_;
  std::vector<QRectF> busy_;
};

/// The font of labels that have none of their own.
QFont LabelFont(int points);

/// The style with this colour where it has none of its own.
LabelStyle StyleOr(const LabelStyle& style, const QColor& color);

/// A text that is legible on any ground.
void DrawText(QPainter& painter, const QRectF& area, const QString& text, const LabelStyle& style);

}  // namespace vyn
