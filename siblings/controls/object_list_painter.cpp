#include "siblings/controls/object_list_painter.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QWidget>

#include "core_link/dialog_base.h"
#include "resources/pictures.h"
#include "siblings/controls/object_list_layout.h"

namespace vyn {
namespace {

constexpr int kImageGap = 2;

QStyle::State TitleState(const tagHeaderDataItem& column, const TitleLook& look, bool enabled) {
  QStyle::State state = QStyle::State_Horizontal;
  state.setFlag(QStyle::State_Enabled, enabled);
  if (column.hasAllButton == 0) return state;
  state.setFlag(QStyle::State_MouseOver, enabled && look.hovered);
  return state | (look.pressed ? QStyle::State_Sunken : QStyle::State_Raised);
}

QStringList TitleLines(const tagHeaderDataItem& column) {
  QStringList lines = BrokenTitle(column.text, column.titleLines);
  if (column.key != 0) lines.append(u'(' + QString(QChar(column.key)) + u')');
  return lines;
}

}  // namespace

void ObjectListPainter::DrawTitle(const tagHeaderDataItem& column, const QRect& area,
                                  const TitleLook& look) {
  QStyleOptionHeader option;
  option.initFrom(&list_);
  option.rect = area;
  option.state = TitleState(column, look, list_.isEnabled());
  const bool isButton = column.hasAllButton != 0;
  if (isButton) {
    list_.style()->drawPrimitive(QStyle::PE_PanelButtonBevel, &option, &painter_, &list_);
  } else {
    list_.style()->drawControl(QStyle::CE_HeaderSection, &option, &painter_, &list_);
  }
  DrawTitleText(column, area, isButton && look.pressed);
  if (look.current) DrawFocus(area.adjusted(2, 2, -2, -2));
}

void ObjectListPainter::DrawEmptyTitle(const QRect& area) {
  QStyleOptionHeader option;
  option.initFrom(&list_);
  option.rect = area;
  list_.style()->drawControl(QStyle::CE_HeaderEmptyArea, &option, &painter_, &list_);
}

void ObjectListPainter::DrawTitleText(const tagHeaderDataItem& column, const QRect& area,
                                      bool shifted) {
  painter_.setFont(list_.font());
  painter_.setPen(list_.palette().color(QPalette::ButtonText));
  const QFontMetrics metrics(list_.font());
  const int inset = column.padding / 2;
  QRect inner = area.adjusted(column.titleCentered != 0 ? 0 : inset, 0, 0, 0);
  if (shifted) inner.translate(1, 1);
  const int side = column.titleCentered != 0 ? Qt::AlignHCenter : Qt::AlignLeft;
  painter_.drawText(inner, side | Qt::AlignVCenter, TitleLines(column).join(u'\n'));
}

void ObjectListPainter::DrawRow(const QRect& area, bool odd, bool selected) {
  const QPalette& palette = list_.palette();
  const QPalette::ColorGroup group = !list_.isEnabled() ? QPalette::Disabled
                                     : list_.hasFocus() ? QPalette::Active
                                                        : QPalette::Inactive;
  const QPalette::ColorRole role = selected ? QPalette::Highlight
                                   : odd    ? QPalette::AlternateBase
                                            : QPalette::Base;
  painter_.fillRect(area, palette.color(group, role));
}

void ObjectListPainter::DrawCell(const tagHeaderDataItem& column, const tagDataItem& cell,
                                 const QRect& area, const CellLook& look) {
  const bool enabled = list_.isEnabled() && cell.status != kCellDisabled;
  const QPalette::ColorGroup group = enabled ? QPalette::Active : QPalette::Disabled;
  const QPalette::ColorRole role =
      look.selected && enabled ? QPalette::HighlightedText : QPalette::Text;
  painter_.setPen(list_.palette().color(group, role));
  switch (column.kind) {
    case ObjectColumnKind::Text:
      DrawText(cell.text, area.adjusted(column.padding / 2, 0, -column.padding / 2, 0),
               column.cellsCentered != 0);
      break;
    case ObjectColumnKind::Indicator:
      DrawPicture(painter_, column.bitmap, cell.value,
                  QRectF(area).adjusted(0, kImageGap, 0, -kImageGap));
      break;
    case ObjectColumnKind::Check:
      CVynDialogBase::DrawCheckMark(painter_, &list_, area, cell.value != 0, enabled);
      break;
    case ObjectColumnKind::Choice:
      DrawChoice(column, cell, area);
      break;
  }
  if (look.current) DrawFocus(area.adjusted(1, 1, -1, -1));
}

void ObjectListPainter::DrawText(const QString& text, const QRect& area, bool centered) {
  painter_.setFont(cellFont_);
  const QString fitting = QFontMetrics(cellFont_).elidedText(text, Qt::ElideRight, area.width());
  painter_.drawText(area, Qt::AlignVCenter | (centered ? Qt::AlignHCenter : Qt::AlignLeft),
                    fitting);
}

/// Framed, since a click takes the next option.
void ObjectListPainter::DrawChoice(const tagHeaderDataItem& column, const tagDataItem& cell,
                                   const QRect& area) {
  const QPen textPen = painter_.pen();
  painter_.setPen(list_.palette().color(QPalette::Mid));
  painter_.drawRect(area.adjusted(3, 2, -4, -3));
  painter_.setPen(textPen);
  DrawText(column.options.value(cell.value), area, true);
}

void ObjectListPainter::DrawFocus(const QRect& area) {
  QStyleOptionFocusRect option;
  option.initFrom(&list_);
  option.rect = area;
  option.state |= QStyle::State_KeyboardFocusChange;
  list_.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter_, &list_);
}

}  // namespace vyn
