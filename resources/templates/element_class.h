// What the templates of comets and minor planets have in common.
#pragma once

#include "resources/dialog_template.h"
#include "resources/element_class_controls.h"

namespace vyn::templates {

/// The object list with its counts above it and everything else below; `moreLimits` stands beside
/// the orbital types, `moreDisplay` below the vectors.
TemplateItem ElementClassContent(const ElementClassControls& id, const char16_t* listName,
                                 TemplateItem moreLimits, TemplateItem moreDisplay);

/// A type list with its label above it.
TemplateItem TypeList(int label, const char16_t* text, int list);

}  // namespace vyn::templates
