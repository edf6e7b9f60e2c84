// What the questions of an import share.
#pragma once

#include "core_link/dialog.h"

namespace vyn {

/// A question about one object: a choice whose last possibility is an identifier to type. Only a
/// choice ends the dialog; Esc and the close box leave it open.
class VYN_EXPORT CDlgElementImportQuestion : public CVynDialog {
  Q_OBJECT

 public:
  void SetName(const QString& name) { name_ = name; }

  /// The index of the radio button that was checked.
  int Choice() const { return choice_; }
  /// The identifier given with the last choice, as it was typed.
  const QString& NewIdentifier() const { return newIdentifier_; }

 protected:
  struct Controls {
    int name;
    int firstRadio;
    int lastRadio;
    int identifierLabel;
    int identifierEdit;
  };

  CDlgElementImportQuestion(int templateNumber, const Controls& controls, QWidget* parent);

  bool OnInitDialog() override;
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void OnOK() override;
  void OnCancel() override;

  /// The identifier can be typed only while the last radio button is checked.
  void ApplyRadioRule();

  QString newIdentifier_;

 private:
  bool LastIsChosen() const { return choice_ == controls_.lastRadio - controls_.firstRadio; }

  const Controls controls_;
  QString name_;
  int choice_ = 0;
};

}  // namespace vyn
