#include "core_link/window_message.h"

#include <QHash>

namespace vyn {

QEvent::Type RegisterWindowMessage(const QString& name) {
  static QHash<QString, QEvent::Type> types;
  auto found = types.find(name);
  if (found == types.end()) {
    found = types.insert(name, static_cast<QEvent::Type>(QEvent::registerEventType()));
  }
  return *found;
}

}  // namespace vyn
