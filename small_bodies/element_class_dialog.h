// What the dialogs on comets and on minor planets share: the objects of an element file, the limits
// that choose which of them are shown, motion vectors, a search and the element file itself.
#pragma once

#include <vector>

#include "resources/element_class_controls.h"
#include "small_bodies/object_list_dialog.h"

class QComboBox;
class QSlider;

namespace vyn {

class CElementMan;

/// One type of a class by which objects are shown or not.
struct tagLimitTypeInfo {
  QString displayName;
  QString objectName;  ///< the last word of its path
};

/// Every change is sent at once. Cancel starts the class anew and replays the state of the opening.
class VYN_EXPORT CDlgElementClass : public CDlgObjectList {
  Q_OBJECT

 public:
  /// The core engine's script of the whole class as it is now.
  int GetScript(QString& script) override;

 protected:
  /// A list of types, each with a check box.
  struct TypeList {
    int control;
    QStringView word;   ///< "OrbitalType": its types are "CLASS.OrbitalType.NAME"
    QStringView title;  ///< of the column of names
    CVynListBoxAObj* list = nullptr;
    std::vector<tagLimitTypeInfo> types = {};
  };

  struct ElementDeclaration {
    Declaration base;
    ElementClassControls controls;
    int vectorColumn;
    int cometFlag;         ///< for the element file: 0 for minor planets
    int importFolderName;  ///< numbers of the names of settings
    int elementFolderName;
  };

  CDlgElementClass(CCorVyn* commandHandle, CCorVyn* secondHandle,
                   const ElementDeclaration& declaration, std::vector<TypeList> typeLists,
                   QWidget* parent);

  bool OnInitDialog() override;
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void OnOK() override;
  void OnCancel() override;
  void keyPressEvent(QKeyEvent* event) override;

  // Reading the state, and the controls that depend on it.

  void InitCtrl();
  void UpdateCtrl();
  void UpdateDispCountAndTotalCount();
  /// What a derived class reads behind the brightness limit and behind the orbital types.
  virtual void InitDisplay() {}
  virtual void InitMoreTypes() {}
  void ShowTypes(TypeList& typeList, std::vector<tagLimitTypeInfo> types);
  static void KeepRoomForNames(const TypeList& typeList);
  TypeList& Types(int control);

  // The lists.

  int OnVynListBoxAObj(quintptr reason, tagUpdateInfo* record) override;
  void ChangeSelectDataItemVynListBoxAObj() override { UpdateCtrl(); }
  void ColumnWasChanged(int column) override;
  void GetAllVynListBoxAObjType(const TypeList& typeList, tagUpdateInfo& record);
  void ChangeDataItemOnceVynListBoxAObjType(const TypeList& typeList, tagUpdateInfo& record);

  // Limits and vectors.

  void OnBnClickedChkLimitBrighter();
  void OnHScroll(int position);
  void OnEnChangeEdtLimitBrighter();
  void OnDeltaposSpinLimitBrighter(int delta, bool fine);
  void OnEnChangeVectorSpandays();
  void OnEnChangeVectorMultiplier();
  void OnDeltaposSpinVector(int spin, int delta);

  // The search.

  void OnBnClickedSearchBackward() { DoSearch(-1); }
  void OnBnClickedSearchForward() { DoSearch(1); }
  /// Selects the next object (1) or the one before (-1) with the text in one of its names.
  void DoSearch(int direction);

  // The element file.

  void OnBnClickedElementNew();
  void OnBnClickedElementEdit();
  void OnBnClickedElementDel();
  void OnBnClickedElementImport();
  void OnBnClickedElementElmFile();

  void OnBnClickedColorFont() { ChooseClassColor(u".ID.Color"); }

  QString Path(QStringView property) const { return ClassPath() + property; }

 private:
  void InitTypeLists();
  void InitBrighter();
  void InitVector();
  void InitOrbitalTypes();
  void FillTypeRow(const TypeList& typeList, tagUpdateInfo& record, qint64 row);
  QString TypePath(const TypeList& typeList, qint64 row) const;
  bool HasSelection() const;
  void AttachSearch();
  void AttachSpins();

  void SendBrighterMagnitude();
  void SendVector(QStringView property, double value);
  void VectorEdited(double value, QStringView property, int message);
  void ShowRange(int message, double lowest, double highest);

  void LoadSearchHistory();
  void SaveSearchHistory();
  void RememberSearch(const QString& text);
  bool IsSearching() const;
  qint64 FindObject(const QString& upperText, qint64 row, int direction);

  CElementMan ElementManager();
  void SendData(const QString& command);
  void ReadCount(bool keepsPosition);
  bool Confirm(int message);
  void RunImport(const QString& source, int count);
  bool ImportOne(const QString& source, int number, qint64 countBefore, qint32* flags,
                 QWidget* messageParent);
  QString AskElementFile(int folderName, int title, int filter, bool forImport);
  bool UseElementFile(const QString& chosen, const QString& previous);

  const ElementDeclaration declaration_;
  const ElementClassControls id_;
  std::vector<TypeList> typeLists_;
  QString savedScript_;
  int brighterFlag_ = 0;
  double brighterMagnitude_ = 0.0;
  double vectorSpanDays_ = 0.0;
  double vectorMultiplier_ = 0.0;
  QSlider* brighterSlider_ = nullptr;
  QComboBox* searchCombo_ = nullptr;
};

}  // namespace vyn
