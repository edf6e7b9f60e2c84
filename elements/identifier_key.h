// Identifiers in the form in which objects are told apart.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>

#include <QStringView>

namespace vyn {

/// Two identifiers are the same when their keys are: blanks at both ends and case do not count, and
/// neither does what stands behind a NUL.
class IdentifierKey {
 public:
  /// The key of the identifier's columns of a record, as many of them as the line has.
  static IdentifierKey OfColumns(std::string_view columns);
  /// The key of a record or of a line that may be shorter.
  static IdentifierKey OfLine(std::string_view line);
  /// The key of an identifier as it would be stored in a record.
  static IdentifierKey OfText(QStringView text);

  bool IsBlank() const { return bytes_[0] == '\0'; }
  std::uint64_t Hash() const;
  bool operator==(const IdentifierKey&) const = default;

 private:
  std::array<char, 16> bytes_{};
};

}  // namespace vyn
