// The colour-and-font dialog: chooses the colour and the font of a kind of label.
#pragma once

#include <QDialog>

#include "core_link/export.h"

class QFontComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace vyn {

class CCorVyn;

/// Reads the colour at a property path such as "Solar.Sun.Name.Color" and the font beside it
/// ("Solar.Sun.Name.Font"), changes both in the core engine as the user chooses, and puts both back
/// on Cancel. A colour is written "#RRGGBB", a font "family,points".
class VYN_EXPORT CSetColorDialog final : public QDialog {
  Q_OBJECT

 public:
  /// `firstText` says what is coloured, `secondText` is the sample shown; either may be empty.
  CSetColorDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, const QString& firstText,
                  const QString& secondText, const QString& colorPath, QWidget* parent);

  /// Opens the dialog and waits until it is closed. Returns 1 for OK and 2 for Cancel.
  int DoModal();

  const QString& ColorPath() const { return colorPath_; }
  const QString& FirstText() const { return firstText_; }
  const QString& SecondText() const { return secondText_; }

  void reject() override;

 private:
  QString Ask(const QString& path) const;
  void Send(const QString& path, const QString& value);
  void PutBack(const QString& path, const QString& value);
  void ReadState();
  void BuildControls();
  void ChooseColor();
  void OnColorChanged(const QColor& color);
  void OnFontChanged();
  void ShowSample();

  CCorVyn* commandHandle_;
  CCorVyn* secondHandle_;
  QString firstText_;
  QString secondText_;
  QString colorPath_;
  QString fontPath_;
  QString savedColor_;
  QString savedFont_;
  bool colorChanged_ = false;
  bool fontChanged_ = false;
  QColor color_;
  QLabel* sample_ = nullptr;
  QPushButton* colorButton_ = nullptr;
  QFontComboBox* family_ = nullptr;
  QSpinBox* points_ = nullptr;
};

}  // namespace vyn
