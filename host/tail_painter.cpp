#include "host/tail_painter.h"

#include <QPainter>

namespace vyn {
namespace {

const QColor kDustColor(255, 226, 170);
const QColor kIonColor(130, 190, 255);
constexpr double kSmallestPixels = 2.0;
constexpr int kSurfaceAlpha = 150;

using PictureSheet = std::vector<std::vector<QPointF>>;

/// Nothing when a part of the sheet is out of sight.
std::optional<PictureSheet> ToPicture(const TailSheet& sheet, const PlaceToPicture& toPicture) {
  PictureSheet picture;
  for (const std::vector<Vector3>& row : sheet) {
    picture.emplace_back();
    for (const Vector3& place : row) {
      const auto at = toPicture(place);
      if (!at) return std::nullopt;
      picture.back().push_back(*at);
    }
  }
  return picture;
}

/// The sheet cell by cell, fainter towards its end. Edges of neighbouring cells would show if they
/// were smoothed.
void PaintSurface(QPainter& painter, const PictureSheet& sheet, const QColor& color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(Qt::NoPen);
  for (std::size_t row = 0; row + 1 < sheet.size(); ++row) {
    const std::size_t cells = sheet[row].size() - 1;
    for (std::size_t cell = 0; cell < cells; ++cell) {
      const double part = 1.0 - static_cast<double>(cell) / static_cast<double>(cells);
      QColor faint = color;
      faint.setAlpha(static_cast<int>(kSurfaceAlpha * part * part) + 6);
      painter.setBrush(faint);
      const QPointF corners[] = {sheet[row][cell], sheet[row][cell + 1], sheet[row + 1][cell + 1],
                                 sheet[row + 1][cell]};
      painter.drawConvexPolygon(corners, 4);
    }
  }
  painter.restore();
}

void PaintOutline(QPainter& painter, const TailSheet& sheet, const QColor& color,
                  const PlaceToPicture& toPicture) {
  QPolygonF edge;
  for (const Vector3& place : EdgeOf(sheet)) {
    if (const auto at = toPicture(place)) edge << *at;
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, 1.2));
  painter.drawPolyline(edge);
}

template <typename Facts>
void PaintTail(QPainter& painter, const TailSheet& sheet, const SceneTail<Facts>& tail,
               const QColor& color, const PlaceToPicture& toPicture) {
  const auto picture = ToPicture(sheet, toPicture);
  if (!picture) return;
  if (tail.surface) PaintSurface(painter, *picture, color);
  if (tail.outline) PaintOutline(painter, sheet, color, toPicture);
}

/// Whether a tail that ends there can be told from the comet's point.
bool IsLong(const SceneSmallBody& comet, const Vector3& end, const PlaceToPicture& toPicture) {
  const auto from = toPicture(comet.heliocentric);
  const auto to = toPicture(end);
  return from && to && (*to - *from).manhattanLength() > kSmallestPixels;
}

}  // namespace

void PaintTails(QPainter& painter, const SceneSmallBody& comet, double jdTt,
                const PlaceToPicture& toPicture) {
  if (comet.dustTail) {
    const DustTailGrains& grains = comet.dustTail->facts;
    const Vector3 end = GrainPlace(comet.orbit, jdTt, grains.emissionSpanDays, grains.betaMax);
    if (IsLong(comet, end, toPicture)) {
      PaintTail(painter, DustTail(comet.orbit, jdTt, grains), *comet.dustTail, kDustColor,
                toPicture);
    }
  }
  if (comet.ionTail) {
    const TailSheet sheet = IonTail(comet.orbit, jdTt, comet.ionTail->facts.emissionSpanDays);
    if (IsLong(comet, sheet[1].back(), toPicture)) {
      PaintTail(painter, sheet, *comet.ionTail, kIonColor, toPicture);
    }
  }
}

}  // namespace vyn
