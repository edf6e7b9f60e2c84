// Decoded photographs for painting, kept from frame to frame.
#pragma once

#include <QImage>

namespace vyn {

/// The photograph of a file, of which one side's length is to become about `sidePixels`. It is
/// decoded once, until the file changes; smaller copies are made as they are needed, so that
/// painting never has to pick a few pixels out of many. The side is the shorter one. Null when the
/// file cannot be loaded.
QImage OverlayImage(const QString& path, double sidePixels);

}  // namespace vyn
