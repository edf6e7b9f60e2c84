// The question of an import about an object without an identifier.
#pragma once

#include "elements/element_import_question_dialog.h"

namespace vyn {

/// "認識符号が指定されていません。": 0 skips the object, 1 skips all such, 2 gives an identifier.
class VYN_EXPORT CDlgElementImportBlankID final : public CDlgElementImportQuestion {
  Q_OBJECT

 public:
  explicit CDlgElementImportBlankID(QWidget* parent);

 private:
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void OnImportBlankidRadio() { ApplyRadioRule(); }
};

}  // namespace vyn
