// Takes the columns of a line and puts them into the fields of a record.
#pragma once

#include <cstring>

#include "tools/vyn-eld/mpc_line.h"

namespace vyn::eld {

std::string_view Trimmed(std::string_view text);

/// Columns of a line, counted from 1 as the formats' descriptions do.
struct LineColumns {
  int first;
  int last;

  /// What stands there without blanks around it, as far as the line reaches.
  std::string_view In(std::string_view line) const;
};

/// Fills one record from one line and keeps the first problem.
class RecordBuilder {
 public:
  RecordBuilder(std::string_view line, char kindLetter, RecordBytes& record);

  /// A number from columns, with zeros up to its field's last decimal. Blank columns leave the
  /// field blank when they may; otherwise that is a problem, as is a value out of range.
  void Number(ElementField field, LineColumns columns, bool mayBeBlank = false);
  /// A number that was worked out, rounded to the field's decimals. `columns` are what a value out
  /// of range is blamed on.
  void Value(ElementField field, double value, LineColumns columns);
  /// A text as it stands, cut at the field's end. It is ASCII.
  void Text(ElementField field, std::string_view text);
  /// A date with its fraction in millionths of a day.
  void Date(const DateFields& fields, int year, int month, int day, int millionths,
            LineColumns columns);

  double Read(ElementField field) const;
  void Note(LineColumns columns, std::string reason);
  bool IsGood() const { return !problem_; }
  std::optional<LineProblem> TakeProblem() { return std::move(problem_); }
  std::string_view Line() const { return line_; }

 private:
  void Digits(ElementField field, long long value, int width);
  void CheckRange(ElementField field, LineColumns columns);

  std::string_view line_;
  RecordBytes& record_;
  std::optional<LineProblem> problem_;
};

}  // namespace vyn::eld
