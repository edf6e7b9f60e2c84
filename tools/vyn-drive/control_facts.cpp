#include "tools/vyn-drive/control_facts.h"

#include <array>

#include "siblings/controls/controls.h"
#include "tools/vyn-drive/list_control.h"
#include "tools/vyn-drive/output.h"

namespace vyn::drive {
namespace {

using namespace Qt::StringLiterals;

/// In the order of ControlKind.
constexpr std::array<QStringView, 14> kKindWords = {
    u"group",  u"check", u"radio", u"static",   u"button",  u"edit",       u"spin",
    u"slider", u"list",  u"combo", u"progress", u"preview", u"objectlist", u"satellitelist"};
static_assert(kKindWords.size() == static_cast<int>(ControlKind::Column));

QString TextOf(const QWidget& control) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
  if (const auto* box = qobject_cast<const QGroupBox*>(&control)) return box->title();
  if (const auto* edit = qobject_cast<const QLineEdit*>(&control)) return edit->text();
  if (const auto* combo = qobject_cast<const QComboBox*>(&control)) return combo->currentText();
  return {};
}

QString ValueOf(QWidget& control) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
    return button->isCheckable() ? QString::number(button->isChecked()) : u"-"_s;
  }
  if (const auto* slider = qobject_cast<const QAbstractSlider*>(&control)) {
    return QString::number(slider->value());
  }
  if (const auto* bar = qobject_cast<const QProgressBar*>(&control)) {
    return QString::number(bar->value());
  }
  const auto list = AsList(control);
  return list ? QString::number(list->SelectedRow()) : u"-"_s;
}

bool IsReadOnly(const QWidget& control) {
  const auto* edit = qobject_cast<const QLineEdit*>(&control);
  return edit != nullptr && edit->isReadOnly();
}

}  // namespace

QString DescribeControl(QWidget& control) {
  return u"control "_s + QString::number(ControlIdOf(&control)) + u": " +
         kKindWords[static_cast<int>(ControlKindOf(&control))] + u' ' + Quoted(TextOf(control)) +
         u' ' + ValueOf(control) + (control.isEnabled() ? u" enabled"_s : u" disabled"_s) +
         (IsReadOnly(control) ? u" readonly"_s : QString()) +
         (control.isVisibleTo(control.window()) ? QString() : u" hidden"_s);
}

std::optional<std::pair<int, int>> RangeOf(const QWidget& control) {
  if (const auto* slider = qobject_cast<const QAbstractSlider*>(&control)) {
    return std::pair(slider->minimum(), slider->maximum());
  }
  if (const auto* bar = qobject_cast<const QProgressBar*>(&control)) {
    return std::pair(bar->minimum(), bar->maximum());
  }
  const auto* spin = qobject_cast<const CVynSpinButton*>(&control);
  return spin != nullptr ? spin->Range() : std::nullopt;
}

}  // namespace vyn::drive
