// The list of satellites: a row of texts and toggles for each, under headings that stand above it.
#pragma once

#include <array>
#include <vector>

#include <QEvent>

#include "siblings/controls/controls.h"

namespace vyn {

/// What the list knows of one satellite. The switches are 0 or 1.
struct CCheckSatellite {
  QString name;
  QString secondText;  ///< free for the owner
  QString numberText;
  int shown = 0;
  int nameShown = 0;
  int japanese = 1;  ///< 1 Japanese name, 0 English name
  int numberShown = 0;
  int orbitShown = 0;
};

/// The toggles of a row, in the order of the headings.
enum class SatelliteToggle { Shown, Name, Japanese, English, Number, Orbit };
inline constexpr int kSatelliteToggleCount = 6;

/// Shows records that its owner keeps. A left click on a toggle, or a key on the selected row
/// (blank or V, N, J, E, M, O), changes the record and sends the registered message to the owner.
/// Toggles other than "shown" need the satellite shown; the languages also need its name shown.
class VYN_EXPORT CSatelliteListBox final : public CVynListBox {
  Q_OBJECT

 public:
  explicit CSatelliteListBox(QWidget* parent = nullptr);

  /// `records` stays the owner's. `headings` stand above the toggles and give their places;
  /// `baseUnit` is the average character width of the dialog, in pixels.
  void Attach(QWidget* owner, std::vector<CCheckSatellite>* records, QEvent::Type changedMessage,
              int baseUnit, const std::array<QWidget*, kSatelliteToggleCount>& headings);

  /// Shows these records, by index, one a row.
  void SetRows(const std::vector<int>& recordIndexes);
  int RowCount() const { return count(); }
  int SelectedRow() const;  ///< -1 where none is selected
  CCheckSatellite& RecordOfRow(int row);

  /// The toggle under the heading with this control number.
  std::optional<SatelliteToggle> ToggleUnder(int headingId) const;
  /// Where a toggle stands, in the viewport's pixels.
  QRect ToggleRect(int row, SatelliteToggle toggle) const;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool ToggleAt(const QPoint& point);
  bool Toggle(int row, SatelliteToggle toggle);

  QWidget* owner_ = nullptr;
  std::vector<CCheckSatellite>* records_ = nullptr;
  QEvent::Type changedMessage_ = QEvent::None;
  std::array<QWidget*, kSatelliteToggleCount> headings_{};
  bool lastClickChanged_ = false;
};

}  // namespace vyn
