#include "siblings/controls/template_builder.h"

#include <span>

#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QRegularExpression>
#include <QResizeEvent>
#include <QSet>
#include <QStyle>
#include <QStyleOptionGroupBox>

#include "siblings/controls/controls.h"
#include "siblings/controls/object_list_box.h"
#include "siblings/controls/preview.h"
#include "siblings/controls/satellite_list_box.h"

namespace vyn {
namespace {

constexpr int kBottomLineGap = 8;
constexpr int kGridColumnGap = 12;

/// Holds a group box and, above it and inside its frame, the controls that stand in it.
class GroupFrame final : public QWidget {
 public:
  GroupFrame(CVynGroupBox* box, QWidget* parent) : QWidget(parent), box_(box) {
    box_->setParent(this);
    box_->lower();
  }

  /// Puts a check box where the title stands.
  void SetTitleControl(QWidget* control) {
    titleControl_ = control;
    control->setAutoFillBackground(true);
    control->raise();
  }

  void FitContents() {
    QStyleOptionGroupBox option;
    option.initFrom(box_);
    option.rect = QRect(0, 0, 400, 400);
    option.text = box_->title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    const QRect inner =
        style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxContents, box_);
    layout()->setContentsMargins(inner.left() + kPadding, inner.top() + kPadding,
                                 400 - inner.right() + kPadding, 400 - inner.bottom() + kPadding);
  }

  // A minimum width of its own would replace that of its contents.
  QSize sizeHint() const override { return WideEnoughForTitle(QWidget::sizeHint()); }
  QSize minimumSizeHint() const override { return WideEnoughForTitle(QWidget::minimumSizeHint()); }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    box_->setGeometry(QRect({}, event->size()));
    if (titleControl_ != nullptr) titleControl_->setGeometry({{}, titleControl_->sizeHint()});
  }

 private:
  static constexpr int kPadding = 6;

  QSize WideEnoughForTitle(QSize contents) const {
    const QWidget* title = titleControl_ != nullptr ? titleControl_ : box_;
    return contents.expandedTo({title->sizeHint().width() + 2 * kPadding, 0});
  }

  CVynGroupBox* box_;
  QWidget* titleControl_ = nullptr;
};

class Builder {
 public:
  explicit Builder(QWidget* dialog) : dialog_(dialog) {}

  ControlSet Build(const DialogTemplate& dialogTemplate) {
    auto* layout = new QVBoxLayout(dialog_);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    Add(layout, dialogTemplate.content, dialog_);
    // The buttons at the bottom stand off from what the dialog is about.
    layout->itemAt(0)->layout()->setSpacing(kBottomLineGap);
    NameLabelsAndGroups();
    SetTabOrder();
    return std::move(set_);
  }

 private:
  void Add(QBoxLayout* layout, const TemplateItem& item, QWidget* parent) {
    if (item.kind == ControlKind::Stretch) {
      layout->addStretch();
    } else if (item.kind == ControlKind::ScrollBarSpace) {
      layout->addSpacing(ScrollBarWidth());
    } else if (item.indented) {
      auto* line = new QHBoxLayout;
      line->addSpacing(dialog_->style()->pixelMetric(QStyle::PM_IndicatorWidth) + 6);
      layout->addLayout(line);
      TemplateItem plain = item;
      plain.indented = false;
      Add(line, plain, parent);
    } else if (QLayout* arranged = MakeArrangement(item, parent)) {
      layout->addLayout(arranged);
    } else {
      layout->addWidget(MakeControl(item, parent));
    }
  }

  /// The layout of an arrangement with its children; null for a control.
  QLayout* MakeArrangement(const TemplateItem& item, QWidget* parent) {
    if (item.kind == ControlKind::Grid) return MakeGrid(item, parent);
    if (item.kind != ControlKind::Row && item.kind != ControlKind::Column) return nullptr;
    const bool isRow = item.kind == ControlKind::Row;
    auto* box = new QBoxLayout(isRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    if (item.tight) box->setSpacing(0);
    AddChildren(box, item, parent);
    return box;
  }

  void AddChildren(QBoxLayout* layout, const TemplateItem& item, QWidget* parent) {
    for (const TemplateItem& child : item.children) Add(layout, child, parent);
  }

  QGridLayout* MakeGrid(const TemplateItem& item, QWidget* parent) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kGridColumnGap);
    for (int row = 0; row < static_cast<int>(item.children.size()); ++row) {
      int column = 0;
      for (const TemplateItem& child : item.children[row].children) {
        auto* cell = new QHBoxLayout;
        Add(cell, child, parent);
        grid->addLayout(cell, row, column);
        // The first column holds the rows' labels, the others are centred under their headings.
        const auto side = item.form ? Qt::AlignLeft : Qt::AlignHCenter;
        if (column++ > 0) grid->setAlignment(cell, side | Qt::AlignVCenter);
      }
    }
    if (item.form) ArrangeAsForm(*grid, item);
    return grid;
  }

  void ArrangeAsForm(QGridLayout& grid, const TemplateItem& item) {
    grid.setSpacing(dialog_->style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    grid.setColumnMinimumWidth(0, WidthOf(dialog_, item.widthChars));
    grid.setColumnStretch(grid.columnCount(), 1);
  }

  QWidget* MakeControl(const TemplateItem& item, QWidget* parent) {
    if (item.kind == ControlKind::Group) return MakeGroup(item, parent);
    QWidget* widget = NewWidget(item, parent);
    if (item.kind == ControlKind::Radio) {
      JoinRadioGroup(item.id, static_cast<QAbstractButton*>(widget));
    }
    Register(item, widget);
    return widget;
  }

  QWidget* MakeGroup(const TemplateItem& item, QWidget* parent) {
    auto* box = new CVynGroupBox(item.text);
    auto* frame = new GroupFrame(box, parent);
    Register(item, box);
    auto* layout = new QVBoxLayout(frame);
    auto children = std::span(item.children);
    if (item.titled) {
      if (item.text.isEmpty()) box->setTitle(QStringLiteral(" "));  // keeps the title's room
      frame->SetTitleControl(MakeControl(children.front(), frame));
      children = children.subspan(1);
    }
    for (const TemplateItem& child : children) Add(layout, child, frame);
    frame->FitContents();
    return frame;
  }

  QWidget* NewWidget(const TemplateItem& item, QWidget* parent) {
    switch (item.kind) {
      case ControlKind::Check:
        return new CVynCheckBox(item.text, parent);
      case ControlKind::Radio:
        return NewRadio(item, parent);
      case ControlKind::Static:
        return NewStatic(item, parent);
      case ControlKind::Button:
        return NewButton(item, parent);
      case ControlKind::Edit:
        return NewEdit(item, parent);
      case ControlKind::Spin:
        return NewSpin(parent);
      case ControlKind::Slider:
        return NewSlider(item, parent);
      case ControlKind::List:
        return NewList<CVynListBox>(item, parent);
      case ControlKind::SatelliteList:
        return NewList<CSatelliteListBox>(item, parent);
      case ControlKind::ObjectList:
        return NewObjectList(item, parent);
      case ControlKind::Combo:
        return NewCombo(item, parent);
      case ControlKind::Progress:
        return NewProgress(item, parent);
      case ControlKind::Preview:
        return NewPreview(item, parent);
      default:
        qFatal("no widget for the kind of control %d", item.id);
    }
  }

  static QWidget* NewRadio(const TemplateItem& item, QWidget* parent) {
    auto* radio = new CVynRadioButton(item.text, parent);
    radio->setAutoExclusive(false);  // its button group does that
    return radio;
  }

  static int ScrollBarWidth() {
    const QStyle* style = QApplication::style();
    return style->pixelMetric(QStyle::PM_ScrollBarExtent) +
           style->pixelMetric(QStyle::PM_DefaultFrameWidth);
  }

  static int WidthOf(const QWidget* widget, int chars) {
    return widget->fontMetrics().averageCharWidth() * chars;
  }

  static QWidget* NewStatic(const TemplateItem& item, QWidget* parent) {
    auto* label = new CVynStatic(item.text, parent);
    if (item.widthChars > 0) {
      label->setFixedWidth(WidthOf(label, item.widthChars));
      label->setAlignment(Qt::AlignCenter);
    }
    return label;
  }

  static QWidget* NewSlider(const TemplateItem& item, QWidget* parent) {
    auto* slider = new QSlider(Qt::Horizontal, parent);
    slider->setMinimumWidth(WidthOf(slider, item.widthChars));
    return slider;
  }

  static QWidget* NewCombo(const TemplateItem& item, QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->setMinimumWidth(WidthOf(combo, item.widthChars));
    return combo;
  }

  static QWidget* NewProgress(const TemplateItem& item, QWidget* parent) {
    auto* bar = new QProgressBar(parent);
    bar->setRange(0, 100);
    bar->setMinimumWidth(WidthOf(bar, item.widthChars));
    return bar;
  }

  /// A square, of an even number of pixels so that it has a middle.
  static QWidget* NewPreview(const TemplateItem& item, QWidget* parent) {
    auto* preview = new CVynPreview(parent);
    const int side = WidthOf(preview, item.widthChars) / 2 * 2;
    preview->setFixedSize(side, side);
    return preview;
  }

  template <class List>
  static QWidget* NewList(const TemplateItem& item, QWidget* parent) {
    auto* list = new List(parent);
    constexpr int kUsualRows = 14;
    const int rows = item.heightRows > 0 ? item.heightRows : kUsualRows;
    const QSize size(WidthOf(list, item.widthChars), rows * (list->fontMetrics().height() + 6));
    list->setMinimumSize(size);
    if (item.heightRows > 0) list->setFixedSize(size);
    return list;
  }

  /// Its template says how large it comes up; the least size follows from its columns.
  static QWidget* NewObjectList(const TemplateItem& item, QWidget* parent) {
    auto* list = new CVynListBoxAObj(parent);
    const int rowHeight = list->fontMetrics().height() + 6;
    list->SetPreferredSize({WidthOf(list, item.widthChars), item.heightRows * rowHeight});
    return list;
  }

  static QWidget* NewButton(const TemplateItem& item, QWidget* parent) {
    auto* button = new CVynButton(item.text, parent);
    if (item.compact) {
      // Whole characters, so that an "on" and the "off" below it are equally wide.
      constexpr int kButtonMargin = 8;
      const QFontMetrics metrics = button->fontMetrics();
      const int chars = (metrics.horizontalAdvance(item.text) - 1) / metrics.averageCharWidth() + 1;
      button->setFixedWidth(WidthOf(button, chars) + 2 * kButtonMargin);
    }
    if (item.widthChars > 0) button->setFixedWidth(WidthOf(button, item.widthChars));
    return button;
  }

  QWidget* NewEdit(const TemplateItem& item, QWidget* parent) {
    lastEdit_ = new CVynEdit(parent);
    const int digit = lastEdit_->fontMetrics().horizontalAdvance(QLatin1Char('0'));
    lastEdit_->setFixedWidth(digit * (item.widthChars + 2));
    lastEdit_->setReadOnly(item.readOnly);
    return lastEdit_;
  }

  QWidget* NewSpin(QWidget* parent) {
    auto* spin = new CVynSpinButton(parent);
    if (lastEdit_ != nullptr) spin->SetBuddy(lastEdit_);
    return spin;
  }

  void Register(const TemplateItem& item, QWidget* widget) {
    if (item.id == kNoControlId) return;
    if (item.kind != ControlKind::Radio) radioGroup_ = nullptr;
    widget->setProperty("controlId", item.id);
    widget->setProperty("controlKind", static_cast<int>(item.kind));
    widget->setVisible(!item.hidden);
    if (!item.accessibleName.isEmpty()) widget->setAccessibleName(item.accessibleName);
    set_.byId.insert(item.id, widget);
    set_.inOrder.append(widget);
  }

  void JoinRadioGroup(int id, QAbstractButton* radio) {
    if (radioGroup_ == nullptr) {
      radioGroup_ = new QButtonGroup(dialog_);
      set_.radioGroups.insert(id, radioGroup_);
    }
    radioGroup_->addButton(radio, static_cast<int>(radioGroup_->buttons().size()));
  }

  void NameLabelsAndGroups() {
    QSet<const QWidget*> named;
    for (qsizetype i = 0; i < set_.inOrder.size(); ++i) {
      QWidget* next = NextFocusable(i);
      if (next == nullptr) continue;
      auto* label = qobject_cast<CVynStatic*>(set_.inOrder[i]);
      const bool isLabel = label != nullptr && (next == set_.inOrder[i + 1] || HasMnemonic(label));
      if (isLabel) label->setBuddy(next);
      if (isLabel) named.insert(next);
      if (auto* box = qobject_cast<CVynGroupBox*>(set_.inOrder[i])) box->SetFirstControl(next);
    }
    for (qsizetype i = 0; i < set_.inOrder.size(); ++i) {
      const auto* box = qobject_cast<CVynGroupBox*>(set_.inOrder[i]);
      QWidget* first = box != nullptr ? NextFocusable(i) : nullptr;
      if (first != nullptr && !named.contains(first)) NameAfterGroup(*box, first);
    }
  }

  /// A control that has no text, label or name of its own is what its group's title says.
  static void NameAfterGroup(const CVynGroupBox& box, QWidget* control) {
    if (qobject_cast<QAbstractButton*>(control) || !control->accessibleName().isEmpty()) return;
    static const QRegularExpression decoration(QStringLiteral("\\(&.\\)|[：:]$"));
    control->setAccessibleName(box.title().remove(decoration).trimmed());
  }

  static bool HasMnemonic(const CVynStatic* label) {
    return label->text().contains(QLatin1Char('&'));
  }

  QWidget* NextFocusable(qsizetype index) const {
    for (qsizetype i = index + 1; i < set_.inOrder.size(); ++i) {
      if (set_.inOrder[i]->focusPolicy() & Qt::TabFocus) return set_.inOrder[i];
    }
    return nullptr;
  }

  void SetTabOrder() {
    for (qsizetype i = 1; i < set_.inOrder.size(); ++i) {
      QWidget::setTabOrder(set_.inOrder[i - 1], set_.inOrder[i]);
    }
  }

  QWidget* dialog_;
  ControlSet set_;
  QButtonGroup* radioGroup_ = nullptr;
  CVynEdit* lastEdit_ = nullptr;
};

}  // namespace

ControlSet BuildControls(const DialogTemplate& dialogTemplate, QWidget* dialog) {
  return Builder(dialog).Build(dialogTemplate);
}

}  // namespace vyn
