// The labels of taken images: a letter and a number, such as "I07".
#pragma once

#include <optional>

#include <QString>

namespace vyn {

/// Turns labels into numbers and back. How a number is written is learned from the first label met
/// and kept from then on: a label of 2 to 5 characters has that many digits less one, with leading
/// zeros; any other just its number; its first character stands in front.
class ImageLabels {
 public:
  /// The number behind a label's first character, 0 when there is none.
  int LabelToNo(const QString& label);

  /// The number alone as long as no label has been met.
  QString NoToLabel(int number) const;

 private:
  struct Format {
    QChar letter;
    int digits;
  };
  std::optional<Format> format_;
};

}  // namespace vyn
