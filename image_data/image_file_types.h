// Which files the image dialogs take for images.
#pragma once

#include <QString>

namespace vyn {

/// Whether the path's extension, whatever its casing, is one of an image that can be read: bmp,
/// dds, dib, jpeg, jpg, jpe, png, tga, trg, fits, fit, fts.
bool IsReadExtensionType(const QString& path);

}  // namespace vyn
