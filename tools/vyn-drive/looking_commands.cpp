// Commands that print what a person sees.
#include <algorithm>
#include <array>

#include <QDir>
#include <QLineEdit>
#include <QPixmap>

#include "siblings/controls/controls.h"
#include "tools/vyn-drive/commands.h"
#include "tools/vyn-drive/control_facts.h"
#include "tools/vyn-drive/list_control.h"
#include "tools/vyn-drive/output.h"
#include "tools/vyn-drive/session.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

/// The number of a control as it was asked for, and the control. The dialog itself is none.
struct Shown {
  QString id;
  QWidget& control;
};

Shown TakeControl(Session& session, Arguments& arguments) {
  const int id = arguments.Int(u"ID");
  if (id == 0) throw ScriptError{u"not a control: 0"_s};
  return {QString::number(id), session.dialogs.Control(id)};
}

[[noreturn]] void ThrowHasNo(const Shown& shown, QStringView what) {
  throw ScriptError{u"control "_s + shown.id + u" has no " + what};
}

std::unique_ptr<ListControl> ListOf(const Shown& shown) {
  auto list = AsList(shown.control);
  if (!list) ThrowHasNo(shown, u"rows");
  return list;
}

void RunShow(Session& session, Arguments& arguments) {
  do {
    Print(DescribeControl(TakeControl(session, arguments).control));
  } while (!arguments.AtEnd());
}

void RunRange(Session& session, Arguments& arguments) {
  const Shown shown = TakeControl(session, arguments);
  arguments.End();
  const auto range = RangeOf(shown.control);
  if (!range) ThrowHasNo(shown, u"range");
  Print(u"range %1: %2 %3"_s.arg(shown.id).arg(range->first).arg(range->second));
}

void RunSize(Session& session, Arguments& arguments) {
  const Shown shown = TakeControl(session, arguments);
  arguments.End();
  Print(u"size %1: %2 %3"_s.arg(shown.id).arg(shown.control.width()).arg(shown.control.height()));
}

void RunLimit(Session& session, Arguments& arguments) {
  const Shown shown = TakeControl(session, arguments);
  arguments.End();
  const auto* edit = qobject_cast<const QLineEdit*>(&shown.control);
  if (edit == nullptr) ThrowHasNo(shown, u"text limit");
  Print(u"limit %1: %2"_s.arg(shown.id).arg(edit->maxLength()));
}

void RunList(Session& session, Arguments& arguments) {
  const Shown shown = TakeControl(session, arguments);
  arguments.End();
  const auto list = ListOf(shown);
  Print(u"list %1: %2 rows, selected %3"_s.arg(shown.id)
            .arg(list->RowCount())
            .arg(list->SelectedRow()));
  for (int row = 0; row < list->RowCount(); ++row) {
    Print(u"  "_s + QString::number(row) + u": " + Quoted(list->RowText(row)));
  }
}

void RunCells(Session& session, Arguments& arguments) {
  const Shown shown = TakeControl(session, arguments);
  const int first = arguments.Count(u"FIRST");
  const int count = arguments.Count(u"COUNT");
  arguments.End();
  const auto list = ListOf(shown);
  // A list may have fewer rows than are asked for.
  const int shownCount = std::min(count, std::max(0, list->RowCount() - first));
  for (int row = first; row < first + shownCount; ++row) {
    Print(u"  "_s + QString::number(row) + u": " + list->Cells(row).join(u'|'));
  }
}

void RunHeaders(Session& session, Arguments& arguments) {
  const Shown shown = TakeControl(session, arguments);
  arguments.End();
  QStringList titles = ListOf(shown)->Headers();
  for (QString& title : titles) title = Quoted(title);
  Print(u"headers "_s + shown.id + u": " + titles.join(u'|'));
}

/// The number of the control that a widget is or stands in, 0 for the dialog itself.
int ControlAround(const QWidget* widget) {
  while (widget != nullptr && ControlIdOf(widget) < 0) widget = widget->parentWidget();
  return widget != nullptr ? ControlIdOf(widget) : 0;
}

void RunFocus(Session& session, Arguments& arguments) {
  arguments.End();
  Print(u"focus: "_s + QString::number(ControlAround(session.dialogs.Active().focusWidget())));
}

void RunTooltip(Session& session, Arguments& arguments) {
  const Shown shown = TakeControl(session, arguments);
  arguments.End();
  Print(u"tooltip "_s + shown.id + u": " + Quoted(shown.control.toolTip()));
}

void RunProgress(Session& session, Arguments& arguments) {
  arguments.End();
  Print(session.importProgress.Report());
}

void RunCounts(Session& session, Arguments& arguments) {
  arguments.End();
  const auto counts = session.engines.TakeCounts();
  Print(u"sent: %1 queries, %2 changes"_s.arg(counts.queries).arg(counts.changes));
}

void RunShot(Session& session, Arguments& arguments) {
  const QString name = arguments.Word(u"NAME");
  arguments.End();
  const QDir folder(session.ShotsFolder());
  const QString file = folder.filePath(name + u".png"_s);
  if (!folder.mkpath(u"."_s) || !session.dialogs.Active().grab().save(file)) {
    throw ScriptError{u"cannot save the picture "_s + file};
  }
  Print(u"shot: "_s + name);
}

constexpr std::array kCommands = {
    Command{u"show", RunShow},       Command{u"range", RunRange},
    Command{u"size", RunSize},       Command{u"limit", RunLimit},
    Command{u"list", RunList},       Command{u"cells", RunCells},
    Command{u"headers", RunHeaders}, Command{u"focus", RunFocus},
    Command{u"tooltip", RunTooltip}, Command{u"progress", RunProgress},
    Command{u"counts", RunCounts},   Command{u"shot", RunShot},
};

}  // namespace

std::span<const Command> LookingCommands() { return kCommands; }

}  // namespace vyn::drive
