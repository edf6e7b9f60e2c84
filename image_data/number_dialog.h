// A dialog with a record of values of which the numbers stand in a table: data exchange, typing and
// spin buttons of all of them.
#pragma once

#include <initializer_list>
#include <vector>

#include "core_link/dialog.h"
#include "image_data/data_set_record.h"
#include "image_data/number_field.h"

namespace vyn {

class VYN_EXPORT CNumberDialog : public CVynDialog {
  Q_OBJECT

 protected:
  CNumberDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
                const QString& registryKey,
                std::initializer_list<std::span<const NumberField>> fields, QWidget* parent);
  ~CNumberDialog() override;

  bool OnInitDialog() override;
  void AttachControls() override;
  void DoDataExchange(CDataExchange& exchange) override;

  /// A number was typed and is in its range, or was changed by its spin button.
  virtual void OnNumberTyped(const NumberField& /*field*/) {}
  virtual void OnNumberStepped(const NumberField& /*field*/) {}
  /// Puts what was typed into its range.
  virtual void ClampTyped(const NumberField& field);

  /// Reads the controls into the record; shows the record in the controls.
  void Pull();
  void Push();

  /// Asks for a file and takes its path for the image's; false where none is chosen, or one of
  /// which a message tells that it is no image.
  bool AskImagePath();

  const std::vector<NumberField> fields_;
  DataSetRecord record_;

 private:
  void AttachNumber(const NumberField& field);
  void OnEnChange(const NumberField& field);
  void OnDeltaposSpn(const NumberField& field, int delta);
  void FinishTyping();
  bool KeepsItsText(const NumberField& field) const;

  /// The number whose edit is being typed in, while its change is carried out.
  const NumberField* typed_ = nullptr;
  /// The number whose text is still below its range, as "0" on the way to "0.5".
  const NumberField* unfinished_ = nullptr;
};

}  // namespace vyn
