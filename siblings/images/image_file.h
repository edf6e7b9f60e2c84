// Loads the image files that the dialogs lay over the sky.
#pragma once

#include <QImage>

#include "core_link/export.h"

namespace vyn {

/// Loads an image of one of the kinds BMP (also without its file header), JPEG, PNG, TGA, DDS
/// (uncompressed, DXT1 to DXT5, BC4) and FITS; null when the file cannot be opened, is cut short,
/// damaged or too large. The kind is known by the content; only a TGA, which bears no mark, by what
/// its header says. The orientation that a photograph states is carried out.
///
/// A FITS image is the first one in the file, its first row at the bottom; three planes are red,
/// green and blue. Its values are stretched to 8 bits: the lowest quarter of a per cent becomes
/// black, the highest quarter white, in all planes alike; what is no number becomes black.
/// Tiles may be compressed by RICE or GZIP.
///
/// Refused are images of more than 32,767 pixels a side or 512 megabytes, and files of more than a
/// gigabyte.
VYN_EXPORT QImage LoadImageFile(const QString& path);

}  // namespace vyn
