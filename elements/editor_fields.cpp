#include "elements/editor_fields.h"

#include <algorithm>

#include <QStringList>

#include "resources/string_table.h"

namespace vyn {
namespace {

constexpr int kFirstRangeMessage = 13346;  // of four, in the order of RangeMode
constexpr int kSlopeParameterName = 13311;

const EditorField& EditorFieldOf(ElementField field) {
  const auto found = std::ranges::find(kEditorFields, field, &EditorField::field);
  Q_ASSERT(found != kEditorFields.end());
  return *found;
}

/// The range message with the formats of its bounds still in it.
QByteArray RangeFormat(RangeMode range, int nameMessage) {
  const QString message = LoadString(kFirstRangeMessage + static_cast<int>(range));
  const QStringList parts = LoadString(nameMessage).split(QLatin1Char('|'));
  Q_ASSERT(parts.size() == 3);
  return QString::asprintf(qUtf8Printable(message), qUtf8Printable(parts[0]),
                           qUtf8Printable(parts[1]), qUtf8Printable(parts[2]))
      .toUtf8();
}

}  // namespace

int ControlOf(ElementField field) { return EditorFieldOf(field).control; }

int NameMessageOf(ElementField field, bool isComet) {
  if (field == ElementField::MagnitudeCoefficient && !isComet) return kSlopeParameterName;
  return EditorFieldOf(field).nameMessage;
}

QString fCheckRange(const RecordField& field, int nameMessage, double value) {
  if (IsInRange(field, value)) return {};
  return QString::asprintf(RangeFormat(field.range, nameMessage).constData(),
                           static_cast<double>(field.lowerBound),
                           static_cast<double>(field.upperBound));
}

QString nCheckRange(const RecordField& field, int nameMessage, int value) {
  if (IsInRange(field, value)) return {};
  return QString::asprintf(RangeFormat(field.range, nameMessage).constData(), field.lowerBound,
                           field.upperBound);
}

}  // namespace vyn
