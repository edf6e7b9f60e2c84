#include "elements/code_page_932.h"

#include <algorithm>

#include <QByteArrayView>
#include <QStringDecoder>

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// Qt asks ICU, whose table of this name has the characters of code page 932 (a wave dash is
/// U+FF5E, a double bar U+2225) and not those of the older standard that shares the name.
QStringDecoder& Decoder() {
  thread_local QStringDecoder decoder("Shift_JIS");
  decoder.resetState();
  return decoder;
}

bool IsLeadByte(unsigned char byte) {
  return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

bool EndsInHalfCharacter(std::string_view bytes) {
  std::size_t position = 0;
  while (position < bytes.size()) {
    position += IsLeadByte(static_cast<unsigned char>(bytes[position])) ? 2 : 1;
  }
  return position > bytes.size();
}

}  // namespace

bool IsAscii(std::string_view bytes) {
  unsigned char all = 0;
  for (const char c : bytes) all |= static_cast<unsigned char>(c);
  return all < 0x80;
}

DecodedText DecodeCodePage932(std::string_view bytes) {
  if (IsAscii(bytes)) return {QString::fromLatin1(bytes.data(), bytes.size()), true};
  const bool cut = EndsInHalfCharacter(bytes);
  const std::string_view whole = bytes.substr(0, bytes.size() - (cut ? 1 : 0));
  QString text = Decoder().decode(QByteArrayView(whole.data(), whole.size()));
  // The substitute for a lone byte is the control character SUB.
  if (whole.find('\x1A') == whole.npos)
    text.replace(QChar(0x1A), QChar(QChar::ReplacementCharacter));
  const bool valid = !cut && !text.contains(QChar(QChar::ReplacementCharacter));
  return {std::move(text), valid};
}

bool LooksLikeUtf8(std::string_view bytes) {
  if (IsAscii(bytes)) return false;
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder.decode(QByteArrayView(bytes.data(), bytes.size()));
  return !decoder.hasError() && !text.contains(QChar(QChar::ReplacementCharacter));
}

}  // namespace vyn
