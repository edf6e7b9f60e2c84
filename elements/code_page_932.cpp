#include "elements/code_page_932.h"

#include <algorithm>
#include <array>
#include <vector>

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

/// The code of each UTF-16 unit, 0 for none. It is the decoder's own table turned round: Qt's
/// encoder writes the code of a private character for what the code page lacks.
class CodeTable {
 public:
  CodeTable() : codes_(0x10000) {
    // Characters of the vendors' extensions have up to three codes. The standard rows come first,
    // then row 13, then those from 0xFA on; rows 0xED and 0xEE only repeat them.
    for (int lead = 0x81; lead <= 0xFC; ++lead) {
      if (lead != 0xED && lead != 0xEE) AddRow(lead);
    }
    for (const int lead : {0xED, 0xEE}) AddRow(lead);
    for (int code = 0xA1; code <= 0xDF; ++code) codes_[0xFF61 + code - 0xA1] = code;
    AddLookAlikes();
  }
  int CodeOf(QChar c) const { return c.unicode() < 0x80 ? c.unicode() : codes_[c.unicode()]; }

 private:
  void AddRow(int lead) {
    if (!IsLeadByte(static_cast<unsigned char>(lead))) return;
    for (int trail = 0x40; trail <= 0xFC; ++trail) {
      if (trail != 0x7F) AddCode(lead, trail);
    }
  }

  void AddCode(int lead, int trail) {
    const std::array bytes = {static_cast<char>(lead), static_cast<char>(trail)};
    const DecodedText decoded = DecodeCodePage932({bytes.data(), bytes.size()});
    if (!decoded.valid || decoded.text.size() != 1) return;
    int& code = codes_[decoded.text.front().unicode()];
    if (code == 0) code = lead << 8 | trail;
  }

  /// Input methods of other systems write these characters under another number.
  void AddLookAlikes() {
    constexpr std::array<std::pair<char16_t, char16_t>, 4> kLookAlikes = {
        {{0x301C, 0xFF5E}, {0x2016, 0x2225}, {0x2212, 0xFF0D}, {0x2014, 0x2015}}};
    for (const auto& [other, own] : kLookAlikes) codes_[other] = codes_[own];
  }

  std::vector<int> codes_;
};

}  // namespace

QByteArray EncodeCodePage932(QStringView text, qsizetype maxBytes) {
  static const CodeTable table;
  QByteArray bytes;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size();
    const int known = isPair ? 0 : table.CodeOf(text[i]);
    const int code = known == 0 && !text[i].isNull() ? '?' : known;
    if (bytes.size() + (code > 0xFF ? 2 : 1) > maxBytes) break;
    if (code > 0xFF) bytes.append(static_cast<char>(code >> 8));
    bytes.append(static_cast<char>(code & 0xFF));
    if (isPair) ++i;
  }
  return bytes;
}

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
