#include "resources/dialog_template.h"

#include "resources/templates/templates.h"

namespace vyn {
namespace {

bool IsArrangement(ControlKind kind) { return kind >= ControlKind::Column; }

void Collect(const TemplateItem& item, std::vector<const TemplateItem*>& controls) {
  if (!IsArrangement(item.kind) && item.id != kNoControlId) controls.push_back(&item);
  for (const TemplateItem& child : item.children) Collect(child, controls);
}

}  // namespace

const DialogTemplate& FindDialogTemplate(int number) {
  static const std::vector<DialogTemplate> all = templates::All();
  for (const DialogTemplate& dialog : all) {
    if (dialog.number == number) return dialog;
  }
  qFatal("no dialog template has the number %d", number);
}

std::vector<const TemplateItem*> ControlsOf(const DialogTemplate& dialog) {
  std::vector<const TemplateItem*> controls;
  Collect(dialog.content, controls);
  return controls;
}

namespace layout {

TemplateItem control(ControlKind kind, int id, const char16_t* text) {
  TemplateItem item{kind};
  item.id = id;
  item.text = QString::fromUtf16(text);
  return item;
}

TemplateItem check(int id, const char16_t* text) { return control(ControlKind::Check, id, text); }
TemplateItem radio(int id, const char16_t* text) { return control(ControlKind::Radio, id, text); }
TemplateItem label(int id, const char16_t* text) { return control(ControlKind::Static, id, text); }
TemplateItem button(int id, const char16_t* text) { return control(ControlKind::Button, id, text); }
TemplateItem spin(int id) { return control(ControlKind::Spin, id); }
TemplateItem stretch() { return TemplateItem{ControlKind::Stretch}; }

TemplateItem edit(int id, int widthChars) {
  return wide(control(ControlKind::Edit, id), widthChars);
}

TemplateItem scrollBarSpace() { return TemplateItem{ControlKind::ScrollBarSpace}; }
TemplateItem note(const char16_t* text) { return label(kNoControlId, text); }

TemplateItem wide(TemplateItem item, int widthChars) {
  item.widthChars = widthChars;
  return item;
}

TemplateItem tall(TemplateItem item, int heightRows) {
  item.heightRows = heightRows;
  return item;
}

TemplateItem tight(TemplateItem item) {
  item.tight = true;
  return item;
}

TemplateItem named(TemplateItem item, const char16_t* accessibleName) {
  item.accessibleName = QString::fromUtf16(accessibleName);
  return item;
}

TemplateItem indented(TemplateItem item) {
  item.indented = true;
  return item;
}

TemplateItem hidden(TemplateItem item) {
  item.hidden = true;
  return item;
}

TemplateItem readOnly(TemplateItem item) {
  item.readOnly = true;
  return item;
}

TemplateItem compact(TemplateItem item) {
  item.compact = true;
  return item;
}

TemplateItem titled(TemplateItem item) {
  item.titled = true;
  return item;
}

TemplateItem colorButton(int id) { return button(id, u"色・フォント(&C)..."); }

TemplateItem withButtons(TemplateItem content, TemplateItem left) {
  return column(std::move(content),
                row(std::move(left), stretch(), button(kOkButton, u"閉じる"),
                    button(kCancelButton, u"キャンセル"), button(kHelpButton, u"ヘルプ(&H)")));
}

}  // namespace layout
}  // namespace vyn
