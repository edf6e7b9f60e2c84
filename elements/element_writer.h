// Writes fields into element records.
#pragma once

#include <QByteArray>
#include <QStringView>

#include "elements/element_record.h"

namespace vyn {

/// Writes what a person typed into a number field. A whole number is put to the right end of its
/// field. A number with decimals is put so that its point stands where the field has it, is cut off
/// at the field's end, and leaves the columns behind it as they are; where digits left there would
/// change the number, it is first completed with zeros. A blank text leaves the field as it is.
/// The text is one that ReadTypedNumber reads.
void WriteNumber(QByteArray& record, ElementField field, QStringView text);

/// Writes a text in code page 932, cut between characters where it is too long and filled up with
/// blanks where it is shorter. A control character, which could break the line, becomes a blank.
void WriteText(QByteArray& record, ElementField field, QStringView text);

/// Copies the columns of a field from one record into another.
void CopyField(QByteArray& to, const QByteArray& from, ElementField field);

/// A record of blanks with this kind letter, closed with CR LF.
QByteArray BlankRecord(char kindLetter);

/// What a new object starts from: perihelion on January 1 of `year` at 1 au, and the magnitudes and
/// tails that are usual for a comet ('C') or a minor planet ('M').
QByteArray TemplateRecord(char kindLetter, int year);

}  // namespace vyn
