#include "core_link/statement.h"

#include "core_link/number_text.h"

namespace vyn::statement {
namespace {

QString Assign(QStringView path, QStringView value) {
  QString text;
  text.reserve(path.size() + value.size() + 4);
  return text.append(path).append(u" = ").append(value).append(u';');
}

QStringView Truth(bool on) { return on ? QStringView(u"TRUE") : QStringView(u"FALSE"); }

}  // namespace

QString Query(const QString& path) { return QStringLiteral("? ") + path; }

QString Bool(QStringView path, bool on) { return Assign(path, Truth(on)); }

QString Visible(QStringView path, bool on) { return Bool(QString(path + u".Visible"), on); }

QString Int(QStringView path, int value) { return Assign(path, QString::number(value)); }

QString Double(QStringView path, double value) { return Assign(path, SixDecimals(value)); }

}  // namespace vyn::statement
