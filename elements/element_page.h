// Checks what a person typed into the element editor and stores it in the page's record.
#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QString>

#include "elements/element_input.h"

namespace vyn {

/// Why a page is not stored: the message and the edit that is meant.
struct PageProblem {
  QString message;
  int control;
};

/// Whether another object has this identifier, blanks and case aside.
using IdentifierIsTaken = std::function<bool(const QString& identifier)>;

/// The edits' texts for a record: texts without the blanks at their end, numbers as they stand
/// without the blanks around them. What is not stored in a record is derived: M, where the orbit
/// allows it, and a.
ElementInput ReadPage(const QByteArray& record, bool isComet);

/// Checks the input and, when nothing is wrong, stores it in `record`. In epoch mode T is derived
/// anew. A number left blank and a text that was not changed keep the record's columns as they are.
std::optional<PageProblem> StorePage(ElementInput input, QByteArray& record,
                                     const IdentifierIsTaken& isTaken);

/// A date's three fields are all blank or all filled.
bool CheckDateOmission(const ElementInput& input, const DateFields& date);

/// Stores one field of the input; a number after checking that it is one and in range.
std::optional<PageProblem> SetNumericField(const ElementInput& input, ElementField field,
                                           QByteArray& record);

/// Copies what all pages of an object share, its identifier and both names, from one to another.
void CopySharedFields(const QByteArray& from, QByteArray& to);

}  // namespace vyn
