// Opens the windows of the element file by themselves, without the dialogs that usually do.
#pragma once

#include "tools/vyn-drive/dialog_table.h"

namespace vyn::drive {

/// Words: `new comet`, `new minorplanet`, or FILE N for object N, from 0, of an element file. After
/// OK the records are printed, one page a line.
std::unique_ptr<CVynDialog> MakeElementEditor(const DialogMaking& making, Arguments& words);

/// Words: NAME. After OK the choice and the new identifier are printed.
std::unique_ptr<CVynDialog> MakeBlankIdQuestion(const DialogMaking& making, Arguments& words);

/// Words: `import` or `update`, IDENTIFIER, NAME. After OK as above.
std::unique_ptr<CVynDialog> MakeDuplicateQuestion(const DialogMaking& making, Arguments& words);

}  // namespace vyn::drive
