// Tile-compressed FITS images, looked over before they are decoded.
#pragma once

#include <fitsio.h>

#include <QtGlobal>

namespace vyn {

/// Whether CFITSIO can decode the first planes of the compressed image at which the file stands. It
/// trusts what it decodes: streams that are damaged make it read and write outside of its memory.
/// So every tile is followed here first, within its bounds. Tiles of RICE and GZIP are taken; those
/// of HCOMPRESS and PLIO, which cannot be told good from bad without decoding them, are not.
bool AreTilesSound(fitsfile* file, int planes, qint64 fileSize);

}  // namespace vyn
