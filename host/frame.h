// One frame: all that a picture of the sky or of the solar system is painted from.
#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>

#include "host/display_state.h"
#include "host/image_overlays.h"
#include "host/scene.h"
#include "host/view_state.h"

class QPainter;

namespace vyn {

class ReferenceEngine;

struct Frame {
  QSizeF size;  ///< of the picture, in pixels
  ViewState view;
  DisplayState display;
  Overlays overlays;
  Scene scene;
  QString dateText;    ///< for labels, in the engine's time zone
  QString momentText;  ///< date and time
  QString placeText;   ///< body, longitude and latitude of the observer
};

Frame ReadFrame(ReferenceEngine& engine, const QSizeF& size);

/// Paints the frame over the whole picture.
void PaintFrame(QPainter& painter, const Frame& frame);

/// Where the line stands that tells moment, place and extent; labels stay out of it.
QRectF StatusArea(const QSizeF& pictureSize);

/// What a body's label says: its name and date, as they are switched on.
QString LabelText(const Frame& frame, SkyBody body);

}  // namespace vyn
