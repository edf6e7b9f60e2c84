// The dialogs that the demo planetarium offers: one row each.
#pragma once

#include <span>

#include <QStringView>

class QWidget;

namespace vyn {

class CCorVyn;
class CVynDialog;

struct DialogEntry {
  int templateNumber;
  QStringView name;      ///< for file names
  QStringView menuText;  ///< with its mnemonic
  /// Null for the dialog on a comet's tails, which needs its comet.
  CVynDialog* (*make)(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  QStringView colored;  ///< what its colour-and-font button colours
  QStringView sample;
  QStringView help;  ///< Markdown
};

std::span<const DialogEntry> DialogCatalogue();

/// The entry of the dialog built from this template, also of the one on a comet's tails; null for
/// an unknown one.
const DialogEntry* FindDialog(int templateNumber);

}  // namespace vyn
