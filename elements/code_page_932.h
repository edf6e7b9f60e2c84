// The code page of element files. It is 932 on every system, so that a file means the same
// everywhere.
#pragma once

#include <limits>
#include <string_view>

#include <QByteArray>
#include <QString>

namespace vyn {

struct DecodedText {
  QString text;        ///< what is no character of the code page stands as U+FFFD
  bool valid = false;  ///< every byte was read as part of a character
};

/// Reads bytes in code page 932. A text that is cut within a double-byte character loses that
/// character and is not valid.
DecodedText DecodeCodePage932(std::string_view bytes);

/// Writes text in code page 932, as many whole characters as fit in `maxBytes`. A character that
/// the code page lacks becomes "?". Decoding gives back every character that the code page has.
QByteArray EncodeCodePage932(QStringView text,
                             qsizetype maxBytes = std::numeric_limits<qsizetype>::max());

/// Whether text that is not plain ASCII is well-formed UTF-8, as Japanese text in code page 932
/// practically never is: what DecodeCodePage932 makes of such bytes is not what was meant.
bool LooksLikeUtf8(std::string_view bytes);

/// Whether every byte is ASCII.
bool IsAscii(std::string_view bytes);

}  // namespace vyn
