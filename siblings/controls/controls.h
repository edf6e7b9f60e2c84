// The custom controls: the toolkit's widgets under a control number, with what a settings dialog
// needs beyond them.
#pragma once

#include <optional>
#include <utility>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

#include "core_link/export.h"
#include "resources/dialog_template.h"

namespace vyn {

/// The control number of a widget; -1 for one that is no control of a template.
VYN_EXPORT int ControlIdOf(const QWidget* widget);
/// What the control is. Only for widgets that have a control number.
VYN_EXPORT ControlKind ControlKindOf(const QWidget* widget);

/// A titled frame. The controls in it are its siblings, not its children, so that disabling the
/// frame leaves them as their own rules say. Its mnemonic goes to the first control in it.
class VYN_EXPORT CVynGroupBox final : public QGroupBox {
  Q_OBJECT

 public:
  using QGroupBox::QGroupBox;
  void SetFirstControl(QWidget* control) { firstControl_ = control; }

 protected:
  bool event(QEvent* event) override;

 private:
  QWidget* firstControl_ = nullptr;
};

/// A push button whose face, text and border may have colours of their own.
class VYN_EXPORT CVynButton : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;
  void SetColors(QRgb face, QRgb text, QRgb border);
  /// Shows a picture of this size in place of the text, which stays the button's name.
  void SetPicture(const QPixmap& picture);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap picture_;
};

class VYN_EXPORT CVynCheckBox : public QCheckBox {
  Q_OBJECT

 public:
  using QCheckBox::QCheckBox;
};

/// All four arrow keys walk round its group and choose as they go.
class VYN_EXPORT CVynRadioButton : public QRadioButton {
  Q_OBJECT

 public:
  using QRadioButton::QRadioButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

/// Shows its text as it stands: a name that came from elsewhere is no markup. Its mnemonic gives
/// the buddy the focus and nothing more, also to a check box.
class VYN_EXPORT CVynStatic : public QLabel {
  Q_OBJECT

 public:
  explicit CVynStatic(const QString& text, QWidget* parent = nullptr) : QLabel(text, parent) {
    setTextFormat(Qt::PlainText);
  }

 protected:
  bool event(QEvent* event) override;
};

class VYN_EXPORT CVynEdit : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

  /// Whether the change that is being told comes from the keyboard, so that more of the text may
  /// follow; not so for a pasted text.
  bool IsBeingTyped() const { return isBeingTyped_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;

 private:
  bool isBeingTyped_ = false;
};

/// Without a selection the arrow keys, and page keys that lead nowhere, select the row that has the
/// focus, else the first.
class VYN_EXPORT CVynListBox : public QListWidget {
  Q_OBJECT

 public:
  using QListWidget::QListWidget;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

/// Two arrows without a value of their own. Each press, and each repetition while the mouse stays
/// down, sends a delta: -1 from the up arrow, 1 from the down arrow. The up and down keys and the
/// wheel do the same in the edit beside it.
class VYN_EXPORT CVynSpinButton final : public QWidget {
  Q_OBJECT

 public:
  explicit CVynSpinButton(QWidget* parent = nullptr);

  void SetBuddy(QWidget* edit);
  void SetRange(int minimum, int maximum) { range_ = {minimum, maximum}; }
  std::optional<std::pair<int, int>> Range() const { return range_; }

  QRect UpRect() const;
  QRect DownRect() const;
  QSize sizeHint() const override;

 Q_SIGNALS:
  void deltaPressed(int delta, Qt::KeyboardModifiers modifiers);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Press(int delta, Qt::KeyboardModifiers modifiers);
  void Turn(const QWheelEvent& wheel);
  void DrawArrow(class QPainter& painter, bool up);

  std::optional<std::pair<int, int>> range_;
  int pressedDelta_ = 0;
  int repeatTimer_ = 0;
  int wheelRest_ = 0;
};

}  // namespace vyn
