// The dialogs on the screen, and the window that is their parent.
#pragma once

#include <memory>
#include <vector>

#include <QPointer>

#include "tools/vyn-drive/dialog_table.h"

namespace vyn::drive {

/// The window that the driver gives to dialogs. Asked for the two texts of the colour-and-font
/// dialog, it answers "text0" and "text1".
class ParentWindow final : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  bool event(QEvent* event) override;
};

/// Commands act on the dialog opened last that is still open.
class OpenDialogs {
 public:
  /// Constructs a dialog, shows it modelessly, and reports its opening and closing.
  void Open(const QString& className, CCorVyn* commandHandle, CCorVyn* secondHandle,
            Arguments& words);

  /// A dialog that came up, perhaps not for the first time; reports its closing.
  void Add(CVynDialog& dialog);

  /// Gives the keyboard to the active dialog, as a window manager does when another window closes.
  void Activate() const;

  /// Throws ScriptError when no dialog is open.
  CVynDialog& Active() const;
  /// A control of the active dialog, the dialog itself for 0; throws ScriptError when there is
  /// none.
  QWidget& Control(int id) const;

 private:
  CVynDialog* FindActive() const;

  ParentWindow parent_;
  std::vector<std::unique_ptr<CVynDialog>> owned_;
  std::vector<QPointer<CVynDialog>> dialogs_;
};

}  // namespace vyn::drive
