#include "elements/code_page_932.h"

#include <array>
#include <vector>

#include <QByteArrayView>
#include <QStringDecoder>

namespace vyn {
namespace {

constexpr char16_t kNoCharacter = 0xFFFD;
constexpr int kHalfWidthFirst = 0xA1;
constexpr int kHalfWidthLast = 0xDF;
constexpr char16_t kHalfWidthKana = 0xFF61;

bool IsLeadByte(int byte) {
  return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}

bool IsTrailByte(int byte) { return byte >= 0x40 && byte <= 0xFC && byte != 0x7F; }

/// The characters of the double-byte codes, and back. They are taken from Qt's decoder, which asks
/// ICU, whose table of this name has the characters of code page 932 (a wave dash is U+FF5E, a
/// double bar U+2225) and not those of the older standard that shares the name. Qt is not asked
/// for whole texts: it swaps some control characters, and its encoder writes the code of a private
/// character for what the code page lacks.
class CodeTable {
 public:
  CodeTable() : characters_(0x10000, kNoCharacter), codes_(0x10000, 0) {
    // Characters of the vendors' extensions have up to three codes. The standard rows come first,
    // then row 13, then those from 0xFA on; rows 0xED and 0xEE only repeat them.
    for (int lead = 0x81; lead <= 0xFC; ++lead) {
      if (lead != 0xED && lead != 0xEE) AddRow(lead);
    }
    for (const int lead : {0xED, 0xEE}) AddRow(lead);
    for (int code = kHalfWidthFirst; code <= kHalfWidthLast; ++code) {
      codes_[kHalfWidthKana + code - kHalfWidthFirst] = code;
    }
    AddLookAlikes();
  }

  char16_t CharacterOf(int code) const { return characters_[code]; }
  /// 0 for none.
  int CodeOf(char16_t c) const { return c < 0x80 ? c : codes_[c]; }

 private:
  void AddRow(int lead) {
    if (!IsLeadByte(lead)) return;
    for (int trail = 0x40; trail <= 0xFC; ++trail) {
      if (IsTrailByte(trail)) AddCode(lead, trail);
    }
  }

  void AddCode(int lead, int trail) {
    const std::array bytes = {static_cast<char>(lead), static_cast<char>(trail)};
    decoder_.resetState();
    const QString text = decoder_.decode(QByteArrayView(bytes.data(), bytes.size()));
    // A code without a character is decoded as a control character.
    if (text.size() != 1 || text.front().unicode() < 0x80 || text.front() == kNoCharacter) return;
    characters_[lead << 8 | trail] = text.front().unicode();
    int& code = codes_[text.front().unicode()];
    if (code == 0) code = lead << 8 | trail;
  }

  /// Input methods of other systems write these characters under another number.
  void AddLookAlikes() {
    constexpr std::array<std::pair<char16_t, char16_t>, 4> kLookAlikes = {
        {{0x301C, 0xFF5E}, {0x2016, 0x2225}, {0x2212, 0xFF0D}, {0x2014, 0x2015}}};
    for (const auto& [other, own] : kLookAlikes) codes_[other] = codes_[own];
  }

  QStringDecoder decoder_{"Shift_JIS"};
  std::vector<char16_t> characters_;
  std::vector<int> codes_;
};

const CodeTable& Table() {
  static const CodeTable table;
  return table;
}

char16_t SingleByteCharacter(int byte) {
  if (byte < 0x80) return static_cast<char16_t>(byte);
  const bool isKana = byte >= kHalfWidthFirst && byte <= kHalfWidthLast;
  return isKana ? static_cast<char16_t>(kHalfWidthKana + byte - kHalfWidthFirst) : kNoCharacter;
}

}  // namespace

QByteArray EncodeCodePage932(QStringView text, qsizetype maxBytes) {
  QByteArray bytes;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size();
    const int known = isPair ? 0 : Table().CodeOf(text[i].unicode());
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
  DecodedText decoded{{}, true};
  decoded.text.reserve(static_cast<qsizetype>(bytes.size()));
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const int byte = static_cast<unsigned char>(bytes[i]);
    char16_t character = SingleByteCharacter(byte);
    if (IsLeadByte(byte)) {
      if (i + 1 == bytes.size()) return {decoded.text, false};
      const int trail = static_cast<unsigned char>(bytes[i + 1]);
      character = IsTrailByte(trail) ? Table().CharacterOf(byte << 8 | trail) : kNoCharacter;
      if (IsTrailByte(trail)) ++i;
    }
    decoded.valid = decoded.valid && character != kNoCharacter;
    decoded.text += QChar(character);
  }
  return decoded;
}

bool LooksLikeUtf8(std::string_view bytes) {
  if (IsAscii(bytes)) return false;
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder.decode(QByteArrayView(bytes.data(), bytes.size()));
  return !decoder.hasError() && !text.contains(QChar(QChar::ReplacementCharacter));
}

}  // namespace vyn
