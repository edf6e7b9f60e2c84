// Parts that the templates of the image dialogs have in common.
#pragma once

#include "resources/dialog_template.h"

namespace vyn::templates {

inline constexpr int kPreviewChars = 50;

/// The preview in which an image is placed.
TemplateItem PreviewFrame();
/// A label, an edit and its spin button.
TemplateItem NumberLine(int label, const char16_t* text, int edit, int spin, int widthChars = 6);
/// An edit and its spin button with the unit behind it, which names it.
TemplateItem NumberWithUnit(int edit, int spin, int unit, const char16_t* unitText,
                            int widthChars = 3);
/// Year, month and day above hour, minute and second.
TemplateItem DateRows();
/// Offsets, radius and roll; `more` goes on below them.
TemplateItem PlacementGroup(TemplateItem more = layout::row());
/// The bottom line of a dialog that is cancelled by the keyboard and the close box only.
TemplateItem WithHiddenCancel(TemplateItem content, TemplateItem left = layout::stretch());

}  // namespace vyn::templates
