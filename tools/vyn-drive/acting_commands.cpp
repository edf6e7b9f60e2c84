// Commands that do what a person does with mouse and keyboard, and the dialogs' public operations.
#include <array>

#include <QSlider>

#include "core_link/live_dialog.h"
#include "siblings/controls/controls.h"
#include "small_bodies/object_list_dialog.h"
#include "tools/vyn-drive/commands.h"
#include "tools/vyn-drive/input.h"
#include "tools/vyn-drive/list_control.h"
#include "tools/vyn-drive/output.h"
#include "tools/vyn-drive/session.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

QWidget& TakeControl(Session& session, Arguments& arguments) {
  return session.dialogs.Control(arguments.Int(u"ID"));
}

/// The control as one of this class; throws ScriptError naming what it should be.
template <class Kind>
Kind& TakeControlOf(Session& session, Arguments& arguments, QStringView kind) {
  QWidget& control = TakeControl(session, arguments);
  auto* found = qobject_cast<Kind*>(&control);
  if (found != nullptr) return *found;
  throw ScriptError{u"not a "_s + kind + u": "_s + QString::number(ControlIdOf(&control))};
}

std::unique_ptr<ListControl> TakeList(Session& session, Arguments& arguments) {
  QWidget& control = TakeControl(session, arguments);
  auto list = AsList(control);
  if (list) return list;
  throw ScriptError{u"the control has no rows: "_s + QString::number(ControlIdOf(&control))};
}

int TakeRow(const ListControl& list, Arguments& arguments) {
  const int row = arguments.Count(u"ROW");
  if (row < list.RowCount()) return row;
  throw ScriptError{u"no such row: "_s + QString::number(row)};
}

void RunOpen(Session& session, Arguments& arguments) {
  const QString className = arguments.Word(u"CLASS");
  session.dialogs.Open(className, session.engines.CommandHandle(), session.engines.SecondHandle(),
                       arguments);
}

void RunClick(Session& session, Arguments& arguments) {
  QWidget& control = TakeControl(session, arguments);
  arguments.End();
  Click(control);
}

void RunDoubleClick(Session& session, Arguments& arguments) {
  Arguments onCell = arguments;
  QWidget& control = TakeControl(session, arguments);
  if (arguments.AtEnd()) {
    DoubleClick(control);
    return;
  }
  const auto list = TakeList(session, onCell);
  const int row = TakeRow(*list, onCell);
  const int column = onCell.Int(u"COLUMN");
  onCell.End();
  list->DoubleClickCell(row, column);
}

void RunPress(Session& session, Arguments& arguments) {
  QWidget& control = TakeControl(session, arguments);
  const QString key = arguments.Word(u"KEY");
  arguments.End();
  PressKey(control, key);
}

void RunType(Session& session, Arguments& arguments) {
  QWidget& control = TakeControl(session, arguments);
  const QString text = arguments.Word(u"TEXT");
  arguments.End();
  TypeText(control, text);
}

void RunPaste(Session& session, Arguments& arguments) {
  QWidget& control = TakeControl(session, arguments);
  const QString text = arguments.Word(u"TEXT");
  arguments.End();
  PasteText(control, text);
}

bool TakeUp(Arguments& arguments) {
  if (arguments.TakeIf(u"up")) return true;
  if (arguments.TakeIf(u"down")) return false;
  throw ScriptError{u"missing argument: up or down"_s};
}

void RunSpin(Session& session, Arguments& arguments) {
  auto& spin = TakeControlOf<CVynSpinButton>(session, arguments, u"spin button");
  const bool up = TakeUp(arguments);
  bool shift = arguments.TakeIf(u"shift");
  const int times = shift || arguments.AtEnd() ? 1 : arguments.Count(u"TIMES");
  shift = shift || arguments.TakeIf(u"shift");
  arguments.End();
  PressSpin(spin, up, times, shift ? Qt::ShiftModifier : Qt::NoModifier);
}

void RunSlide(Session& session, Arguments& arguments) {
  auto& slider = TakeControlOf<QSlider>(session, arguments, u"slider");
  const int position = arguments.Int(u"POSITION");
  arguments.End();
  MoveSlider(slider, position);
}

void RunChoose(Session& session, Arguments& arguments) {
  const auto list = TakeList(session, arguments);
  const int row = TakeRow(*list, arguments);
  arguments.End();
  list->Choose(row);
}

void RunCell(Session& session, Arguments& arguments) {
  const auto list = TakeList(session, arguments);
  const int row = TakeRow(*list, arguments);
  const int column = arguments.Int(u"COLUMN");
  arguments.End();
  list->ClickCell(row, column);
}

void RunHeader(Session& session, Arguments& arguments) {
  const auto list = TakeList(session, arguments);
  const int column = arguments.Int(u"COLUMN");
  arguments.End();
  list->ClickHeader(column);
}

QPointF TakePoint(const QWidget& control, Arguments& arguments) {
  const double x = arguments.Coordinate(u"X", control.width());
  const double y = arguments.Coordinate(u"Y", control.height());
  return {x, y};
}

QEvent::Type TakeMouseEvent(Arguments& arguments) {
  const QString word = arguments.Word(u"press, move or release");
  if (word == u"press") return QEvent::MouseButtonPress;
  if (word == u"move") return QEvent::MouseMove;
  if (word == u"release") return QEvent::MouseButtonRelease;
  throw ScriptError{u"unknown word: "_s + word};
}

Qt::MouseButton TakeButton(Arguments& arguments) {
  if (arguments.TakeIf(u"right")) return Qt::RightButton;
  arguments.TakeIf(u"left");
  return Qt::LeftButton;
}

void RunMouse(Session& session, Arguments& arguments) {
  QWidget& control = TakeControl(session, arguments);
  const QEvent::Type type = TakeMouseEvent(arguments);
  const QPointF position(TakePoint(control, arguments).toPoint());
  const Qt::MouseButton button = TakeButton(arguments);
  arguments.End();
  const bool moves = type == QEvent::MouseMove;
  if (!moves) session.heldButtons.setFlag(button, type == QEvent::MouseButtonPress);
  SendMouse(control, type, position, moves ? Qt::NoButton : button, session.heldButtons);
}

void RunDrag(Session& session, Arguments& arguments) {
  QWidget& control = TakeControl(session, arguments);
  const QPointF from = TakePoint(control, arguments);
  const QPointF to = TakePoint(control, arguments);
  arguments.End();
  Drag(control, from, to);
}

void RunClose(Session& session, Arguments& arguments) {
  arguments.End();
  session.dialogs.Active().close();
}

void RunWait(Session&, Arguments& arguments) {
  arguments.End();
  Settle();
}

CVynLiveDialog& LiveDialog(const Session& session) {
  CVynDialog& dialog = session.dialogs.Active();
  auto* live = qobject_cast<CVynLiveDialog*>(&dialog);
  if (live != nullptr) return *live;
  throw ScriptError{u"no public operation of "_s + ClassName(dialog)};
}

/// The lists of objects tell what their Cancel would send.
int GetScript(const Session& session, QString& text) {
  auto* list = qobject_cast<CDlgObjectList*>(&session.dialogs.Active());
  return list != nullptr ? list->GetScript(text) : LiveDialog(session).GetScript(text);
}

void CallGetScript(const Session& session) {
  QString text;
  const int result = GetScript(session, text);
  Print(u"script: "_s + QString::number(result) + u' ' + Bare(text));
}

void RunCall(Session& session, Arguments& arguments) {
  const QString operation = arguments.Word(u"operation");
  arguments.End();
  if (operation == u"GetScript") {
    CallGetScript(session);
  } else if (operation == u"Apply") {
    LiveDialog(session).Apply();
  } else if (operation == u"Undo") {
    LiveDialog(session).Undo();
  } else if (operation == u"RegistryKey") {
    Print(u"key: "_s + session.dialogs.Active().RegistryKey());
  } else {
    throw ScriptError{u"unknown operation: "_s + operation};
  }
}

constexpr std::array kCommands = {
    Command{u"open", RunOpen},   Command{u"click", RunClick}, Command{u"dblclick", RunDoubleClick},
    Command{u"press", RunPress}, Command{u"type", RunType},   Command{u"paste", RunPaste},
    Command{u"spin", RunSpin},   Command{u"slide", RunSlide}, Command{u"choose", RunChoose},
    Command{u"row", RunChoose},  Command{u"cell", RunCell},   Command{u"header", RunHeader},
    Command{u"mouse", RunMouse}, Command{u"drag", RunDrag},   Command{u"close", RunClose},
    Command{u"wait", RunWait},   Command{u"call", RunCall},
};

}  // namespace

std::span<const Command> ActingCommands() { return kCommands; }

}  // namespace vyn::drive
