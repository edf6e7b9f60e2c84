#include "siblings/common_dialogs/open_file.h"

#include <QDir>
#include <QFileDialog>

#include "siblings/files/common_file.h"

namespace vyn {
namespace {

/// The toolkit takes the patterns from the parentheses behind a filter's name.
QStringList NameFilters(const QString& filter) {
  const QStringList parts = filter.split(u'|', Qt::SkipEmptyParts);
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString patterns = QString(parts[i + 1]).replace(u';', u' ');
    const QString behindName = u'(' + patterns + u')';
    filters += parts[i].endsWith(behindName) ? parts[i] : parts[i] + u' ' + behindName;
  }
  return filters;
}

}  // namespace

QString AskAnyFile(QWidget* parent, const QString& currentPath) {
  return AskOpenFile(parent, {.title = QStringLiteral("ファイルを開く"),
                              .folder = CCommonFile::GetPathName(currentPath),
                              .mustExist = false});
}

QString AskOpenFile(QWidget* parent, const OpenFileQuestion& question) {
  QFileDialog dialog(parent, question.title);
  dialog.setAcceptMode(QFileDialog::AcceptOpen);
  dialog.setFileMode(question.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  const QStringList filters = NameFilters(question.filter);
  if (!filters.isEmpty()) dialog.setNameFilters(filters);
  if (!question.folder.isEmpty()) dialog.setDirectory(question.folder);
  if (!question.defaultExtension.isEmpty()) dialog.setDefaultSuffix(question.defaultExtension);
  if (dialog.exec() != QDialog::Accepted) return {};
  return QDir::toNativeSeparators(dialog.selectedFiles().value(0));
}

}  // namespace vyn
