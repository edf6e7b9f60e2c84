// How small bodies look in both views: colours, labels, points and marks.
#pragma once

#include <functional>
#include <optional>

#include "host/frame.h"
#include "host/labels.h"

namespace vyn {

inline constexpr int kOrbitPoints = 361;
inline constexpr double kFarthestOrbitAu = 200.0;
inline const QColor kMeteoriteColor(255, 160, 112);

inline QColor MinorPlanetColor() { return {192, 192, 128}; }
QColor DustTrailColor(const DisplayState& display);
QColor WithAlpha(QColor color, int alpha);

/// What a body's label says: its name, date and magnitude, as they are switched on.
QString LabelText(const Frame& frame, const SceneSmallBody& body);
void AddLabel(const Frame& frame, const SceneSmallBody& body, const SmallBodyDisplay& display,
              const QPointF& at, LabelLayer& labels);

/// All minor planets: the brighter the larger, or in the colour of their orbital type.
/// `toPicture` tells where an object is.
void PaintMinorPlanetPoints(QPainter& painter, const Frame& frame,
                            const std::function<std::optional<QPointF>(int object)>& toPicture);

void PaintMeteorite(QPainter& painter, LabelLayer& labels, const SceneTrack& meteorite,
                    const LabelStyle& style, const QPointF& at);

}  // namespace vyn
