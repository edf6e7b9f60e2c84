#include "siblings/common_dialogs/open_file.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

namespace vyn {

QString ChooseFileToOpen(QWidget* parent, const QString& startFolder) {
  const bool isFolder = !startFolder.isEmpty() && QDir(startFolder).exists();
  QFileDialog dialog(
      parent, QStringLiteral("ファイルを開く"),
      isFolder ? startFolder : QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
  dialog.setFileMode(QFileDialog::ExistingFile);
  if (dialog.exec() != QDialog::Accepted) return {};
  return QDir::toNativeSeparators(dialog.selectedFiles().value(0));
}

}  // namespace vyn
