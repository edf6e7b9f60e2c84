#include "siblings/controls/controls.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include <QButtonGroup>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleOptionButton>
#include <QStyleOptionSpinBox>
#include <QTimerEvent>
#include <QWheelEvent>

namespace vyn {
namespace {

constexpr int kRepeatDelayMs = 400;
constexpr int kRepeatIntervalMs = 60;
constexpr std::array kListKeys{Qt::Key_Up,  Qt::Key_Down,   Qt::Key_Home,
                               Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown};

QString CssColor(QRgb color) { return QColor::fromRgb(color).name(); }

/// 1 for the arrows that walk on, -1 for those that walk back, 0 for any other key.
int StepOf(int key) {
  if (key == Qt::Key_Right || key == Qt::Key_Down) return 1;
  return key == Qt::Key_Left || key == Qt::Key_Up ? -1 : 0;
}

}  // namespace

int ControlIdOf(const QWidget* widget) {
  const QVariant id = widget->property("controlId");
  return id.isValid() ? id.toInt() : -1;
}

ControlKind ControlKindOf(const QWidget* widget) {
  return static_cast<ControlKind>(widget->property("controlKind").toInt());
}

bool CVynGroupBox::event(QEvent* event) {
  if (event->type() != QEvent::Shortcut || firstControl_ == nullptr) {
    return QGroupBox::event(event);
  }
  QWidget* control = firstControl_;
  while (!control->isEnabled() || !control->isVisible()) {
    control = control->nextInFocusChain();
    if (control == firstControl_) return true;
  }
  control->setFocus(Qt::ShortcutFocusReason);
  return true;
}

void CVynButton::SetColors(QRgb face, QRgb text, QRgb border) {
  setStyleSheet(QStringLiteral("QPushButton { background-color: %1; color: %2; border: 1px solid "
                               "%3; padding: 4px 12px; }"
                               "QPushButton:focus { border: 1px solid %2; }"
                               "QPushButton:pressed { border: 1px inset %2; }")
                    .arg(CssColor(face), CssColor(text), CssColor(border)));
}

void CVynButton::SetPicture(const QPixmap& picture) {
  picture_ = picture;
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  updateGeometry();
  update();
}

QSize CVynButton::sizeHint() const {
  constexpr int kMargin = 5;
  if (picture_.isNull()) return QPushButton::sizeHint();
  return picture_.deviceIndependentSize().toSize() + QSize(2 * kMargin, 2 * kMargin);
}

void CVynButton::paintEvent(QPaintEvent* event) {
  if (picture_.isNull()) return QPushButton::paintEvent(event);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  QPainter painter(this);
  style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
  style()->drawItemPixmap(
      &painter, rect(), Qt::AlignCenter,
      isEnabled() ? picture_ : style()->generatedIconPixmap(QIcon::Disabled, picture_, &option));
}

bool CVynStatic::event(QEvent* event) {
  if (event->type() != QEvent::Shortcut || buddy() == nullptr) return QLabel::event(event);
  buddy()->setFocus(Qt::ShortcutFocusReason);
  return true;
}

void CVynEdit::keyPressEvent(QKeyEvent* event) {
  const QScopedValueRollback typing(isBeingTyped_, !event->matches(QKeySequence::Paste));
  QLineEdit::keyPressEvent(event);
}

void CVynEdit::inputMethodEvent(QInputMethodEvent* event) {
  const QScopedValueRollback typing(isBeingTyped_, true);
  QLineEdit::inputMethodEvent(event);
}

void CVynListBox::keyPressEvent(QKeyEvent* event) {
  const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
  if (!isArrow || !selectedItems().isEmpty()) QListWidget::keyPressEvent(event);
  // A key that finds the focus already where it leads selects nothing by itself.
  const bool leadsToRow = std::ranges::count(kListKeys, event->key()) > 0 && count() > 0;
  if (leadsToRow && selectedItems().isEmpty()) setCurrentRow(std::max(currentRow(), 0));
}

void CVynRadioButton::keyPressEvent(QKeyEvent* event) {
  const int step = StepOf(event->key());
  if (step == 0 || group() == nullptr) {
    QRadioButton::keyPressEvent(event);
    return;
  }
  const QList<QAbstractButton*> buttons = group()->buttons();
  qsizetype index = buttons.indexOf(this);
  do {
    index = (index + step + buttons.size()) % buttons.size();
  } while (!buttons[index]->isEnabled());
  buttons[index]->setFocus(Qt::TabFocusReason);
  buttons[index]->click();
}

CVynSpinButton::CVynSpinButton(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::NoFocus);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

void CVynSpinButton::SetBuddy(QWidget* edit) { edit->installEventFilter(this); }

QRect CVynSpinButton::UpRect() const { return {0, 0, width(), height() / 2}; }

QRect CVynSpinButton::DownRect() const {
  return {0, height() / 2, width(), height() - height() / 2};
}

QSize CVynSpinButton::sizeHint() const {
  const int line = fontMetrics().height();
  return {line, line + 8};
}

void CVynSpinButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawArrow(painter, true);
  DrawArrow(painter, false);
}

void CVynSpinButton::DrawArrow(QPainter& painter, bool up) {
  QStyleOption option;
  option.initFrom(this);
  option.rect = up ? UpRect() : DownRect();
  const bool sunken = pressedDelta_ == (up ? -1 : 1);
  option.state |= sunken ? QStyle::State_Sunken : QStyle::State_Raised;
  style()->drawPrimitive(QStyle::PE_PanelButtonBevel, &option, &painter, this);
  const int side = std::min(option.rect.width(), option.rect.height()) * 2 / 3;
  const QPoint center = option.rect.center();
  option.rect = QRect(center.x() - side / 2, center.y() - side / 2, side, side);
  style()->drawPrimitive(up ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown, &option,
                         &painter, this);
}

void CVynSpinButton::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  repeatTimer_ = startTimer(kRepeatDelayMs);
  Press(UpRect().contains(event->position().toPoint()) ? -1 : 1, event->modifiers());
}

void CVynSpinButton::mouseReleaseEvent(QMouseEvent*) {
  if (repeatTimer_ != 0) killTimer(repeatTimer_);
  repeatTimer_ = 0;
  pressedDelta_ = 0;
  update();
}

void CVynSpinButton::timerEvent(QTimerEvent* event) {
  if (event->timerId() != repeatTimer_) return;
  killTimer(repeatTimer_);
  repeatTimer_ = 0;
  // A message box that a press brought up takes the release of the button with it.
  if (!isEnabled() || !QGuiApplication::mouseButtons().testFlag(Qt::LeftButton)) return;
  repeatTimer_ = startTimer(kRepeatIntervalMs);
  Press(pressedDelta_, QGuiApplication::keyboardModifiers());
}

bool CVynSpinButton::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && isEnabled()) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down) {
      Q_EMIT deltaPressed(key->key() == Qt::Key_Up ? -1 : 1, key->modifiers());
      return true;
    }
  }
  if (event->type() == QEvent::Wheel && isEnabled()) {
    Turn(*static_cast<QWheelEvent*>(event));
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

/// Touch pads turn by less than a notch at a time.
void CVynSpinButton::Turn(const QWheelEvent& wheel) {
  wheelRest_ += wheel.angleDelta().y();
  const int notches = wheelRest_ / QWheelEvent::DefaultDeltasPerStep;
  wheelRest_ -= notches * QWheelEvent::DefaultDeltasPerStep;
  for (int i = 0; i < std::abs(notches); ++i) {
    Q_EMIT deltaPressed(notches > 0 ? -1 : 1, wheel.modifiers());
  }
}

void CVynSpinButton::Press(int delta, Qt::KeyboardModifiers modifiers) {
  pressedDelta_ = delta;
  update();
  Q_EMIT deltaPressed(delta, modifiers);
}

}  // namespace vyn
