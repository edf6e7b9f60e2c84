// What the dialogs share that are little more than a list: they restore their objects one by one.
#pragma once

#include "small_bodies/object_list_dialog.h"

namespace vyn {

/// Cancel sends the switches of every object as they were at opening.
class VYN_EXPORT CDlgListedObjects : public CDlgObjectList {
  Q_OBJECT

 public:
  /// One visibility statement for each object and switch, with what it is now.
  int GetScript(QString& script) override;

 protected:
  struct ListDeclaration {
    Declaration base;
    int colorButton;
    QStringView colorPath;
    /// What Cancel restores of each object, behind its path.
    std::span<const QStringView> restoredPaths;
    /// Whether Cancel sends the script also when there are no objects.
    bool sendsEmptyScript;
  };

  CDlgListedObjects(CCorVyn* commandHandle, CCorVyn* secondHandle,
                    const ListDeclaration& declaration, QWidget* parent);

  bool OnInitDialog() override;
  void AttachControls() override;
  void OnCancel() override;
  void OnBnClickedColorFont() { ChooseClassColor(declaration_.colorPath); }

 private:
  const ListDeclaration declaration_;
  QString cancelScript_;
};

}  // namespace vyn
