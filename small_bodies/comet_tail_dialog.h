// The dialog "テイル編集": how the tails of one comet are drawn.
#pragma once

#include "core_link/dialog.h"

namespace vyn {

/// Every change is sent at once; Cancel sends the values of the opening again.
class VYN_EXPORT CDlgCometTail final : public CVynDialog {
  Q_OBJECT

 public:
  explicit CDlgCometTail(QWidget* parent);
  /// `objectPath` is the comet's path in the core engine, such as "Solar.Comet.No1".
  CDlgCometTail(const QString& objectPath, QWidget* parent);

  /// Sets the comet before the dialog opens.
  void SetClickedCometObject(const QString& objectPath) { objectPath_ = objectPath; }

 private:
  /// The values that the dialog governs. Spans in days; a beta is the ratio of the Sun's radiation
  /// pressure on a grain to its gravity.
  struct Tails {
    int autoEmission = 0;
    double dustSpanDays = 0.0;
    double betaMin = 0.0;
    double betaMax = 0.0;
    int dustOutline = 0;
    double ionSpanDays = 0.0;
    int ionOutline = 0;
  };

  /// A value with its slider, edit and spin button.
  struct TailValue {
    int slider, edit, spin;
    double Tails::*member;
    double sliderScale;  ///< positions for one unit of the value
    double step;         ///< of the spin button
    int sliderEnd;       ///< the slider goes from 0 to this position
  };
  static const TailValue kValues[];

  bool OnInitDialog() override;
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;
  void OnCancel() override { OnBnClickedCancel(); }

  void OnBnClickedChk();
  void OnEnChangeEdt();
  void OnDeltaposSpn(const TailValue& value, int delta);
  void OnHScroll(const TailValue& value, int position);
  void OnBnClickedCancel();

  void ReadTails();
  double ReadBeta(const QString& suffix, bool& isUnset);
  QString Ask(const QString& suffix);
  void Doit(const Tails& tails);
  void Send(const QString& statement) { CVynDialog::Doit(objectPath_ + statement); }
  void SetScrollPos();

  QString objectPath_;
  QString title_;
  Tails tails_;
  Tails saved_;
  bool isBetaMinUnset_ = false;
  bool isBetaMaxUnset_ = false;
};

}  // namespace vyn
