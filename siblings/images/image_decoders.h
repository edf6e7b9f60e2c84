// The decoders of the single kinds of image file. Each takes a whole file's bytes and returns a
// null image for what it cannot decode.
#pragma once

#include <QByteArray>
#include <QImage>

namespace vyn {

QImage DecodeBmp(const QByteArray& file);
/// A BMP without its file header.
QImage DecodeDib(const QByteArray& file);
QImage DecodeJpeg(const QByteArray& file);
QImage DecodePng(const QByteArray& file);
QImage DecodeTga(const QByteArray& file);
QImage DecodeDds(const QByteArray& file);
QImage DecodeFits(const QByteArray& file);

}  // namespace vyn
