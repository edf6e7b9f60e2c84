// The language in which dialog templates are written: one nested declaration per dialog, shaped
// like the screen. Plain data; siblings/controls builds widgets from it.
#pragma once

#include <vector>

#include <QString>

namespace vyn {

enum class ControlKind {
  // Controls, found by number.
  Group,
  Check,
  Radio,
  Static,
  Button,
  Edit,
  Spin,
  Slider,
  List,
  Combo,
  Progress,
  Preview,
  ObjectList,
  SatelliteList,
  // Arrangement only.
  Column,
  Row,
  Grid,
  Stretch,
  ScrollBarSpace,
};

/// The number of a text that no one asks for.
inline constexpr int kNoControlId = -1;

/// One control or arrangement of a dialog template. Radio buttons that follow one another, with no
/// other control between, form one group, named by its first button. A static is the label, with
/// its mnemonic, of the first control behind it that takes the keyboard focus.
struct TemplateItem {
  ControlKind kind = ControlKind::Column;
  int id = 0;
  QString text;
  std::vector<TemplateItem> children;
  int widthChars = 0;     ///< edits and lists: width in average characters of the font; forms:
                          ///< least width of the labels
  int heightRows = 0;     ///< lists: rows that are seen without scrolling
  bool indented = false;  ///< moved right by the width of a check mark
  bool hidden = false;
  bool readOnly = false;
  bool tight = false;      ///< an arrangement without gaps
  bool form = false;       ///< a grid whose columns begin at the left instead of being centred
  bool compact = false;    ///< a button no wider than its text needs
  bool titled = false;     ///< a group whose first child, a check box, stands in its title
  QString accessibleName;  ///< for a control without a text or label of its own
};

struct DialogTemplate {
  int number = 0;
  QString caption;
  TemplateItem content;
};

/// The template with this number. Asking for one that does not exist is an error of the program.
const DialogTemplate& FindDialogTemplate(int number);

/// The controls of a template in the order of its declaration, which is the tab order;
/// arrangements are left out.
std::vector<const TemplateItem*> ControlsOf(const DialogTemplate& dialog);

// The buttons that every dialog has.
inline constexpr int kOkButton = 1;
inline constexpr int kCancelButton = 2;
inline constexpr int kHelpButton = 57670;

// The words in which templates are written.
namespace layout {

template <class... Items>
TemplateItem arranged(ControlKind kind, Items... items) {
  TemplateItem item{kind};
  (item.children.push_back(std::move(items)), ...);
  return item;
}
template <class... Items>
TemplateItem column(Items... items) {
  return arranged(ControlKind::Column, std::move(items)...);
}
template <class... Items>
TemplateItem row(Items... items) {
  return arranged(ControlKind::Row, std::move(items)...);
}
/// Each child is a row whose children stand in the grid's columns.
template <class... Items>
TemplateItem grid(Items... items) {
  return arranged(ControlKind::Grid, std::move(items)...);
}
/// A grid of labels and what they name, each column beginning at the left.
template <class... Items>
TemplateItem form(Items... items) {
  TemplateItem item = grid(std::move(items)...);
  item.form = true;
  return item;
}
template <class... Items>
TemplateItem group(int id, const char16_t* text, Items... items) {
  TemplateItem item = column(std::move(items)...);
  item.kind = ControlKind::Group;
  item.id = id;
  item.text = QString::fromUtf16(text);
  return item;
}

TemplateItem control(ControlKind kind, int id, const char16_t* text = u"");
TemplateItem check(int id, const char16_t* text);
TemplateItem radio(int id, const char16_t* text);
TemplateItem label(int id, const char16_t* text);
TemplateItem button(int id, const char16_t* text);
TemplateItem edit(int id, int widthChars);
TemplateItem spin(int id);
TemplateItem stretch();
/// As wide as a list's scroll bar, so that what stands above or below the list keeps its columns.
TemplateItem scrollBarSpace();
/// A text without a number.
TemplateItem note(const char16_t* text);
/// Fixes the width; a static's text is then centred in it. Of a form, the least width of its
/// labels, so that forms that stand one above the other are aligned.
TemplateItem wide(TemplateItem item, int widthChars);
/// Fixes the rows of a list that are seen without scrolling.
TemplateItem tall(TemplateItem item, int heightRows);
TemplateItem tight(TemplateItem item);
/// Tells screen readers what a control without a label of its own is.
TemplateItem named(TemplateItem item, const char16_t* accessibleName);
TemplateItem indented(TemplateItem item);
TemplateItem hidden(TemplateItem item);
TemplateItem readOnly(TemplateItem item);
TemplateItem compact(TemplateItem item);
TemplateItem titled(TemplateItem item);

/// The colour-and-font button of a dialog.
TemplateItem colorButton(int id);

/// A dialog's content above its bottom line: `left` (a button or nothing) and, at the right,
/// "閉じる", "キャンセル" and "ヘルプ(&H)".
TemplateItem withButtons(TemplateItem content, TemplateItem left = stretch());

}  // namespace layout
}  // namespace vyn
