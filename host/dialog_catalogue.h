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
  CVynDialog* (*make)(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent);
  QStringView colored;  ///< what its colour-and-font button colours
  QStringView sample;
  QStringView help;  ///< Markdown
};

std::span<const DialogEntry> DialogCatalogue();

/// The entry of the dialog built from this template; null for a dialog that is not offered.
const DialogEntry* FindDialog(int templateNumber);

}  // namespace vyn
