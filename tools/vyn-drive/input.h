// A person's hands: mouse and keyboard events sent to real widgets.
#pragma once

#include <QEvent>
#include <QWidget>

class QSlider;

namespace vyn {
class CVynSpinButton;
}

namespace vyn::drive {

/// Lets pending events run until none is left. Does not wait for timers.
void Settle();

/// One mouse event. What cannot be seen gets none.
void SendMouse(QWidget& widget, QEvent::Type type, QPointF position, Qt::MouseButton button,
               Qt::MouseButtons held, Qt::KeyboardModifiers modifiers = {});

/// Press and release of the left button.
void ClickAt(QWidget& widget, QPoint position, Qt::KeyboardModifiers modifiers = {});
void DoubleClickAt(QWidget& widget, QPoint position);
/// The same in the middle of the control, of a check box or radio button in its indicator.
void Click(QWidget& widget);
void DoubleClick(QWidget& widget);

/// Press, ten moves in equal steps, release.
void Drag(QWidget& widget, QPointF from, QPointF to);

/// One key with its modifiers, such as "Shift+Return"; throws ScriptError when there is no such
/// key. Goes to the control that has the keyboard when `widget` is a window.
void PressKey(QWidget& widget, const QString& key);

/// Selects all and types, one key for each character.
void TypeText(QWidget& widget, const QString& text);

/// Replaces the whole content in one change. Throws ScriptError for what takes no text.
void PasteText(QWidget& widget, const QString& text);

void PressSpin(CVynSpinButton& spin, bool up, int times, Qt::KeyboardModifiers modifiers);
void MoveSlider(QSlider& slider, int position);

}  // namespace vyn::drive
