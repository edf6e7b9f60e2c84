// The library's bitmaps and icons by number, drawn sharp at any size.
#pragma once

#include <QPixmap>
#include <QRectF>
#include <QSize>

class QPainter;

namespace vyn {

/// How many images a picture has side by side; 0 for a number without a picture.
int ImageCountOf(int number);

/// Draws one image of a picture, from 0, as large as fits into `area` and in its middle. Nothing
/// for an unknown number or image.
void DrawPicture(QPainter& painter, int number, int image, const QRectF& area);

/// The first image of a picture on nothing; `size` is in units of which the screen has
/// `devicePixelRatio` pixels.
QPixmap LoadPicture(int number, const QSize& size, double devicePixelRatio);

}  // namespace vyn
