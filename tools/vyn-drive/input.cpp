#include "tools/vyn-drive/input.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QPointer>
#include <QPointingDevice>
#include <QRadioButton>
#include <QSet>
#include <QSlider>
#include <QStyleOptionButton>
#include <QTest>

#include "siblings/controls/controls.h"
#include "tools/vyn-drive/script.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

QPoint IndicatorCenter(const QAbstractButton& button, QStyle::SubElement indicator) {
  QStyleOptionButton option;
  option.initFrom(&button);
  option.text = button.text();
  return button.style()->subElementRect(indicator, &option, &button).center();
}

QPoint TargetPoint(const QWidget& widget) {
  if (const auto* check = qobject_cast<const QCheckBox*>(&widget)) {
    return IndicatorCenter(*check, QStyle::SE_CheckBoxIndicator);
  }
  if (const auto* radio = qobject_cast<const QRadioButton*>(&widget)) {
    return IndicatorCenter(*radio, QStyle::SE_RadioButtonIndicator);
  }
  return widget.rect().center();
}

bool IsUsable(const QWidget& widget) { return widget.isVisible() && widget.isEnabled(); }

/// The edit that takes the text typed into a control; null when there is none.
QLineEdit* EditOf(QWidget& widget) {
  if (auto* combo = qobject_cast<QComboBox*>(&widget)) return combo->lineEdit();
  return qobject_cast<QLineEdit*>(&widget);
}

struct KeyStroke {
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
};

Qt::KeyboardModifier ModifierNamed(const QString& name) {
  if (name == u"Shift") return Qt::ShiftModifier;
  if (name == u"Ctrl") return Qt::ControlModifier;
  if (name == u"Alt") return Qt::AltModifier;
  throw ScriptError{u"unknown modifier key: "_s + name};
}

Qt::Key KeyNamed(const QString& name) {
  static const QMetaEnum keys = QMetaEnum::fromType<Qt::Key>();
  bool isKey = false;
  const int key = keys.keyToValue(QByteArray("Key_" + name.toLatin1()).constData(), &isKey);
  if (isKey) return static_cast<Qt::Key>(key);
  const QKeySequence sequence(name, QKeySequence::PortableText);
  if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown) {
    throw ScriptError{u"unknown key: "_s + name};
  }
  return sequence[0].key();
}

KeyStroke ReadKeyStroke(const QString& text) {
  QStringList names = text.split(u'+');
  KeyStroke stroke{KeyNamed(names.takeLast()), Qt::NoModifier};
  for (const QString& name : names) stroke.modifiers |= ModifierNamed(name);
  return stroke;
}

/// What a key writes: its letter, small without Shift; other keys as the toolkit has it.
QString TextOf(const KeyStroke& stroke) {
  const QString text = QString::fromLatin1(QByteArray(1, QTest::keyToAscii(stroke.key)));
  if (text == QChar(0)) return {};
  return stroke.modifiers.testFlag(Qt::ShiftModifier) ? text.toUpper() : text;
}

/// The keyboard goes to one control of a window; a person moves it there first.
QWidget* TakeKeyboard(QWidget& widget) {
  if (widget.isWindow()) return widget.focusWidget() != nullptr ? widget.focusWidget() : &widget;
  if (!widget.hasFocus() && widget.focusPolicy() != Qt::NoFocus) {
    widget.setFocus(Qt::OtherFocusReason);
  }
  return &widget;
}

QSet<QAbstractButton*> ButtonsDown(const QWidget& window) {
  QSet<QAbstractButton*> down;
  for (auto* button : window.findChildren<QAbstractButton*>()) {
    if (button->isDown()) down.insert(button);
  }
  return down;
}

/// A mnemonic holds its button down for a moment before it clicks.
void WaitForRelease(const QPointer<QWidget>& window, const QSet<QAbstractButton*>& downBefore) {
  while (window && !(ButtonsDown(*window) - downBefore).isEmpty()) {
    QAbstractEventDispatcher::instance()->processEvents(QEventLoop::WaitForMoreEvents);
  }
}

Qt::Key KeyOf(char32_t character) {
  if (character == U'\n' || character == U'\r') return Qt::Key_Return;
  if (character == U'\t') return Qt::Key_Tab;
  if (character > 0x7E) return Qt::Key_unknown;
  return static_cast<Qt::Key>(QChar::toUpper(character));
}

}  // namespace

void Settle() {
  QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
  while (dispatcher->processEvents(QEventLoop::AllEvents)) {
  }
}

void SendMouse(QWidget& widget, QEvent::Type type, QPointF position, Qt::MouseButton button,
               Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) {
  if (!widget.isVisible()) return;
  QMouseEvent event(type, position, widget.mapToGlobal(position), button, held, modifiers,
                    QPointingDevice::primaryPointingDevice());
  // What comes from outside moves the keyboard focus; what a program sends does not.
  QSpontaneKeyEvent::setSpontaneous(&event);
  QCoreApplication::instance()->notify(&widget, &event);
}

void ClickAt(QWidget& widget, QPoint position, Qt::KeyboardModifiers modifiers) {
  const QPointer<QWidget> target(&widget);
  SendMouse(widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton, modifiers);
  if (target) {
    SendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton,
              modifiers);
  }
}

void DoubleClickAt(QWidget& widget, QPoint position) {
  const QPointer<QWidget> target(&widget);
  ClickAt(widget, position);
  if (!target) return;
  SendMouse(widget, QEvent::MouseButtonDblClick, position, Qt::LeftButton, Qt::LeftButton);
  if (!target) return;
  SendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

void Click(QWidget& widget) { ClickAt(widget, TargetPoint(widget)); }

void DoubleClick(QWidget& widget) { DoubleClickAt(widget, TargetPoint(widget)); }

void Drag(QWidget& widget, QPointF from, QPointF to) {
  constexpr int kSteps = 10;
  const auto send = [target = QPointer<QWidget>(&widget)](QEvent::Type type, QPointF position,
                                                          Qt::MouseButton button,
                                                          Qt::MouseButtons held) {
    if (target) SendMouse(*target, type, QPointF(position.toPoint()), button, held);
  };
  send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
  for (int step = 1; step <= kSteps; ++step) {
    send(QEvent::MouseMove, from + (to - from) * step / kSteps, Qt::NoButton, Qt::LeftButton);
  }
  send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
}

void PressKey(QWidget& widget, const QString& key) {
  const KeyStroke stroke = ReadKeyStroke(key);
  if (!IsUsable(widget)) return;
  const QPointer<QWidget> window(widget.window());
  const QSet<QAbstractButton*> downBefore = ButtonsDown(*window);
  QTest::sendKeyEvent(QTest::Click, TakeKeyboard(widget), stroke.key, TextOf(stroke),
                      stroke.modifiers);
  WaitForRelease(window, downBefore);
}

void TypeText(QWidget& widget, const QString& text) {
  if (!IsUsable(widget)) return;
  QLineEdit* edit = EditOf(widget);
  const QPointer<QWidget> target = TakeKeyboard(edit != nullptr ? *edit : widget);
  if (edit != nullptr) edit->selectAll();
  for (const char32_t character : text.toUcs4()) {
    if (!target) return;
    QTest::sendKeyEvent(QTest::Click, target, KeyOf(character), QString::fromUcs4(&character, 1),
                        Qt::NoModifier);
  }
}

void PasteText(QWidget& widget, const QString& text) {
  QLineEdit* edit = EditOf(widget);
  if (edit == nullptr) throw ScriptError{u"the control takes no text"_s};
  if (!IsUsable(*edit) || edit->isReadOnly()) return;
  TakeKeyboard(*edit);
  edit->selectAll();
  edit->insert(text);
}

void PressSpin(CVynSpinButton& spin, bool up, int times, Qt::KeyboardModifiers modifiers) {
  const QPointer<CVynSpinButton> target(&spin);
  for (int i = 0; i < times && target; ++i) {
    ClickAt(spin, (up ? spin.UpRect() : spin.DownRect()).center(), modifiers);
  }
}

void MoveSlider(QSlider& slider, int position) {
  if (!IsUsable(slider)) return;
  const QPointer<QSlider> target(&slider);
  if (slider.focusPolicy() & Qt::ClickFocus) slider.setFocus(Qt::MouseFocusReason);
  slider.setSliderDown(true);
  slider.setSliderPosition(position);
  if (target) slider.setSliderDown(false);
}

}  // namespace vyn::drive
