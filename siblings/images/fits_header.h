// Headers of FITS files, looked over before CFITSIO reads them.
#pragma once

#include <QByteArrayView>
#include <QtGlobal>

namespace vyn {

/// Whether CFITSIO can read the header that begins at `start`. It divides by the lengths of tiles
/// as it reads them, and ends the program where it finds a long text instead of a whole number.
bool IsHeaderSound(QByteArrayView file, qint64 start);

}  // namespace vyn
