#include "elements/identifier_key.h"

#include <algorithm>

#include <QRandomGenerator>

#include "elements/code_page_932.h"
#include "elements/element_record.h"

namespace vyn {
namespace {

std::string_view Trimmed(std::string_view text) {
  text = text.substr(0, text.find('\0'));
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c; }

/// Lower-case bytes of a Japanese text; the text as it stands where it is none.
QByteArray Folded(std::string_view text) {
  QByteArray plain(text.data(), text.size());
  const DecodedText decoded = DecodeCodePage932(text);
  if (!decoded.valid) return plain;
  const QString folded = decoded.text.toCaseFolded();
  const QByteArray bytes = EncodeCodePage932(folded);
  const bool isFaithful =
      DecodeCodePage932({bytes.data(), std::size_t(bytes.size())}).text == folded;
  return isFaithful && bytes.size() == plain.size() ? bytes : plain;
}

std::uint64_t Mixed(std::uint64_t value) {
  value = (value ^ value >> 32) * 0x9FB21C651E98DF25u;
  return value ^ value >> 29;
}

/// A file cannot be made whose identifiers all fall on one hash.
std::uint64_t Seed() {
  static const std::uint64_t seed = QRandomGenerator::system()->generate64();
  return seed;
}

}  // namespace

IdentifierKey IdentifierKey::OfColumns(std::string_view columns) {
  const std::string_view text = Trimmed(columns);
  IdentifierKey key;
  if (IsAscii(text)) {
    std::transform(text.begin(), text.end(), key.bytes_.begin(), LowerAscii);
  } else {
    const QByteArray folded = Folded(text);
    std::copy(folded.begin(), folded.end(), key.bytes_.begin());
  }
  return key;
}

IdentifierKey IdentifierKey::OfLine(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return OfColumns(FieldBytes(line, ElementField::Identifier));
}

IdentifierKey IdentifierKey::OfText(QStringView text) {
  const QByteArray trimmed = EncodeCodePage932(text);
  const std::string_view bytes = Trimmed({trimmed.data(), std::size_t(trimmed.size())});
  const int width = FieldOf(ElementField::Identifier).width;
  const QByteArray stored = EncodeCodePage932(DecodeCodePage932(bytes).text, width);
  return OfColumns({stored.data(), std::size_t(stored.size())});
}

std::uint64_t IdentifierKey::Hash() const {
  std::uint64_t halves[2];
  std::memcpy(halves, bytes_.data(), sizeof halves);
  return Mixed(Mixed(halves[0] ^ Seed()) + halves[1]);
}

}  // namespace vyn
