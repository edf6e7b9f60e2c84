#include "siblings/controls/satellite_list_box.h"

#include <algorithm>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include "core_link/dialog_base.h"
#include "core_link/window_message.h"

namespace vyn {
namespace {

constexpr SatelliteToggle kToggles[] = {SatelliteToggle::Shown,    SatelliteToggle::Name,
                                        SatelliteToggle::Japanese, SatelliteToggle::English,
                                        SatelliteToggle::Number,   SatelliteToggle::Orbit};

struct ToggleKey {
  int key;
  SatelliteToggle toggle;
};
constexpr ToggleKey kKeys[] = {
    {Qt::Key_Space, SatelliteToggle::Shown}, {Qt::Key_V, SatelliteToggle::Shown},
    {Qt::Key_N, SatelliteToggle::Name},      {Qt::Key_J, SatelliteToggle::Japanese},
    {Qt::Key_E, SatelliteToggle::English},   {Qt::Key_M, SatelliteToggle::Number},
    {Qt::Key_O, SatelliteToggle::Orbit},
};

bool IsOn(const CCheckSatellite& record, SatelliteToggle toggle) {
  switch (toggle) {
    case SatelliteToggle::Shown:
      return record.shown;
    case SatelliteToggle::Name:
      return record.nameShown;
    case SatelliteToggle::Japanese:
      return record.japanese;
    case SatelliteToggle::English:
      return !record.japanese;
    case SatelliteToggle::Number:
      return record.numberShown;
    case SatelliteToggle::Orbit:
      return record.orbitShown;
  }
  return false;
}

bool IsUsable(const CCheckSatellite& record, SatelliteToggle toggle) {
  const bool isLanguage = toggle == SatelliteToggle::Japanese || toggle == SatelliteToggle::English;
  return toggle == SatelliteToggle::Shown || (record.shown && (!isLanguage || record.nameShown));
}

/// Returns whether the record changed: choosing the language that is chosen already is no change.
bool Change(CCheckSatellite& record, SatelliteToggle toggle) {
  if (!IsUsable(record, toggle)) return false;
  switch (toggle) {
    case SatelliteToggle::Shown:
      record.shown = !record.shown;
      return true;
    case SatelliteToggle::Name:
      record.nameShown = !record.nameShown;
      return true;
    case SatelliteToggle::Number:
      record.numberShown = !record.numberShown;
      return true;
    case SatelliteToggle::Orbit:
      record.orbitShown = !record.orbitShown;
      return true;
    case SatelliteToggle::Japanese:
      return std::exchange(record.japanese, 1) != 1;
    case SatelliteToggle::English:
      return std::exchange(record.japanese, 0) != 0;
  }
  return false;
}

/// Draws a row: name, number text and the toggles under their headings.
class RowDelegate final : public QStyledItemDelegate {
 public:
  RowDelegate(CSatelliteListBox* list, int baseUnit)
      : QStyledItemDelegate(list), list_(list), baseUnit_(baseUnit) {}

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {0, option.fontMetrics.height() + baseUnit_};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem background = option;
    background.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &background, painter,
                                              list_);
    const CCheckSatellite& record = list_->RecordOfRow(index.row());
    DrawTexts(*painter, option, record, list_->ToggleRect(index.row(), kToggles[0]).left());
    for (const SatelliteToggle toggle : kToggles) {
      CVynDialogBase::DrawCheckMark(*painter, list_, list_->ToggleRect(index.row(), toggle),
                                    IsOn(record, toggle), IsUsable(record, toggle));
    }
    if (option.state & QStyle::State_HasFocus) DrawFocus(*painter, option);
  }

 private:
  void DrawTexts(QPainter& painter, const QStyleOptionViewItem& option,
                 const CCheckSatellite& record, int right) const {
    const bool selected = option.state & QStyle::State_Selected;
    painter.setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    const QRect area(option.rect.left() + baseUnit_, option.rect.top(),
                     right - option.rect.left() - 2 * baseUnit_, option.rect.height());
    const int nameWidth = area.width() * 3 / 5;
    DrawText(painter, option, area.adjusted(0, 0, nameWidth - area.width() - baseUnit_, 0),
             record.name);
    DrawText(painter, option, area.adjusted(nameWidth, 0, 0, 0), record.numberText);
  }

  static void DrawText(QPainter& painter, const QStyleOptionViewItem& option, const QRect& area,
                       const QString& text) {
    painter.drawText(area, Qt::AlignVCenter | Qt::AlignLeft,
                     option.fontMetrics.elidedText(text, Qt::ElideRight, area.width()));
  }

  void DrawFocus(QPainter& painter, const QStyleOptionViewItem& option) const {
    QStyleOptionFocusRect focus;
    focus.initFrom(list_);
    focus.rect = option.rect;
    list_->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, list_);
  }

  CSatelliteListBox* list_;
  int baseUnit_;
};

}  // namespace

CSatelliteListBox::CSatelliteListBox(QWidget* parent) : CVynListBox(parent) {
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // so that the headings' places never move
}

void CSatelliteListBox::Attach(QWidget* owner, std::vector<CCheckSatellite>* records,
                               QEvent::Type changedMessage, int baseUnit,
                               const std::array<QWidget*, kSatelliteToggleCount>& headings) {
  owner_ = owner;
  records_ = records;
  changedMessage_ = changedMessage;
  headings_ = headings;
  setItemDelegate(new RowDelegate(this, baseUnit));
}

void CSatelliteListBox::SetRows(const std::vector<int>& recordIndexes) {
  clear();
  for (const int index : recordIndexes) {
    auto* item = new QListWidgetItem((*records_)[index].name, this);  // for screen readers
    item->setData(Qt::UserRole, index);
  }
}

/// The current row alone is not enough: the list gets one with the focus, nothing being selected.
int CSatelliteListBox::SelectedRow() const { return selectedItems().isEmpty() ? -1 : currentRow(); }

CCheckSatellite& CSatelliteListBox::RecordOfRow(int row) {
  return (*records_)[item(row)->data(Qt::UserRole).toInt()];
}

QRect CSatelliteListBox::ToggleRect(int row, SatelliteToggle toggle) const {
  const QWidget* heading = headings_[static_cast<int>(toggle)];
  const QRect rowRect = visualItemRect(item(row));
  const int inset = rowRect.height() / 10;
  const int headingLeft = viewport()->mapFromGlobal(heading->mapToGlobal(QPoint())).x();
  const int left = headingLeft - 2 + inset;
  const int right = headingLeft + heading->width() - inset - 2;
  return {left, rowRect.top(), right - left, rowRect.height()};
}

std::optional<SatelliteToggle> CSatelliteListBox::ToggleUnder(int headingId) const {
  const auto found = std::ranges::find(headings_, headingId, ControlIdOf);
  if (found == headings_.end()) return std::nullopt;
  return kToggles[found - headings_.begin()];
}

bool CSatelliteListBox::ToggleAt(const QPoint& point) {
  const int row = indexAt(point).row();
  if (row < 0) return false;
  for (const SatelliteToggle toggle : kToggles) {
    if (ToggleRect(row, toggle).contains(point)) return Toggle(row, toggle);
  }
  return false;
}

bool CSatelliteListBox::Toggle(int row, SatelliteToggle toggle) {
  if (!Change(RecordOfRow(row), toggle)) return false;
  CVynMessage changed(changedMessage_, 0, nullptr);
  QApplication::sendEvent(owner_, &changed);
  viewport()->update(visualItemRect(item(row)));
  return true;
}

void CSatelliteListBox::mousePressEvent(QMouseEvent* event) {
  lastClickChanged_ = event->button() == Qt::LeftButton && ToggleAt(event->position().toPoint());
  if (!lastClickChanged_) CVynListBox::mousePressEvent(event);
}

/// The second press of a double click on a toggle toggles again.
void CSatelliteListBox::mouseDoubleClickEvent(QMouseEvent* event) {
  if (lastClickChanged_) {
    mousePressEvent(event);
  } else {
    CVynListBox::mouseDoubleClickEvent(event);
  }
}

/// A toggle key that changes nothing does not fall through to the search for a name.
void CSatelliteListBox::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = !(event->modifiers() & (Qt::AltModifier | Qt::ControlModifier));
  const auto found = std::ranges::find(kKeys, event->key(), &ToggleKey::key);
  if (isPlain && found != std::end(kKeys) && SelectedRow() >= 0) {
    Toggle(SelectedRow(), found->toggle);
  } else {
    CVynListBox::keyPressEvent(event);
  }
}

}  // namespace vyn
