#include "image_data/image_label.h"

#include "core_link/reply.h"

namespace vyn {

int ImageLabels::LabelToNo(const QString& label) {
  if (label.isEmpty()) return 0;
  if (!format_) {
    const int length = static_cast<int>(label.size());
    format_ = {label.front(), length >= 2 && length <= 5 ? length - 1 : 0};
  }
  return reply::ToInt(QStringView(label).sliced(1));
}

QString ImageLabels::NoToLabel(int number) const {
  if (!format_) return QString::number(number);
  return format_->letter + QStringLiteral("%1").arg(number, format_->digits, 10, QLatin1Char('0'));
}

}  // namespace vyn
