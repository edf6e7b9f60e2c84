// Records and their fields as the program shows them.
#pragma once

#include <QJsonObject>
#include <QString>

#include "elements/element_file.h"
#include "elements/element_record.h"

namespace vyn::eld {

/// The field's name, as in "perihelion distance".
QString NameOf(const RecordField& field);

/// The field's text without blanks around it.
QString TextOf(std::string_view record, const RecordField& field);

/// Whether the field is one of those that tell something: not the end of the line.
bool IsShown(const RecordField& field);

/// A record with every field that is not blank, by name; numbers as texts, as they stand.
QJsonObject JsonOf(std::string_view record);

std::string_view ViewOf(const QByteArray& record);

}  // namespace vyn::eld
