// The question of an import about an object whose identifier the element file has already.
#pragma once

#include "elements/element_import_question_dialog.h"

namespace vyn {

/// 0 skips the object, 1 skips all such, 2 overwrites it, 3 overwrites all such, 4 changes the
/// identifier.
class VYN_EXPORT CDlgElementImportDuplicate final : public CDlgElementImportQuestion {
  Q_OBJECT

 public:
  static constexpr int kImportTemplate = 13008;  ///< "この天体はすでに登録されています。"
  static constexpr int kUpdateTemplate = 13009;  ///< "この天体は修正されています。"

  CDlgElementImportDuplicate(int templateNumber, QWidget* parent);

  void SetIdentifier(const QString& identifier) { identifier_ = identifier; }

 private:
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void OnImportDuplicateRadio() { ApplyRadioRule(); }

  QString identifier_;
};

}  // namespace vyn
