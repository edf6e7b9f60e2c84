// The wait cursor for as long as something takes.
#pragma once

#include <QApplication>

namespace vyn {

class WaitCursor {
 public:
  WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~WaitCursor() { QApplication::restoreOverrideCursor(); }
  Q_DISABLE_COPY_MOVE(WaitCursor)
};

}  // namespace vyn
