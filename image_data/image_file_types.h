// Which files the image dialogs take for images.
#pragma once

#include <QString>

namespace vyn {

/// Whether the path's extension, whatever its casing, is one of an image that can be read: bmp,
/// dds, dib, jpeg, jpg, jpe, png, tga, trg, fits, fit, fts.
bool IsReadExtensionType(const QString& path);

/// The message for a file that is none, filled with its path.
inline constexpr int kUnknownImageText = 13476;

}  // namespace vyn
