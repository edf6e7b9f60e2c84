// Messages between windows: the question a dialog asks its parent, and messages registered by name.
#pragma once

#include <QEvent>
#include <QString>

#include "core_link/export.h"

namespace vyn {

/// A message sent to a window. The receiver answers through the pointer and accepts the event.
class VYN_EXPORT CVynMessage final : public QEvent {
 public:
  CVynMessage(QEvent::Type type, quintptr wParam, void* lParam)
      : QEvent(type), wParam(wParam), lParam(lParam) {}

  const quintptr wParam;
  void* const lParam;
};

/// Asks a dialog's parent for the texts of the colour-and-font dialog: wParam 0 the first (what is
/// coloured), wParam 1 the second (a sample); lParam points to the QString to fill. A parent that
/// does not answer leaves the text empty.
inline constexpr QEvent::Type kTextRequestMessage = static_cast<QEvent::Type>(0x0810);

/// The event type registered under this name; the same name always gives the same type.
VYN_EXPORT QEvent::Type RegisterWindowMessage(const QString& name);

}  // namespace vyn
