#include "elements/element_import.h"

#include <QMessageBox>

#include "elements/element_import_blank_id_dialog.h"
#include "elements/element_import_duplicate_dialog.h"
#include "elements/element_importer.h"
#include "elements/element_kind.h"

namespace vyn {
namespace {

/// Asks the user in windows.
class WindowDecisions final : public ImportDecisions {
 public:
  explicit WindowDecisions(QWidget* parent) : parent_(parent) {}

  Answer AskBlankIdentifier(const QString& name) override {
    CDlgElementImportBlankID dialog(parent_);
    dialog.SetName(name);
    return AnswerOf(dialog);
  }

  Answer AskDuplicate(ImportMode mode, const QString& identifier, const QString& name) override {
    CDlgElementImportDuplicate dialog(mode == ImportMode::Import
                                          ? CDlgElementImportDuplicate::kImportTemplate
                                          : CDlgElementImportDuplicate::kUpdateTemplate,
                                      parent_);
    dialog.SetIdentifier(identifier);
    dialog.SetName(name);
    return AnswerOf(dialog);
  }

  int ShowInformation(const QString& text) override { return Show(QMessageBox::Information, text); }
  void ShowPlain(const QString& text) override { Show(QMessageBox::NoIcon, text); }

 private:
  static Answer AnswerOf(CDlgElementImportQuestion& dialog) {
    dialog.DoModal();
    return {dialog.Choice(), dialog.NewIdentifier()};
  }

  int Show(QMessageBox::Icon icon, const QString& text) {
    const QString caption = parent_ == nullptr ? QString() : parent_->window()->windowTitle();
    QMessageBox box(icon, caption, text, QMessageBox::Ok, parent_);
    // Names and records are shown as they stand, whatever signs they hold.
    box.setTextFormat(Qt::PlainText);
    box.exec();
    // The platform's number of the only button there is.
    constexpr int kOkButton = 1;
    return kOkButton;
  }

  QWidget* parent_;
};

}  // namespace

CElementImport::CElementImport(int cometFlag, CCorVyn* engine)
    : kind_(ElementKindWord(cometFlag)), engine_(engine) {}

CElementImport::~CElementImport() = default;

QString CElementImport::GetFileName() { return AskElementFile(engine_, kind_); }

int CElementImport::ImportElement(const QString& sourcePath, std::int32_t object,
                                  std::int32_t* flags, QWidget* parent) {
  WindowDecisions decisions(parent);
  ElementImporter importer(GetFileName(), decisions);
  const int result = importer.DoImportElement(sourcePath, object, flags, ImportMode::Import);
  errorText_ = importer.ErrorText();
  return result;
}

int CElementImport::UpdateElement(const QString& sourcePath, std::int32_t object,
                                  std::int32_t* flags, QWidget* parent) {
  WindowDecisions decisions(parent);
  ElementImporter importer(GetFileName(), decisions);
  const int result = importer.DoImportElement(sourcePath, object, flags, ImportMode::Update);
  errorText_ = importer.ErrorText();
  return result;
}

}  // namespace vyn
