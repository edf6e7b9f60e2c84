#include "core_link/dialog_base.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace vyn {

CVynDialogBase::~CVynDialogBase() = default;

void CVynDialogBase::DrawCheckMark(QPainter& painter, const QWidget* owner, const QRect& area,
                                   bool checked, bool enabled) {
  const QStyle* style = owner->style();
  const QSize size(style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, owner),
                   style->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, owner));
  QStyleOptionButton option;
  option.initFrom(owner);
  option.rect = QStyle::alignedRect(owner->layoutDirection(), Qt::AlignCenter, size, area);
  option.state.setFlag(QStyle::State_Enabled, enabled);
  // Not every style greys a mark by its state.
  if (!enabled) option.palette.setCurrentColorGroup(QPalette::Disabled);
  option.state.setFlag(QStyle::State_HasFocus, false);
  option.state |= checked ? QStyle::State_On : QStyle::State_Off;
  style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, owner);
}

int CVynDialogBase::IconSelector(const QWidget* control) {
  constexpr int kMiddleGrey = 128;
  return control->palette().color(QPalette::Window).lightness() >= kMiddleGrey ? 1 : 0;
}

}  // namespace vyn
